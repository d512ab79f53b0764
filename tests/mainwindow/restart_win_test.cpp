// What the main window keeps in the settings for its next start.
#include <gtest/gtest.h>

#include "dialogs/frmAbout_win.h"
#include "dialogs/frmProps_win.h"
#include "mainwindow/frmMain_ids.h"
#include "pagesetup/frmPSetup_win.h"
#include "printing/frmPPrev_win.h"
#include "tests/support/main_window_win.h"
#include "tests/support/printers_win.h"

namespace {

namespace id = mainwindow::id;
using library::Setting;

class Restart : public test_support::MainWindowTest {
 protected:
  void restart() {
    form.unload();
    form.load();
  }
  /// The bars that are shown and checked in the menu.
  [[nodiscard]] std::string bars() {
    std::string shown;
    for (const auto& [strip, command, name] :
         {std::tuple{id::PICMAINTBAR, id::STANDARDBAR, "toolbar "},
          {id::SBMAIN, id::STATUSBAR, "status"}}) {
      const bool visible =
          (GetWindowLongA(form.control(strip).handle(), GWL_STYLE) & WS_VISIBLE) != 0;
      EXPECT_EQ(visible, form.commandChecked(command)) << name;
      if (visible) shown += name;
    }
    return shown;
  }
};

TEST_F(Restart, BarsAndPlaceComeBackAsTheyWereLeft) {
  RECT full = form.outerPixels();
  OffsetRect(&full, 123 - full.left, 77 - full.top);
  form.moveOuter(full);
  EXPECT_EQ(registry.stored(Setting::statusBar), "(none)") << "stored when switched, not before";
  run(id::STATUSBAR);
  EXPECT_EQ(registry.stored(Setting::statusBar), "False");
  const RECT lower = form.outerPixels();
  EXPECT_LT(lower.bottom, full.bottom);
  restart();
  EXPECT_EQ(bars(), "toolbar ");
  EXPECT_EQ(form.outerPixels().bottom, lower.bottom);
  run(id::STATUSBAR);
  run(id::STANDARDBAR);
  EXPECT_LT(form.outerPixels().bottom, full.bottom);
  restart();
  EXPECT_EQ(bars(), "status");
  run(id::STANDARDBAR);
  const RECT again = form.outerPixels();
  EXPECT_TRUE(EqualRect(&again, &full)) << "nothing creeps";
}

TEST_F(Restart, EveryFormOpensWhateverTheSettingsAre) {
  const test_support::TestPrinters printers;
  const test_support::RawValue hostile[] = {{REG_DWORD, "\1\2\3\4"},
                                            {REG_SZ, std::string(70000, '9')},
                                            {REG_SZ, std::string(1, '\0')},
                                            {REG_SZ, std::string("banana\0", 7)},
                                            {REG_SZ, std::string("-1440\0", 6)},
                                            {REG_SZ, std::string("99999\0", 6)}};
  for (const test_support::RawValue& value : hostile) {
    for (const library::SettingRow& row : library::settings)
      for (const char* place : {"frmMain", "frmPSetup", library::sharedPlace})
        test_support::ScratchRegistry::put(registry.rootOf(row.setting),
                                           library::keyOf(row.setting, place), row.name, value.type,
                                           value.bytes);
    restart();
    EXPECT_EQ(bars(), "toolbar status");
    EXPECT_NO_THROW(pagesetup::frmPSetup().load());
    EXPECT_NO_THROW(dialogs::frmProps().load());
    EXPECT_NO_THROW(dialogs::frmAbout().load());
    EXPECT_NO_THROW(printing::thePreview().load());
    EXPECT_NO_THROW(printing::thePreview().restorePlace());
    EXPECT_TRUE(printing::thePreview().unload());
  }
}

TEST_F(Restart, ThePlaceIsStoredWhenTheSessionEndsAndNotBefore) {
  for (const bool ends : {false, true}) {
    SendMessageA(form.handle(), WM_ENDSESSION, ends, 0);
    const std::string left = registry.stored(Setting::windowLeft, "frmMain");
    EXPECT_NE(left == "(none)", ends) << left;
  }
}

}  // namespace
