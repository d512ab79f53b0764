// The commands of the preview, their menus, and which of them are available.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "library/command.h"
#include "printing/frmPPrev_ids.h"
#include "printing/zoom.h"

namespace printing {

// clang-format off
constexpr auto previewCommands = [] {
  using library::closesWindow, library::menuBar, library::noMenu;
  using library::Command, library::Key;
  using enum library::ToolButton;
  enum { fileMenu = 1, viewMenu, zoomMenu, goToMenu, helpMenu };

  return std::to_array<Command>({
    {fileMenu, menuBar, "MNUFILETOP", "&File"},
    {id::PRINT, fileMenu, "MNUFILEPRINT", "&Print...", "PRINT", plain},
    {id::CLOSE, fileMenu, "MNUFILEEXIT",  "&Close",    "",      none, closesWindow},

    {viewMenu, menuBar, "MNUVIEWTOP", "&View"},
    {id::TOOLBAR,   viewMenu, "MNUVIEWTOOLBAR",   "&Standard Toolbar", "", none, {}, {id::PICTBAR, library::Setting::previewToolbar}},
    {id::STATUSBAR, viewMenu, "MNUVIEWSTATUSBAR", "S&tatus Bar",       "", none, {}, {id::SBMAIN, library::Setting::previewStatusBar}},
    {zoomMenu,      viewMenu, "MNUZOOMTOP",       "&Zoom"},
    // Deliberate: the menu goes from large to small, the list from small to large.
    {id::ZOOM200, zoomMenu, "MNUZOOM200", "200 %"},
    {id::ZOOM150, zoomMenu, "MNUZOOM150", "150 %"},
    {id::ZOOM100, zoomMenu, "MNUZOOM100", "100 %"},
    {id::ZOOM75,  zoomMenu, "MNUZOOM75",  "75 %"},
    {id::ZOOM50,  zoomMenu, "MNUZOOM50",  "50 %"},
    {id::ZOOM25,  zoomMenu, "MNUZOOM25",  "25 %"},
    {id::ZOOMPW,  zoomMenu, "MNUZOOMPW",  "&Page Width"},
    {id::ZOOMWP,  zoomMenu, "MNUZOOMWP",  "&Whole Page"},

    {goToMenu, menuBar, "MNUGOTOP", "&Go To"},
    {id::FIRST,    goToMenu, "MNUVIEWFIRST",    "&First Page",    "FIRST PAGE",    afterGap, {Key::home}},
    {id::PREVIOUS, goToMenu, "MNUVIEWPREVIOUS", "&Previous Page", "PREVIOUS PAGE", plain,    {Key::pageUp}},
    {id::NEXT,     goToMenu, "MNUVIEWNEXT",     "&Next Page",     "NEXT PAGE",     plain,    {Key::pageDown}},
    {id::LAST,     goToMenu, "MNUVIEWLAST",     "&Last Page",     "LAST PAGE",     plain,    {Key::end}},

    {helpMenu, menuBar, "MNUHELPTOP", "&Help"},
    {id::ABOUT, helpMenu, "MNUHELPABOUT", "&About", "ABOUT"},

    {id::ZOOMOUT, noMenu, "", "&Zoom Out", "ZOOM OUT", afterGap},
    {id::ZOOMIN,  noMenu, "", "&Zoom In",  "ZOOM IN",  plain},
  });
}();
// clang-format on

/// What decides which commands are available: the number of pages, the index of the page shown
/// (from 0), and the text of the zoom.
struct PreviewState {
  int count = 0;
  int current = 0;
  std::string_view zoom = {};
};

/// Whether a command is available. No value for a number that is no command. The compiler reports a
/// command without a case here.
[[nodiscard]] constexpr std::optional<bool> availability(int command, const PreviewState& state) {
  using enum printing::id::Command;
  switch (static_cast<printing::id::Command>(command)) {
    case PRINT:
    case CLOSE:
    case TOOLBAR:
    case STATUSBAR:
    case ZOOM200:
    case ZOOM150:
    case ZOOM100:
    case ZOOM75:
    case ZOOM50:
    case ZOOM25:
    case ZOOMPW:
    case ZOOMWP:
    case ABOUT:
      return true;
    case FIRST:
    case PREVIOUS:
      return state.current > 0;
    case NEXT:
    case LAST:
      return state.current < state.count - 1;
    case ZOOMOUT:
      return zoomedOut(state.zoom) != state.zoom;
    case ZOOMIN:
      return zoomedIn(state.zoom) != state.zoom;
  }
  return std::nullopt;
}

static_assert(library::numbersAndNamesAreUnique(previewCommands));
static_assert(library::menusStandBeforeTheirItems(previewCommands));
static_assert(library::linesAreBare(previewCommands));
static_assert(library::picturesAreThere(previewCommands));
static_assert(library::shortcutsCanWork(previewCommands));
static_assert(library::holdsEveryCommand(previewCommands, printing::id::PRINT, [](int number) {
  return availability(number, {}).has_value();
}));

}  // namespace printing
