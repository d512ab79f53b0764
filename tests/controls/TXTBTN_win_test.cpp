#include "controls/TXTBTN_win.h"

#include <gtest/gtest.h>

#include "library/images.h"
#include "library/resource_ids.h"
#include "tests/controls/control_form_win.h"

using namespace controls;
using controls::test::ControlForm;

namespace {

constexpr windowing::ImageStrip buttonStrips[] = {{16, IDB_TOOLBAR16}};
constexpr LPARAM repeated = 1 | (1 << 30);

class TxtBtn : public ::testing::Test {
 protected:
  windowing::ImageList images{buttonStrips};
  ControlForm form{linkBoxKind};
  TXTBTN box{form.tested()};

  TxtBtn() { box.setButton(images, library::imageIndex("MAIL"), "Send mail (F4)"); }

  POINT onButton() const {
    RECT frame{};
    GetWindowRect(box.handle(), &frame);
    return {frame.right - 8, frame.top + 8};
  }
  void down() const {
    const POINT at = onButton();
    const LPARAM point = MAKELPARAM(at.x, at.y);
    box.send(WM_NCLBUTTONDOWN, static_cast<WPARAM>(box.send(WM_NCHITTEST, 0, point)), point);
  }
  void up(int offset = 0) const {
    POINT at = onButton();
    at.x += offset;
    ScreenToClient(box.handle(), &at);
    box.send(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(at.x, at.y));
    box.send(WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y));
  }
};

TEST_F(TxtBtn, MouseClicksOnReleaseOverTheButton) {
  down();
  EXPECT_EQ(form.count(TXTBTN::clicked), 0);
  EXPECT_TRUE(box.focused());
  up();
  EXPECT_EQ(form.count(TXTBTN::clicked), 1);
  down();
  up(-100);
  EXPECT_EQ(form.count(TXTBTN::clicked), 1) << "released beside the button";
  EXPECT_EQ(GetCapture(), nullptr);
  up();
  EXPECT_EQ(form.count(TXTBTN::clicked), 1) << "released without a press";
}

TEST_F(TxtBtn, KeysPressTheButtonOnceWhereItIsAvailable) {
  box.focus();
  form.key(VK_F4);
  EXPECT_EQ(form.count(TXTBTN::clicked), 1);
  form.key(VK_F4, WM_KEYDOWN, repeated);
  EXPECT_EQ(form.count(TXTBTN::clicked), 1) << "a held key";
  form.key(VK_DOWN, WM_SYSKEYDOWN);
  EXPECT_EQ(form.count(TXTBTN::clicked), 2);
  form.key(VK_DOWN);
  form.key(VK_RETURN);
  box.setReadOnly(true);
  form.key(VK_F4);
  down();
  up();
  EXPECT_EQ(form.count(TXTBTN::clicked), 2) << "without Alt and Ctrl, and locked";
  box.setReadOnly(false);
  down();
  box.setEnabled(false);
  up();
  EXPECT_EQ(form.count(TXTBTN::clicked), 2) << "greyed while pressed";
}

TEST_F(TxtBtn, LeavingIsGoingToAnotherControlOfTheWindow) {
  box.focus();
  form.control(test::afterId).focus();
  EXPECT_EQ(form.count(TXTBTN::left), 1);

  box.focus();
  ControlForm other(linkBoxKind);
  other.control(test::beforeId).focus();
  EXPECT_EQ(form.count(TXTBTN::left), 1) << "another window";
  box.focus();
  SetFocus(nullptr);
  EXPECT_EQ(form.count(TXTBTN::left), 1) << "another program";
  box.focus();
  down();
  up();
  EXPECT_EQ(form.count(TXTBTN::left), 1) << "its own button";
  form.control(test::beforeId).focus();
  down();
  EXPECT_EQ(form.count(TXTBTN::left), 2);
  EXPECT_TRUE(box.focused()) << "the button takes the focus from the control before";
  up();
}

TEST_F(TxtBtn, MayBeDestroyedByItsClick) {
  form.onCode = [this](int code) {
    if (code == TXTBTN::clicked) DestroyWindow(box.handle());
  };
  down();
  up();
  EXPECT_FALSE(IsWindow(box.handle()));
}

}  // namespace
