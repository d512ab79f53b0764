// What the program shows and says of its commands: menus, toolbars and their tips, and the status
// bar's descriptions.
#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include "library/images.h"
#include "mainwindow/frmMain_ids.h"
#include "printing/frmPPrev_win.h"
#include "tests/support/main_window_win.h"

namespace {

namespace id = mainwindow::id;

class Hints : public test_support::MainWindowTest {};

// Number within its window, text, "*" for a picture; a menu's items in brackets.
std::string shownIn(library::CommandForm& of, HMENU menu) {
  std::string all;
  for (int i = 0; i < GetMenuItemCount(menu); ++i) {
    char text[80] = {};
    GetMenuStringA(menu, static_cast<UINT>(i), text, sizeof text, MF_BYPOSITION);
    if (i > 0) all += " | ";
    const HMENU popup = GetSubMenu(menu, i);
    const int number = static_cast<int>(GetMenuItemID(menu, i));
    if (popup == nullptr && *text != 0) all += std::to_string(number % 100) + " ";
    all += text;
    if (popup != nullptr)
      all += "[" + shownIn(of, popup) + "]";
    else if (*text != 0 && of.iconMenus().ItemIcon(number) >= 0)
      all += "*";
  }
  return all;
}

// Number and picture of each button, "|" for a gap.
std::string shownIn(const windowing::Control& bar) {
  std::string all;
  TBBUTTON button{};
  RECT place{};
  for (WPARAM i = 0; bar.send(TB_GETBUTTON, i, reinterpret_cast<LPARAM>(&button)) != 0; ++i) {
    bar.send(TB_GETITEMRECT, i, reinterpret_cast<LPARAM>(&place));
    if ((button.fsStyle & BTNS_SEP) != 0)
      all += "| ";
    else
      all += std::to_string(button.idCommand % 100) + " " +
             std::string(library::imageKeys.at(static_cast<std::size_t>(button.iBitmap))) + " ";
  }
  RECT strip{};
  GetClientRect(GetParent(bar.handle()), &strip);
  EXPECT_EQ(bar.pixels().right - bar.pixels().left, place.right);
  EXPECT_NEAR(bar.pixels().top, strip.bottom - bar.pixels().bottom, 1) << "in the middle";
  EXPECT_GT(ImageList_GetImageCount(reinterpret_cast<HIMAGELIST>(bar.send(TB_GETIMAGELIST))), 0);
  return all;
}

TEST_F(Hints, CommandsStandInMenusAndOnToolbars) {
  EXPECT_EQ(shownIn(form, GetMenu(form.handle())),
            "&File[1 &New* | 2 &Open...* |  | 3 &Save* | 4 Save &As...* |  | 5 &Print...* | "
            "6 Print Pre&view* | 7 Page Set&up... |  | 8 E&xit\tAlt+F4] | "
            "&Edit[9 &Add\tIns* | 10 &Remove\tCtrl+Del*] | "
            "&View[11 &Standard Toolbar | 12 S&tatus Bar |  | 13 &Header/Footer...* | "
            "14 &Properties...*] | "
            "&Go To[15 &First Page\tHome* | 16 &Previous Page\tPgUp* | 17 &Next Page\tPgDn* | "
            "18 &Last Page\tEnd*] | &Help[19 &Zandor Online* |  | 20 &About*]");
  EXPECT_EQ(shownIn(form.control(id::TBARMAIN)),
            "1 NEW 2 OPEN 3 SAVE 4 SAVE AS | 5 PRINT 6 PRINT PREVIEW | 9 ADD 10 REMOVE | "
            "13 HEADERFOOTER | 15 FIRST PAGE 16 PREVIOUS PAGE 17 NEXT PAGE 18 LAST PAGE ");
  EXPECT_EQ(windowing::Control(form.handle()).text(), "Tellary");
  EXPECT_NE(SendMessageA(form.handle(), WM_GETICON, ICON_BIG, 0), 0);
  printing::frmPPrev& preview = printing::thePreview();
  preview.load();
  EXPECT_EQ(shownIn(preview, GetMenu(preview.handle())),
            "&File[1 &Print...* | 2 &Close\tAlt+F4] | "
            "&View[3 &Standard Toolbar | 4 S&tatus Bar | &Zoom[5 200 % | 6 150 % | 7 100 % | "
            "8 75 % | 9 50 % | 10 25 % | 11 &Page Width | 12 &Whole Page]] | "
            "&Go To[13 &First Page\tHome* | 14 &Previous Page\tPgUp* | 15 &Next Page\tPgDn* | "
            "16 &Last Page\tEnd*] | &Help[17 &About*]");
  EXPECT_EQ(shownIn(preview.control("TBARMAIN")),
            "1 PRINT | 13 FIRST PAGE 14 PREVIOUS PAGE 15 NEXT PAGE 16 LAST PAGE | "
            "18 ZOOM OUT 19 ZOOM IN ");
  EXPECT_TRUE(preview.unload());
}

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
  SendMessageA(GetParent(bar.handle()), WM_NOTIFY, id::TBARMAIN, reinterpret_cast<LPARAM>(&hot));
  form.SETSAVE("False");
  const std::string other = status();
  SendMessageA(form.handle(), WM_TIMER, timer, 0);
  EXPECT_EQ(status(), other) << "what came in its place stays";
  EXPECT_FALSE(KillTimer(form.handle(), timer)) << "it was still running";
}

}  // namespace
