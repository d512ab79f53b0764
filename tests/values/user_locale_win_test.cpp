#include "values/user_locale_win.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace values {
namespace {

/// A setting of the user's Windows for the length of a scope.
class Setting {
 public:
  Setting(LCTYPE kind, const wchar_t* text) : kind_(kind) {
    GetLocaleInfoW(LOCALE_USER_DEFAULT, kind, old_, 8);
    SetLocaleInfoW(LOCALE_USER_DEFAULT, kind, text);
  }
  Setting(const Setting&) = delete;
  Setting& operator=(const Setting&) = delete;
  ~Setting() { SetLocaleInfoW(LOCALE_USER_DEFAULT, kind_, old_); }

 private:
  LCTYPE kind_;
  wchar_t old_[8] = {};
};

TEST(UserLocale, SignsThatTheCodePageLacksAreNoQuestionMarks) {
  const struct {
    const wchar_t *decimal, *group;
    char decimalSign, groupSeparator;
  } rows[] = {
      {L",", L".", ',', '.'}, {L"\u066B", L"\u066C", '.', '\0'}, {L".", L"\u202F", '.', ' '}};
  for (const auto& row : rows) {
    const Setting decimal(LOCALE_SDECIMAL, row.decimal);
    const Setting group(LOCALE_STHOUSAND, row.group);
    EXPECT_EQ(userDecimalSign(), row.decimalSign);
    EXPECT_EQ(userGroupSeparator(), row.groupSeparator);
  }
}

}  // namespace
}  // namespace values
