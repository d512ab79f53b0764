#include "values/number_sign.h"

#include <gtest/gtest.h>

TEST(NumberSign, SpacesAreBlanksAndWhatTheCodePageLacksIsLeftOut) {
  constexpr char none = '\0';
  const struct {
    char16_t sign;
    char inCodePage, otherwise, shown;
  } rows[] = {
      {u',', ',', '.', ','},          {u'\u2019', '\x92', none, '\x92'},
      {u'\u00A0', '\xA0', none, ' '}, {u'\u202F', none, none, ' '},
      {u'\u2009', none, none, ' '},   {u'\u066B', none, '.', '.'},
      {u'\u066C', none, none, none},  {u'\0', none, '.', '.'},
  };
  for (const auto& row : rows)
    EXPECT_EQ(values::numberSign(row.sign, row.inCodePage, row.otherwise), row.shown)
        << static_cast<int>(row.sign);
}
