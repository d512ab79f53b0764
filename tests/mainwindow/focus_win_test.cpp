// Where the keyboard is, and what moving it by program does and does not do.
#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include "mainwindow/frmMain_ids.h"
#include "tests/support/main_window_win.h"

namespace {

namespace id = mainwindow::id;
using test_support::MainWindowTest;

class Focus : public MainWindowTest {
 protected:
  Focus() { form.show(); }
};

TEST_F(Focus, LeavesABoxThatIsHiddenOrHasNoContactLeft) {
  for (const auto& [command, box] : {std::pair{id::REMOVE, id::CBOTBARBOX},
                                     {id::REMOVE, id::textItem(3)},
                                     {id::STANDARDBAR, id::CBOTBARBOX}}) {
    form.control(box).focus();
    ASSERT_TRUE(form.control(box).focused());
    run(command);
    EXPECT_TRUE(form.control(id::TABMAIN).focused()) << command;
    run(id::ADD);
  }
}

TEST_F(Focus, MovedByACommandDoesNotLeaveAWebBox) {
  constexpr std::size_t homeWebsite = 14;  // place in the file, from 0
  std::vector<std::string> contact(28);
  contact[homeWebsite] = "www.x.example";
  const std::string path = scratch.file("web.tly", fileOf({contact}));
  turnTo(1);
  form.control(id::CBOPWEBSITE).focus();
  ASSERT_TRUE(form.control(id::CBOPWEBSITE).focused());
  open(path);
  EXPECT_TRUE(form.control(id::textItem(1)).focused());
  EXPECT_EQ(text(id::CBOPWEBSITE), "www.x.example");
  EXPECT_FALSE(form.modified());

  turnTo(1);
  form.control(id::CBOPWEBSITE).focus();
  form.control(id::CBOPEMAIL).focus();
  EXPECT_EQ(text(id::CBOPWEBSITE), "http://www.x.example") << "the user leaves it";
}

// Shift+Ins pastes: it is no Ins.
TEST_F(Focus, KeysWithShiftStayWithTheirBox) {
  const MSG insert{form.control(id::textItem(1)).handle(), WM_KEYDOWN, VK_INSERT, 1, 0, {}};
  const int before = form.contacts().count();
  for (const BYTE shift : {BYTE{0x80}, BYTE{0}}) {
    BYTE keys[256] = {};
    keys[VK_SHIFT] = shift;
    SetKeyboardState(keys);
    EXPECT_EQ(form.handleKey(insert), shift == 0);
    EXPECT_EQ(form.contacts().count(), before + (shift == 0));
  }
  const MSG down{form.control(id::CBOTBARBOX).handle(), WM_KEYDOWN, VK_NEXT, 1, 0, {}};
  EXPECT_FALSE(form.handleKey(down)) << "a list has keys of its own";
}

}  // namespace
