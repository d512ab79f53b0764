#include <gtest/gtest.h>

#include "library/clsLibrary_win.h"
#include "tests/support/dialog_driver_win.h"
#include "tests/support/plain_form_win.h"
#include "windowing/application_win.h"
#include "windowing/modal_win.h"
#include "windowing/runtime_error.h"
#include "windowing/seams_win.h"

namespace library {
namespace {

using test_support::DialogDriver;
using test_support::PlainForm;
using windowing::Replaced;
using windowing::seams;

TEST(MessageBoxes, AreTheSystemsOwnAndOwnedByTheActiveWindow) {
  PlainForm active, other;
  other.show();
  active.show();
  SetActiveWindow(active.handle());
  bool otherTookInput = true;
  DialogDriver driver([&](HWND box) {
    otherTookInput = IsWindowEnabled(other.handle()) || IsWindowEnabled(active.handle());
    PostMessageA(box, WM_COMMAND, IDOK, 0);
  });
  LIBRARY().MESSAGEBOX(10, "A & B.tly", "", "", "");
  ASSERT_EQ(driver.seen().size(), 1U);
  EXPECT_EQ(driver.seen()[0].title, "Save");
  EXPECT_NE(driver.seen()[0].text.find(
                "There is a problem saving the document 'A & B.tly'. This is possibly"),
            std::string::npos);
  EXPECT_EQ(driver.seen()[0].owner, active.handle());
  EXPECT_FALSE(otherTookInput);
  EXPECT_TRUE(IsWindowEnabled(other.handle()));
}

TEST(MessageBoxes, BelongToTheMainWindowWhereNoneIsActive) {
  PlainForm main;
  main.load();
  windowing::setMainWindow(main.handle());
  SetActiveWindow(nullptr);
  HWND owner = nullptr;
  const Replaced box(seams().messageBox, [&](HWND asked, auto&&...) {
    owner = asked;
    return IDOK;
  });
  LIBRARY().MESSAGEBOX(12, "", "", "", "");
  EXPECT_EQ(owner, main.handle());
  main.unload();
  LIBRARY().MESSAGEBOX(12, "", "", "", "");
  windowing::setMainWindow(nullptr);
  EXPECT_EQ(owner, nullptr);
}

TEST(MessageBoxes, QuestionsAnswerWithTheButtonPressed) {
  const struct {
    int number, press, expected, defaultButton;
  } rows[] = {{2, IDYES, IDYES, IDNO},        {3, IDNO, IDNO, IDYES},   {5, IDYES, IDYES, IDYES},
              {6, IDCANCEL, IDCANCEL, IDYES}, {6, IDYES, IDYES, IDYES}, {8, IDNO, IDNO, IDYES}};
  for (const auto& row : rows) {
    DialogDriver driver(row.press);
    EXPECT_EQ(LIBRARY().MESSAGEBOXFCN(row.number, "Book", "", "", ""), row.expected) << row.number;
    ASSERT_EQ(driver.seen().size(), 1U);
    EXPECT_EQ(driver.seen()[0].focused, row.defaultButton) << row.number;
  }
}

TEST(MessageBoxes, TitleAndBeepComeFromTheProgram) {
  std::string order;
  const Replaced beep(seams().beep, [&] { order += "beep "; });
  const Replaced box(seams().messageBox,
                     [&](HWND, const std::string&, const std::string& title, UINT flags) {
                       order += title + " " + std::to_string(flags) + ";";
                       return IDOK;
                     });
  LIBRARY().MESSAGEBOX(13, "", "", "", "");
  LIBRARY().MESSAGEBOX(25, "Book", "", "", "");
  EXPECT_EQ(order,
            "beep " + windowing::programFolder() + " 16;" + windowing::productName() + " 48;");
}

}  // namespace
}  // namespace library
