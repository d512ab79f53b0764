// What the program says of its commands: the toolbar's tips, and the status bar's descriptions.
#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include "mainwindow/frmMain_ids.h"
#include "tests/support/main_window_win.h"

namespace {

namespace id = mainwindow::id;

class Hints : public test_support::MainWindowTest {};

TEST_F(Hints, ButtonsHaveTipsWithoutAccessKeyAndDots) {
  const HWND bar = form.control(id::TBARMAIN).handle();
  const auto tips = reinterpret_cast<HWND>(SendMessageA(bar, TB_GETTOOLTIPS, 0, 0));
  for (const auto& [command, expected] :
       {std::pair<UINT_PTR, const char*>{id::NEW, "New"}, {id::SAVEAS, "Save As"}}) {
    char tip[80] = {};
    TOOLINFOA tool{};
    tool.cbSize = sizeof tool;
    tool.hwnd = bar;
    tool.uId = command;
    tool.lpszText = tip;
    SendMessageA(tips, TTM_GETTEXTA, sizeof tip, reinterpret_cast<LPARAM>(&tool));
    EXPECT_STREQ(tip, expected);
  }
}

TEST_F(Hints, TheSystemMenuIsDescribedWhileItIsOpen) {
  const auto menu = reinterpret_cast<LPARAM>(GetSystemMenu(form.handle(), FALSE));
  SendMessageA(form.handle(), WM_MENUSELECT, MAKEWPARAM(SC_MINIMIZE, MF_SYSMENU), menu);
  EXPECT_EQ(status(), "Reduce the window to an icon.");
  SendMessageA(form.handle(), WM_MENUSELECT, MAKEWPARAM(0, 0xFFFF), 0);
  EXPECT_EQ(status(), "");
}

TEST_F(Hints, TheToolbarIsWatchedNoLongerThanThePointerIsThere) {
  constexpr UINT_PTR timer = library::CommandForm::TMR1;
  const windowing::Control bar = form.control(id::TBARMAIN);
  form.show();
  POINT place{5, 5};
  ClientToScreen(bar.handle(), &place);
  SetCursorPos(place.x, place.y);
  NMTBHOTITEM hot{};
  hot.hdr = {bar.handle(), id::TBARMAIN, static_cast<UINT>(TBN_HOTITEMCHANGE)};
  hot.idNew = id::SAVEAS;
  SendMessageA(GetParent(bar.handle()), WM_NOTIFY, id::TBARMAIN, reinterpret_cast<LPARAM>(&hot));
  for (const bool there : {true, false}) {
    if (!there) SetCursorPos(place.x, place.y + 300);
    SendMessageA(form.handle(), WM_TIMER, timer, 0);
    EXPECT_EQ(status(), there ? "Save current tellary under a new name." : "");
  }
  EXPECT_FALSE(KillTimer(form.handle(), timer)) << "it was still running";
}

}  // namespace
