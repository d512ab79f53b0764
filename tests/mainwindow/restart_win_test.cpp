// What the main window keeps in the settings for its next start.
#include <gtest/gtest.h>

#include "controls/ICOMNU_win.h"
#include "library/identifiers.h"
#include "library/own_keys_win.h"
#include "tests/support/main_window_win.h"

namespace {

namespace id = library::id;
using test_support::ScratchRegistry;

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
      EXPECT_EQ(visible, form.iconMenus().isChecked(command)) << name;
      if (visible) shown += name;
    }
    return shown;
  }
};

TEST_F(Restart, EachBarComesBackAsItWasLeft) {
  run(id::STATUSBAR);
  restart();
  EXPECT_EQ(bars(), "toolbar ");
  run(id::STATUSBAR);
  run(id::STANDARDBAR);
  restart();
  EXPECT_EQ(bars(), "status");
}

TEST_F(Restart, ABarWhoseSettingIsNoTruthValueIsShown) {
  for (const char* bar : {"Status Bar", "Standard Toolbar"})
    ScratchRegistry::putText(registry.user(), library::ownKey("\\frmMain\\View"), bar, "banana");
  restart();
  EXPECT_EQ(bars(), "toolbar status");
}

TEST_F(Restart, ThePlaceIsStoredWhenTheSessionEndsAndNotBefore) {
  for (const bool ends : {false, true}) {
    SendMessageA(form.handle(), WM_ENDSESSION, ends, 0);
    const std::string left =
        ScratchRegistry::text(registry.user(), library::ownKey("\\frmMain\\Window"), "Left");
    EXPECT_NE(left == "(none)", ends) << left;
  }
}

}  // namespace
