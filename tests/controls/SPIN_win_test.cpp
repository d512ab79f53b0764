#include "controls/SPIN_win.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <cstring>

#include "tests/controls/control_form_win.h"
#include "values/user_locale_win.h"
#include "windowing/seams_win.h"

using namespace controls;
using controls::test::ControlForm;

namespace {

class Spin : public ::testing::Test {
 protected:
  ControlForm form{spinKind};
  SPIN spin{form.tested()};
  windowing::TextBox box{form.tested()};
  int beeps = 0;
  windowing::Replaced<std::function<void()>> quiet{windowing::seams().beep, [this] { ++beeps; }};

  /// A text as this user's field shows it.
  static std::string shown(std::string text) {
    std::replace(text.begin(), text.end(), '.', values::userDecimalSign());
    return text;
  }
  void retype(const char* text) const {
    box.focus();
    box.selectAll();
    form.type(text);
  }
};

TEST_F(Spin, KeysWheelAndButtonsStep) {
  spin.setLimits(0, 3);
  box.focus();
  for (int i = 0; i < 10; ++i) form.key(VK_UP);
  EXPECT_EQ(box.text(), shown("2.0"));
  form.key(VK_PRIOR);
  form.key(VK_PRIOR);
  EXPECT_EQ(box.text(), shown("3.0"));
  EXPECT_EQ(form.count(SPIN::changed), 11);
  form.key(VK_NEXT);
  form.key(VK_DOWN);
  EXPECT_EQ(box.text(), shown("1.9"));
  // Half a notch twice is one.
  for (int i = 0; i < 2; ++i)
    spin.send(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA / 2)));
  EXPECT_EQ(box.text(), shown("1.8"));

  const HWND arrows = FindWindowExA(spin.handle(), nullptr, UPDOWN_CLASSA, nullptr);
  RECT area{};
  GetClientRect(arrows, &area);
  const std::pair<LONG, const char*> clicks[] = {{2, "1.9"}, {area.bottom - 3, "1.8"}};
  for (const auto& [y, expected] : clicks) {
    SendMessageA(arrows, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(area.right / 2, y));
    SendMessageA(arrows, WM_LBUTTONUP, 0, MAKELPARAM(area.right / 2, y));
    EXPECT_EQ(box.text(), shown(expected));
  }
  spin.setValue(0.75);
  EXPECT_EQ(box.text(), shown("0.8"));
}

TEST_F(Spin, TypingIsCheckedAndAlwaysLeavesANumber) {
  retype("1234567890");
  EXPECT_EQ(box.text(), "12345678");
  retype(".7");
  EXPECT_EQ(box.text(), shown(".7"));
  EXPECT_EQ(spin.text(), shown("0.7"));
  EXPECT_EQ(beeps, 0);
  form.type("x-.5");
  EXPECT_EQ(box.text(), shown(".7"));
  EXPECT_EQ(beeps, 4);
  form.control(test::afterId).focus();
  EXPECT_EQ(box.text(), shown("0.7"));

  retype(".");
  EXPECT_EQ(spin.text(), shown("0.7")) << "half typed";
  box.selectAll();
  spin.send(WM_CLEAR);
  EXPECT_EQ(spin.text(), shown("0.7")) << "empty";
  form.control(test::afterId).focus();
  EXPECT_EQ(box.text(), shown("0.7"));

  spin.setLimits(0.5, 4);
  retype("9");
  EXPECT_EQ(spin.text(), shown("4.0")) << "never outside the limits";
  EXPECT_EQ(box.text(), "9");
  form.control(test::afterId).focus();
  EXPECT_EQ(box.text(), shown("4.0"));
}

TEST_F(Spin, PastesNumbersOnly) {
  const auto paste = [this](const char* text) {
    const std::size_t size = std::strlen(text) + 1;
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
    std::memcpy(GlobalLock(memory), text, size);
    GlobalUnlock(memory);
    ASSERT_TRUE(OpenClipboard(form.handle()));
    EmptyClipboard();
    SetClipboardData(CF_TEXT, memory);
    CloseClipboard();
    box.selectAll();
    spin.send(WM_PASTE);
  };
  paste(" 1.4\r\n");
  EXPECT_EQ(spin.text(), shown("1.4"));
  paste("three");
  EXPECT_EQ(box.text(), shown("1.4"));
  EXPECT_EQ(beeps, 1);
}

}  // namespace
