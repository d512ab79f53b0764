#include "controls/TXTBTN_win.h"

#include <gtest/gtest.h>

#include "library/images.h"
#include "library/resource_ids.h"
#include "tests/controls/control_form_win.h"
#include "windowing/handles_win.h"

using namespace controls;
using controls::test::ControlForm;

namespace {

constexpr windowing::ImageStrip strips[] = {{16, IDB_TOOLBAR16}};
constexpr LPARAM repeated = 1 | (1 << 30);

class TxtBtn : public ::testing::Test {
 protected:
  windowing::ImageList images{strips};
  ControlForm form{[this](HWND container, int id, const RECT& place) {
    const TXTBTN made = TXTBTN::create(container, id, place);
    made.setButton(images, library::imageIndex("MAIL"), "Send mail (F4)");
    return made.handle();
  }};
  TXTBTN box{form.tested()};

  [[nodiscard]] POINT middle() const {
    const RECT button = box.buttonPlace();
    return {(button.left + button.right) / 2, (button.top + button.bottom) / 2};
  }
  void down() const {
    const POINT at = middle();
    const LPARAM point = MAKELPARAM(at.x, at.y);
    box.send(WM_NCLBUTTONDOWN, static_cast<WPARAM>(box.send(WM_NCHITTEST, 0, point)), point);
  }
  void up(int offset = 0) const {
    POINT at = middle();
    at.x += offset;
    ScreenToClient(box.handle(), &at);
    box.send(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(at.x, at.y));
    box.send(WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y));
  }
  /// The button's pixels as the window shows them.
  [[nodiscard]] std::vector<COLORREF> pixels() const {
    RECT window{};
    GetWindowRect(box.handle(), &window);
    RECT button = box.buttonPlace();
    OffsetRect(&button, -window.left, -window.top);
    const HDC dc = GetWindowDC(box.handle());
    std::vector<COLORREF> found;
    for (int y = button.top; y < button.bottom; ++y)
      for (int x = button.left; x < button.right; ++x) found.push_back(GetPixel(dc, x, y));
    ReleaseDC(box.handle(), dc);
    return found;
  }
};

TEST_F(TxtBtn, IsATextBoxWhoseTextEndsBeforeTheButton) {
  char name[16] = {};
  GetClassNameA(box.handle(), name, sizeof name);
  EXPECT_STRCASEEQ(name, "EDIT");
  box.setText("john@example.org");
  EXPECT_EQ(box.text(), "john@example.org");
  EXPECT_EQ(form.count(EN_CHANGE), 1);

  RECT text{};
  GetClientRect(box.handle(), &text);
  MapWindowPoints(box.handle(), HWND_DESKTOP, reinterpret_cast<POINT*>(&text), 2);
  const RECT button = box.buttonPlace();
  EXPECT_LE(text.right, button.left);
  EXPECT_EQ(button.right - button.left, button.bottom - button.top);
  RECT window{};
  GetWindowRect(box.handle(), &window);
  EXPECT_LE(button.right, window.right);
}

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

TEST_F(TxtBtn, LosingTheMouseEndsThePress) {
  down();
  SetCapture(form.handle());
  ReleaseCapture();
  up();
  EXPECT_EQ(form.count(TXTBTN::clicked), 0);
}

TEST_F(TxtBtn, KeysPressTheButtonOnce) {
  box.focus();
  form.key(VK_F4);
  EXPECT_EQ(form.count(TXTBTN::clicked), 1);
  form.key(VK_F4, WM_KEYDOWN, repeated);
  EXPECT_EQ(form.count(TXTBTN::clicked), 1) << "a held key";
  form.key(VK_DOWN, WM_SYSKEYDOWN);
  EXPECT_EQ(form.count(TXTBTN::clicked), 2);
  form.key(VK_DOWN);
  form.key(VK_RETURN);
  EXPECT_EQ(form.count(TXTBTN::clicked), 2) << "without Alt and Ctrl";

  BYTE keys[256] = {};
  GetKeyboardState(keys);
  BYTE held[256] = {};
  std::copy(std::begin(keys), std::end(keys), held);
  held[VK_CONTROL] = 0x80;
  SetKeyboardState(held);
  form.key(VK_RETURN);
  SetKeyboardState(keys);
  EXPECT_EQ(form.count(TXTBTN::clicked), 3);
  EXPECT_EQ(box.text(), "");
}

TEST_F(TxtBtn, GreyedOrLockedItRefuses) {
  const std::vector<COLORREF> available = pixels();
  for (const bool locked : {false, true}) {
    locked ? box.setReadOnly(true) : box.setEnabled(false);
    EXPECT_FALSE(box.buttonEnabled());
    down();
    up();
    form.key(VK_F4);
    EXPECT_EQ(form.count(TXTBTN::clicked), 0);
    EXPECT_NE(pixels(), available) << "looks as before";
    locked ? box.setReadOnly(false) : box.setEnabled(true);
    EXPECT_EQ(pixels(), available);
  }
  down();
  box.setEnabled(false);
  up();
  EXPECT_EQ(form.count(TXTBTN::clicked), 0) << "greyed while pressed";
}

TEST_F(TxtBtn, ShowsItsPictureAndItsStates) {
  const std::vector<COLORREF> normal = pixels();
  const auto isPicture = [](COLORREF c) { return GetBValue(c) > GetRValue(c) + 60; };
  EXPECT_GT(std::count_if(normal.begin(), normal.end(), isPicture), 40);
  const POINT at = middle();
  const LPARAM point = MAKELPARAM(at.x, at.y);
  box.send(WM_NCMOUSEMOVE, HTOBJECT, point);
  const std::vector<COLORREF> hot = pixels();
  EXPECT_NE(hot, normal);
  down();
  EXPECT_NE(pixels(), hot);
  up();
  box.send(WM_NCMOUSELEAVE);
  EXPECT_EQ(pixels(), normal);
}

TEST_F(TxtBtn, LeavingIsGoingToAnotherControlOfTheWindow) {
  box.focus();
  form.control(test::afterId).focus();
  EXPECT_EQ(form.count(TXTBTN::left), 1);

  box.focus();
  ControlForm other([](HWND container, int id, const RECT& place) {
    return TXTBTN::create(container, id, place).handle();
  });
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
  EXPECT_EQ(form.count(TXTBTN::left), 2);
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
