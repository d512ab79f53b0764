// The commands of the main window, their menus, and which of them are available.
#pragma once

#include <array>
#include <optional>

#include "library/command.h"
#include "mainwindow/frmMain_ids.h"

namespace mainwindow {

// clang-format off
constexpr auto mainCommands = [] {
  using library::closesWindow, library::line, library::menuBar;
  using library::Command, library::Held, library::Key;
  using enum library::ToolButton;
  enum { fileMenu = 1, editMenu, viewMenu, goToMenu, helpMenu };

  return std::to_array<Command>({
    {fileMenu, menuBar, "MNUFILETOP", "&File"},
    {id::NEW,          fileMenu, "MNUFILENEW",          "&New",         "NEW",           plain},
    {id::OPEN,         fileMenu, "MNUFILEOPEN",         "&Open...",     "OPEN",          plain},
    {line,             fileMenu, "MNUFILESEP1"},
    {id::SAVE,         fileMenu, "MNUFILESAVE",         "&Save",        "SAVE",          plain},
    {id::SAVEAS,       fileMenu, "MNUFILESAVEAS",       "Save &As...",  "SAVE AS",       plain},
    {line,             fileMenu, "MNUFILESEP2"},
    {id::PRINT,        fileMenu, "MNUFILEPRINT",        "&Print...",    "PRINT",         afterGap},
    {id::PRINTPREVIEW, fileMenu, "MNUFILEPRINTPREVIEW", "Print Pre&view", "PRINT PREVIEW", plain},
    {id::PAGESETUP,    fileMenu, "MNUFILEPAGESETUP",    "Page Set&up..."},
    {line,             fileMenu, "MNUFILESEP3"},
    {id::EXIT,         fileMenu, "MNUFILEEXIT",         "E&xit",        "", none, closesWindow},

    {editMenu, menuBar, "MNUEDITTOP", "&Edit"},
    {id::ADD,    editMenu, "MNUEDITADD",    "&Add",    "ADD",    afterGap, {Key::insert}},
    {id::REMOVE, editMenu, "MNUEDITREMOVE", "&Remove", "REMOVE", plain, {Key::del, Held::control}},

    {viewMenu, menuBar, "MNUVIEWTOP", "&View"},
    {id::STANDARDBAR,  viewMenu, "MNUVIEWSTANDARDBAR",  "&Standard Toolbar", "", none, {}, {id::PICMAINTBAR, library::Setting::standardToolbar}},
    {id::STATUSBAR,    viewMenu, "MNUVIEWSTATUSBAR",    "S&tatus Bar",       "", none, {}, {id::SBMAIN, library::Setting::statusBar}},
    {line,             viewMenu, "MNUVIEWSEP1"},
    {id::HEADERFOOTER, viewMenu, "MNUVIEWHEADERFOOTER", "&Header/Footer...", "HEADERFOOTER", afterGap},
    {id::PROPERTIES,   viewMenu, "MNUVIEWPROPERTIES",   "&Properties...",    "PROPERTIES"},

    // "Page" means a contact here.
    {goToMenu, menuBar, "MNUGOTOTOP", "&Go To"},
    {id::FIRST,    goToMenu, "MNUGOTOFIRST",    "&First Page",    "FIRST PAGE",    afterGap, {Key::home}},
    {id::PREVIOUS, goToMenu, "MNUGOTOPREVIOUS", "&Previous Page", "PREVIOUS PAGE", plain,    {Key::pageUp}},
    {id::NEXT,     goToMenu, "MNUGOTONEXT",     "&Next Page",     "NEXT PAGE",     plain,    {Key::pageDown}},
    {id::LAST,     goToMenu, "MNUGOTOLAST",     "&Last Page",     "LAST PAGE",     plain,    {Key::end}},

    {helpMenu, menuBar, "MNUHELPTOP", "&Help"},
    {id::WEBSITE, helpMenu, "MNUHELPWEBSITE", "&Zandor Online", "ZANDOR ONLINE"},
    {line,        helpMenu, "MNUHELPSEP1"},
    {id::ABOUT,   helpMenu, "MNUHELPABOUT",   "&About",         "ABOUT"},
  });
}();
// clang-format on

/// What decides which commands are available: the number of contacts, the index of the one on
/// screen (from 0), and the modified state, which is stored nowhere but as the enabled state of
/// Save.
struct CommandState {
  int count = 0;
  int current = 0;
  bool modified = false;
};

/// Whether a name can be chosen in the name box.
[[nodiscard]] constexpr bool nameBoxAvailable(const CommandState& state) {
  return state.count > 0;
}

/// Whether a command is available. No value for a number that is no command. The compiler reports a
/// command without a case here.
[[nodiscard]] constexpr std::optional<bool> availability(int command, const CommandState& state) {
  using enum mainwindow::id::MainCommand;
  switch (static_cast<mainwindow::id::MainCommand>(command)) {
    case NEW:
    case OPEN:
    case SAVEAS:
    case PAGESETUP:
    case EXIT:
    case ADD:
    case STANDARDBAR:
    case STATUSBAR:
    case HEADERFOOTER:
    case PROPERTIES:
    case WEBSITE:
    case ABOUT:
      return true;
    case SAVE:
      return state.modified;
    case PRINT:
    case PRINTPREVIEW:
    case REMOVE:
      return state.count > 0;
    case FIRST:
    case PREVIOUS:
      return state.count > 1 && state.current > 0;
    case NEXT:
    case LAST:
      return state.count > 1 && state.current < state.count - 1;
  }
  return std::nullopt;
}

static_assert(library::numbersAndNamesAreUnique(mainCommands));
static_assert(library::menusStandBeforeTheirItems(mainCommands));
static_assert(library::linesAreBare(mainCommands));
static_assert(library::picturesAreThere(mainCommands));
static_assert(library::shortcutsCanWork(mainCommands));
static_assert(library::holdsEveryCommand(mainCommands, mainwindow::id::NEW, [](int number) {
  return availability(number, {}).has_value();
}));

}  // namespace mainwindow
