#include <gtest/gtest.h>

#include "library/clsLibrary_win.h"
#include "library/command_form_win.h"
#include "library/images.h"
#include "values/runtime_error.h"

using namespace library;

namespace {

constexpr int statusBar = 12;
constexpr windowing::ControlDesign controlRows[] = {
    {"SBMAIN", statusBar, windowing::kind::statusBar, "", 0, 0, 0, 0}};
constexpr int title = 7;

class MenuForm : public CommandForm {
 public:
  explicit MenuForm(const char* name)
      : CommandForm({name, "Test", WS_OVERLAPPEDWINDOW, 0, 3000, 2000, controlRows}, {}),
        menus(iconMenus()) {
    load();
    clsLibrary& shared = LIBRARY();
    shared.MENUCREATE(*this, *this, "&File", "", 0, true, false, title);
    shared.MENUCREATE(*this, *this, "&New", "NEW", title, true, false, 21);
    shared.MENUCREATE(*this, *this, "", "", title, true, false, 22);
    shared.MENUCREATE(*this, *this, "&Close\tAlt+F4", "", title, false, true, 23);
    shared.MENUCREATE(*this, *this, "&Frobnicate", "", title, true, false, 24);
  }
  void carryOut(int, bool) override {}

  controls::ICOMNU& menus;
};

// What the status bar of `shown` says of an item of `owner`.
std::string described(MenuForm& owner, MenuForm& shown, int number, bool clear = false) {
  LIBRARY().STATUSTEXTDESC(owner, shown, number, clear, "tellary");
  return shown.control<windowing::StatusBar>(statusBar).panel();
}

TEST(LibraryMenus, CreatesItemsWithPictureAndState) {
  MenuForm form("frmMain");
  EXPECT_EQ(form.menus.ItemIcon(21), imageIndex("NEW"));
  EXPECT_EQ(form.menus.ItemIcon(23), -1);
  EXPECT_FALSE(form.menus.isEnabled(23));
  EXPECT_TRUE(form.menus.isChecked(23));
  EXPECT_EQ(GetMenuItemCount(GetSubMenu(form.menus.bar(), 0)), 4);
  LIBRARY().ICOMNUSETUP(form, form, 23, "EXIT");
  EXPECT_EQ(form.menus.ItemIcon(23), imageIndex("EXIT"));
  EXPECT_THROW(LIBRARY().ICOMNUSETUP(form, form, 23, "NO SUCH KEY"), values::RuntimeError);
}

TEST(LibraryMenus, DescribesTheItemOfTheFormWithTheText) {
  MenuForm main("frmMain"), preview("frmPPrev"), popup("frmPopup"), other("frmOther");
  EXPECT_EQ(described(main, main, 21), "Create a new tellary.");
  EXPECT_EQ(described(main, main, 24), "Create a new tellary.") << "unknown: nothing new";
  EXPECT_EQ(described(main, main, 21, true), "") << "the flag clears";
  EXPECT_THROW(described(main, main, 99), values::RuntimeError);
  for (MenuForm* form : {&preview, &popup, &other}) form->menus.CAPTION(21, "&Add");
  EXPECT_EQ(described(preview, main, 21), "Create a new tellary.");
  EXPECT_EQ(described(popup, main, 21), "Create a new tellary.");
  EXPECT_EQ(described(other, main, 21), "Add to current tellary.") << "its own item";
  EXPECT_EQ(described(preview, preview, 23), "Close Print Preview.");
}

}  // namespace
