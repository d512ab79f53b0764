#include <gtest/gtest.h>

#include "controls/ICOMNU_win.h"
#include "library/clsLibrary_win.h"
#include "library/command_form_win.h"
#include "library/identifiers.h"
#include "library/images.h"
#include "library/resource_ids.h"

using namespace library;

namespace {

constexpr windowing::ImageStrip strips[] = {{16, IDB_TOOLBAR16}};
constexpr windowing::ControlDesign rows[] = {
    {"SBMAIN", id::SBMAIN, windowing::ControlKind::statusBar, "", 0, 0, 0, 0}};

constexpr windowing::FormDesign designOf(const char* name) {
  return {name, "Test", WS_OVERLAPPEDWINDOW, 0, 3000, 2000, rows};
}

class MenuForm : public CommandForm {
 public:
  explicit MenuForm(const char* name) : CommandForm(designOf(name)) { load(); }
  controls::ICOMNU& iconMenus() override { return menus; }
  const windowing::ImageList& imageList() const override { return images; }
  [[nodiscard]] std::string status() const {
    return windowing::StatusBar(control(id::SBMAIN).handle()).panel();
  }

  windowing::ImageList images{strips};
  controls::ICOMNU menus;
};

class BareForm : public CommandForm {
 public:
  BareForm() : CommandForm(designOf("frmBare")) { load(); }
};

constexpr int title = 7;

void fill(MenuForm& form) {
  clsLibrary& shared = LIBRARY();
  shared.MENUCREATE(form, form, "&File", "", 0, true, false, title);
  shared.MENUCREATE(form, form, "&New", "NEW", title, true, false, 21);
  shared.MENUCREATE(form, form, "", "", title, true, false, 22);
  shared.MENUCREATE(form, form, "&Close\tAlt+F4", "", title, false, true, 23);
  shared.MENUCREATE(form, form, "&Frobnicate", "", title, true, false, 24);
}

TEST(LibraryMenus, CreatesItemsWithPictureAndState) {
  MenuForm form("frmMain");
  fill(form);
  EXPECT_EQ(form.menus.ItemIcon(21), imageIndex("NEW"));
  EXPECT_EQ(form.menus.ItemIcon(23), -1);
  EXPECT_FALSE(form.menus.isEnabled(23));
  EXPECT_TRUE(form.menus.isChecked(23));
  EXPECT_EQ(GetMenuItemCount(form.menus.popup(title)), 4);
  EXPECT_NE(GetMenuState(form.menus.popup(title), 1, MF_BYPOSITION) & MF_SEPARATOR, 0u);

  LIBRARY().ICOMNUSETUP(form, form, 23, "");
  EXPECT_EQ(form.menus.ItemIcon(23), -1);
  LIBRARY().ICOMNUSETUP(form, form, 23, "EXIT");
  EXPECT_EQ(form.menus.ItemIcon(23), imageIndex("EXIT"));
  EXPECT_THROW(LIBRARY().ICOMNUSETUP(form, form, 23, "NO SUCH KEY"), windowing::RuntimeError);
}

TEST(LibraryMenus, DescribesItems) {
  MenuForm form("frmMain");
  fill(form);
  const auto describe = [&](int number, bool clear) {
    LIBRARY().STATUSTEXTDESC(form, form, number, clear, "tellary");
    return form.status();
  };
  EXPECT_EQ(describe(21, false), "Create a new tellary.");
  EXPECT_EQ(describe(24, false), "Create a new tellary.") << "unknown: nothing new";
  EXPECT_EQ(describe(21, true), "") << "the flag clears";
  EXPECT_EQ(describe(23, false), "Close the current document.");
  EXPECT_EQ(describe(0, true), "");
  EXPECT_THROW(describe(99, false), windowing::RuntimeError);
}

TEST(LibraryMenus, PreviewAndPopUpReadTheItemOfTheStatusForm) {
  MenuForm main("frmMain");
  fill(main);
  MenuForm preview("frmPPrev");
  fill(preview);
  preview.menus.CAPTION(21, "&Add");
  LIBRARY().STATUSTEXTDESC(preview, main, 21, false, "tellary");
  EXPECT_EQ(main.status(), "Create a new tellary.") << "the item of the form with the text";
  LIBRARY().STATUSTEXTDESC(preview, preview, 23, false, "tellary");
  EXPECT_EQ(preview.status(), "Close Print Preview.");

  MenuForm popup("frmPopup");
  LIBRARY().STATUSTEXTDESC(popup, main, 23, false, "tellary");
  EXPECT_EQ(main.status(), "Close the current document.");
  MenuForm other("frmOther");
  EXPECT_THROW(LIBRARY().STATUSTEXTDESC(other, main, 23, false, "tellary"),
               windowing::RuntimeError);
}

}  // namespace
