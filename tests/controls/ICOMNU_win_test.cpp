#include "controls/ICOMNU_win.h"

#include <gtest/gtest.h>

#include "windowing/form_win.h"

using namespace controls;

namespace {

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
  EXPECT_EQ(GetMenuState(GetSubMenu(menus.bar(), 1), 0, MF_BYPOSITION) & MF_CHECKED, 0U);
  menus.clear();
  EXPECT_EQ(GetMenuItemCount(menus.bar()), 0);
  for (int i = 0; i < 2; ++i) {
    form.build();
    EXPECT_EQ(GetMenuItemCount(menus.bar()), 2);
    EXPECT_EQ(GetMenuItemCount(GetSubMenu(menus.bar(), 0)), 4);
    EXPECT_TRUE(menus.isEnabled(save));
    EXPECT_FALSE(menus.isChecked(bar));
    EXPECT_EQ(GetMenuState(GetSubMenu(menus.bar(), 0), 1, MF_BYPOSITION) & MF_GRAYED, 0U);
  }
  EXPECT_EQ(GetMenu(form.handle()), menus.bar());
}

TEST(IcoMnu, HighlightsCarryNumbers) {
  MenuForm form;
  const HMENU popup = GetSubMenu(form.menus.bar(), 0);
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

}  // namespace
