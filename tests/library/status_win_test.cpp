#include <gtest/gtest.h>

#include <windows.h>

#include <commctrl.h>

#include "library/clsLibrary_win.h"
#include "library/modLibrary_win.h"
#include "tests/support/plain_form_win.h"
#include "values/runtime_error.h"
#include "windowing/handle_text_win.h"

namespace library {
namespace {

using test_support::PlainForm;
using windowing::handleText;

TEST(StatusBar, CaptionsEndInOneFullStop) {
  PlainForm form;
  form.load();
  const windowing::StatusBar bar(form.control("SBMAIN").handle());
  const std::pair<const char*, const char*> rows[] = {
      {"Create", "Create."}, {"3 of 12 contacts.", "3 of 12 contacts."}, {"", ""}, {" ", " ."}};
  for (const auto& [text, expected] : rows) {
    LIBRARY().STATUSBARCAPTION(form, text, false);
    EXPECT_EQ(bar.panel(), expected);
  }
  LIBRARY().describeSystemCommand(form, SC_MINIMIZE);
  EXPECT_EQ(bar.panel(), "Reduce the window to an icon.");
  PlainForm none("frmNone", std::span(test_support::plainFormControls).first(1));
  EXPECT_THROW(LIBRARY().STATUSBARCAPTION(none, "x", false), values::RuntimeError);
}

// Whole rows that the open list shows.
int droppedRows(const windowing::ComboBox& combo) {
  COMBOBOXINFO info{};
  info.cbSize = sizeof info;
  GetComboBoxInfo(combo.handle(), &info);
  RECT list{};
  GetClientRect(info.hwndList, &list);
  return list.bottom / static_cast<int>(SendMessageA(info.hwndList, LB_GETITEMHEIGHT, 0, 0));
}

TEST(Combos, OpenTallEnoughAndStayClosedAsTheyWere) {
  PlainForm form;
  form.show();
  const windowing::ComboBox combo(form.control("CBONAMES").handle());
  for (int i = 0; i < 40; ++i) combo.add("entry");
  const RECT before = combo.pixels();
  LIBRARY().COMBOINIT(handleText(combo.handle()), "15", combo, false);
  const RECT after = combo.pixels();
  EXPECT_TRUE(EqualRect(&before, &after));
  combo.send(CB_SHOWDROPDOWN, TRUE);
  EXPECT_EQ(droppedRows(combo), 15);
  combo.send(CB_SHOWDROPDOWN, FALSE);
  // The box takes the width of its list.
  combo.send(CB_SETDROPPEDWIDTH, static_cast<WPARAM>(after.right - after.left + 40));
  LIBRARY().COMBOINIT(handleText(combo.handle()), "15", combo, false);
  EXPECT_EQ(combo.pixels().right, after.right + 40);
  for (const char* count : {"", "many", "99999999999"})
    EXPECT_THROW(LIBRARY().COMBOINIT(handleText(combo.handle()), count, combo, false),
                 values::RuntimeError);
}

TEST(Combos, FlatHelpersOutliveTheirWindow) {
  for (int i = 0; i < 20; ++i) {
    PlainForm form;
    form.show();
    const windowing::ComboBox combo(form.control("CBONAMES").handle());
    LIBRARY().COMBOINIT(handleText(combo.handle()), "15", combo, true);
    EXPECT_EQ(modLibrary().flatCombos.back()->combo(), combo.handle());
    combo.send(WM_MOUSEMOVE);
    combo.send(WM_MOUSELEAVE);
    form.unload();
    EXPECT_EQ(modLibrary().flatCombos.back()->combo(), nullptr);
  }
}

}  // namespace
}  // namespace library
