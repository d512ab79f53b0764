#include <gtest/gtest.h>

#include <windows.h>

#include <commctrl.h>

#include "library/clsLibrary_win.h"
#include "library/modLibrary_win.h"
#include "tests/support/plain_form_win.h"
#include "windowing/handle_text_win.h"
#include "windowing/runtime_error.h"

namespace library {
namespace {

using test_support::PlainForm;
using windowing::handleText;

TEST(StatusBar, CaptionsEndInOneFullStop) {
  PlainForm form;
  form.load();
  const windowing::StatusBar bar(form.control("SBMAIN").handle());
  const std::pair<std::string, std::string> rows[] = {
      {"Create a new tellary", "Create a new tellary."},
      {"3 of 12 contacts.", "3 of 12 contacts."},
      {"Obtaining settings...", "Obtaining settings..."},
      {"", ""},
      {" ", " ."},
      {std::string(200, 'x'), std::string(200, 'x') + "."}};
  for (const auto& [text, expected] : rows)
    for (const bool flag : {false, true}) {
      LIBRARY().STATUSBARCAPTION(form, text, flag);
      EXPECT_EQ(bar.panel(), expected);
    }
  LIBRARY().SYSTEMMENUDESC(form, SC_CLOSE);
  EXPECT_EQ(bar.panel(), "Close the current window and prompts to save the documents.");
  LIBRARY().SYSTEMMENUDESC(form, 61729);
  EXPECT_EQ(bar.panel(), "");

  PlainForm none("frmNone", std::span(test_support::plainFormControls).first(1));
  EXPECT_THROW(LIBRARY().STATUSBARCAPTION(none, "x", false), windowing::RuntimeError);
}

TEST(StatusBar, PointerInAnArea) {
  PlainForm form;
  form.load();
  form.moveOuter({100, 100, 500, 400});
  form.show();
  const auto pointAt = [&](int x, int y) {
    POINT point{x, y};
    ClientToScreen(form.handle(), &point);
    SetCursorPos(point.x, point.y);
    return LIBRARY().MOUSEMOVE(form, 20, 120, 40, 65) &&
           LIBRARY().MOUSEMOVEMDI(form, 20, 120, 40, 65);
  };
  EXPECT_TRUE(pointAt(20, 40));
  EXPECT_TRUE(pointAt(119, 64));
  EXPECT_FALSE(pointAt(19, 50));
  EXPECT_FALSE(pointAt(120, 50));
  EXPECT_FALSE(pointAt(50, 39));
  EXPECT_FALSE(pointAt(50, 65));
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
  form.load();
  form.show();
  const windowing::ComboBox combo(form.control("CBONAMES").handle());
  for (int i = 0; i < 40; ++i) combo.add("entry");
  const RECT before = combo.pixels();
  const int prepared = modLibrary().preparedCombos;
  LIBRARY().COMBOINIT(handleText(combo.handle()), "15", combo, false);
  EXPECT_EQ(modLibrary().preparedCombos, prepared + 1);
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
                 windowing::RuntimeError)
        << count;
}

TEST(Combos, FlatHelpersOutliveTheirWindow) {
  const int prepared = modLibrary().preparedCombos;
  for (int i = 0; i < 20; ++i) {
    PlainForm form;
    form.show();
    const windowing::ComboBox combo(form.control("CBONAMES").handle());
    LIBRARY().COMBOINIT(handleText(combo.handle()), "15", combo, true);
    EXPECT_EQ(modLibrary().flatCombos.back()->combo(), combo.handle());
    combo.send(WM_MOUSEMOVE);
    combo.send(WM_MOUSELEAVE);
    combo.repaint();
    UpdateWindow(combo.handle());
  }
  EXPECT_EQ(modLibrary().preparedCombos, prepared + 20);
  ASSERT_EQ(modLibrary().flatCombos.size(), static_cast<std::size_t>(prepared + 20));
  for (const auto& helper : modLibrary().flatCombos) {
    if (helper) {
      EXPECT_EQ(helper->combo(), nullptr);
    }
  }
}

TEST(Texts, NumbersFollowTheUsersDecimalSign) {
  char old[8] = {};
  GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, old, sizeof old);
  ASSERT_TRUE(SetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, ","));
  EXPECT_EQ(LIBRARY().TEXTJUSTIFY("1.25"), "1,3");
  EXPECT_EQ(LIBRARY().TEXTJUSTIFYCURRENCY("1,5"), "1,50");
  SetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, ".");
  EXPECT_EQ(LIBRARY().CURRENCYFMT("1.5"), "1.50");
  EXPECT_EQ(LIBRARY().TEXTJUSTIFY("none"), "");
  SetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, old);
}

TEST(Texts, AmountBoxTakesOneDecimalPoint) {
  PlainForm form;
  form.load();
  const windowing::TextBox box(form.control("TXTAMOUNT").handle());
  EXPECT_EQ(LIBRARY().TXTCURRENCYLOCK(box, '.'), '.');
  box.setText("1.5");
  EXPECT_EQ(LIBRARY().TXTCURRENCYLOCK(box, '.'), 0);
  EXPECT_EQ(LIBRARY().TXTCURRENCYLOCK(box, '7'), '7');
}

}  // namespace
}  // namespace library
