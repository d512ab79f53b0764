#include "controls/ICOMNU_win.h"

#include <gtest/gtest.h>

#include "controls/menu_drawing_win.h"
#include "library/images.h"
#include "library/resource_ids.h"
#include "values/runtime_error.h"
#include "windowing/form_win.h"
#include "windowing/screen_win.h"

using namespace controls;
using values::MemoryDc;

namespace {

constexpr windowing::ImageStrip strips[] = {{16, IDB_TOOLBAR16}};
constexpr windowing::FormDesign design = {"frmTest", "Test", WS_OVERLAPPEDWINDOW, 0, 3000,
                                          2000,      {}};
enum Number { file = 1, open, save, line, zoom, width, view, bar };

class MenuForm : public windowing::Form {
 public:
  MenuForm() : Form(design) {
    menus.onHighlight = [this](int number) { highlights.push_back(number); };
    menus.onSystemHighlight = [this](std::uint32_t code) { systemHighlights.push_back(code); };
    load();
  }
  void build() {
    menus.AddItem(file, 0, "&File", true, false, 0, false, true);
    menus.AddItem(open, file, "&Open...\tCtrl+O", true, false, 401, false, false);
    menus.AddItem(save, file, "&Save", false, false, 402, false, false);
    menus.AddItem(line, file, "", true, false, 0, true, false);
    menus.AddItem(zoom, file, "&Zoom", true, false, 0, false, false);
    menus.AddItem(width, zoom, "&Page Width", true, true, 403, false, false);
    menus.AddItem(view, 0, "&View", true, false, 0, false, true);
    menus.AddItem(bar, view, "S&tatus Bar", true, true, 405, false, false);
  }
  HMENU createMenu() override {
    build();
    return menus.bar();
  }
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
    LRESULT result = 0;
    if (menus.handleMessage(handle(), message, wParam, lParam, result)) return result;
    return Form::handleMessage(message, wParam, lParam);
  }
  LRESULT select(HMENU menu, int item, UINT flags) {
    return SendMessageA(handle(), WM_MENUSELECT, MAKEWPARAM(item, flags),
                        reinterpret_cast<LPARAM>(menu));
  }

  ICOMNU menus;
  std::vector<int> highlights;
  std::vector<std::uint32_t> systemHighlights;
};

TEST(IcoMnu, KeepsStatesOverARebuildAndDoublesNothing) {
  MenuForm form;
  ICOMNU& menus = form.menus;
  menus.setEnabled(save, true);
  menus.setChecked(bar, false);
  EXPECT_EQ(GetMenuState(menus.popup(view), 0, MF_BYPOSITION) & MF_CHECKED, 0U);
  menus.clear();
  EXPECT_EQ(GetMenuItemCount(menus.bar()), 0);
  for (int i = 0; i < 2; ++i) {
    form.build();
    EXPECT_EQ(GetMenuItemCount(menus.bar()), 2);
    EXPECT_EQ(GetMenuItemCount(menus.popup(file)), 4);
    EXPECT_TRUE(menus.isEnabled(save));
    EXPECT_FALSE(menus.isChecked(bar));
    EXPECT_EQ(GetMenuState(menus.popup(file), 1, MF_BYPOSITION) & MF_GRAYED, 0U);
  }
  EXPECT_EQ(GetMenu(form.handle()), menus.bar());
}

TEST(IcoMnu, HighlightsCarryNumbers) {
  MenuForm form;
  const HMENU popup = form.menus.popup(file);
  form.select(form.menus.bar(), 0, MF_POPUP | MF_HILITE);
  form.select(popup, 401, MF_HILITE | MF_OWNERDRAW);
  form.select(popup, 402, MF_HILITE | MF_GRAYED | MF_OWNERDRAW);
  form.select(popup, 0, MF_SEPARATOR | MF_OWNERDRAW);
  form.select(popup, 3, MF_POPUP | MF_HILITE | MF_OWNERDRAW);
  form.select(nullptr, 0, 0xFFFF);
  EXPECT_EQ(form.highlights, (std::vector<int>{0, open, save, 0, zoom, 0}));

  form.select(GetSystemMenu(form.handle(), FALSE), SC_CLOSE, MF_SYSMENU | MF_HILITE);
  EXPECT_EQ(form.systemHighlights, (std::vector<std::uint32_t>{61536}));
  EXPECT_EQ(form.highlights.size(), 6u);
}

// Painted into memory: pixels from the column `left` on that do not show the menu's ground.
int marks(const MenuItemLook& look, UINT state, LONG left, LONG right) {
  const windowing::ImageList images(strips);
  const SIZE size = menuItemSize(look, &images);
  const values::WindowDc screen(nullptr);
  const MemoryDc dc(CreateCompatibleDC(screen.get()));
  const values::BitmapHandle bitmap(CreateCompatibleBitmap(screen.get(), size.cx, size.cy));
  const values::Selected chosen(dc.get(), bitmap.get());
  drawMenuItem(dc.get(), {0, 0, size.cx, size.cy}, look, state, &images);
  int count = 0;
  for (int y = 0; y < size.cy; ++y)
    for (LONG x = left; x < std::min(right, size.cx); ++x)
      if (GetPixel(dc.get(), x, y) != GetSysColor(COLOR_MENU)) ++count;
  return count;
}

TEST(MenuDrawing, ShowsPictureCheckMarkShortcutAndArrow) {
  const LONG column = windowing::scaled(24);
  const MenuItemLook plain{"&Open"};
  const LONG end = menuItemSize(plain, nullptr).cx + windowing::scaled(2);
  EXPECT_EQ(marks(plain, 0, 0, column), 0);
  EXPECT_GT(marks(plain, 0, column, end), 20) << "words";
  EXPECT_GT(marks({"&Open", false, false, library::imageIndex("OPEN")}, 0, 0, column), 60);
  EXPECT_GT(marks(plain, ODS_CHECKED, 0, column), 10) << "check mark";
  EXPECT_GT(marks(plain, ODS_SELECTED, column, end), marks(plain, 0, column, end));
  EXPECT_GT(marks({"&Open\tCtrl+O"}, 0, end, 10000), 20) << "shortcut";
  EXPECT_GT(marks({"&Open", false, true}, 0, 0, 10000), marks(plain, 0, 0, 10000) + 8) << "arrow";
}

}  // namespace
