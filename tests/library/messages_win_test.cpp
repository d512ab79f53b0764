#include <gtest/gtest.h>

#include "library/clsLibrary_win.h"
#include "tests/support/dialog_driver_win.h"
#include "tests/support/plain_form_win.h"
#include "windowing/application_win.h"
#include "windowing/modal_win.h"
#include "windowing/seams_win.h"

namespace library {
namespace {

using test_support::DialogDriver;
using test_support::PlainForm;

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
  EXPECT_NE(driver.seen()[0].text.find("saving the document 'A & B.tly'. "), std::string::npos);
  EXPECT_EQ(driver.seen()[0].owner, active.handle());
  EXPECT_FALSE(otherTookInput);
  EXPECT_TRUE(IsWindowEnabled(other.handle()));
}

TEST(MessageBoxes, QuestionsAnswerWithTheButtonPressed) {
  const struct {
    int number, press, defaultButton;
  } rows[] = {{2, IDYES, IDNO}, {3, IDNO, IDYES}, {5, IDYES, IDYES}, {6, IDCANCEL, IDYES}};
  for (const auto& row : rows) {
    DialogDriver driver(row.press);
    EXPECT_EQ(LIBRARY().MESSAGEBOXFCN(row.number, "Book", "", "", ""), row.press) << row.number;
    ASSERT_EQ(driver.seen().size(), 1U);
    EXPECT_EQ(driver.seen()[0].focused, row.defaultButton) << row.number;
  }
}

TEST(MessageBoxes, OwnerTitleAndBeepComeFromTheProgram) {
  PlainForm main;
  main.load();
  windowing::setMainWindow(main.handle());
  SetActiveWindow(nullptr);
  std::string order;
  HWND owner = nullptr;
  const windowing::Replaced beep(windowing::seams().beep, [&] { order += "beep "; });
  const windowing::Replaced box(
      windowing::seams().messageBox,
      [&](HWND asked, const std::string&, const std::string& title, UINT flags) {
        owner = asked;
        order += title + " " + std::to_string(flags) + ";";
        return IDOK;
      });
  LIBRARY().MESSAGEBOX(13, "", "", "", "");
  EXPECT_EQ(owner, main.handle()) << "where no window is active";
  main.unload();
  LIBRARY().MESSAGEBOX(25, "Book", "", "", "");
  EXPECT_EQ(owner, nullptr);
  windowing::setMainWindow(nullptr);
  EXPECT_EQ(order,
            "beep " + windowing::programFolder() + " 16;" + windowing::productName() + " 48;");
}

}  // namespace
}  // namespace library
