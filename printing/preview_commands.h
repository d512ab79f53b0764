// The menus and commands of the preview, as data.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "library/identifiers.h"

namespace printing {

// Numbers of menus; commands have the number they send.
constexpr int fileMenu = 1;
constexpr int viewMenu = 2;
constexpr int zoomMenu = 3;
constexpr int goToMenu = 4;
constexpr int helpMenu = 5;
constexpr int menuBar = 0;
constexpr int noMenu = -1;

struct PreviewCommand {
  int number;
  int menu;  ///< the menu it stands in; `noMenu` for what is only on the toolbar
  std::string_view name;
  std::string_view caption;   ///< "&" marks the access key
  std::string_view shortcut;  ///< text shown behind the caption; may be empty
  std::string_view key;       ///< names the toolbar button and the picture; may be empty
  bool onToolbar = false;
};

namespace id = library::id::preview;

/// Menus and commands in menu order, each menu before what stands in it. The buttons of the
/// toolbar have the same order.
constexpr std::array<PreviewCommand, 24> previewCommands = {{
    {fileMenu, menuBar, "MNUFILETOP", "&File", "", ""},
    {id::PRINT, fileMenu, "MNUFILEPRINT", "&Print...", "", "PRINT", true},
    {id::CLOSE, fileMenu, "MNUFILEEXIT", "&Close", "Alt+F4", ""},
    {viewMenu, menuBar, "MNUVIEWTOP", "&View", "", ""},
    {id::TOOLBAR, viewMenu, "MNUVIEWTOOLBAR", "&Standard Toolbar", "", ""},
    {id::STATUSBAR, viewMenu, "MNUVIEWSTATUSBAR", "S&tatus Bar", "", ""},
    {zoomMenu, viewMenu, "MNUZOOMTOP", "&Zoom", "", ""},
    // From large to small, while the list goes from small to large: deliberate.
    {id::ZOOM200, zoomMenu, "MNUZOOM200", "200 %", "", ""},
    {id::ZOOM150, zoomMenu, "MNUZOOM150", "150 %", "", ""},
    {id::ZOOM100, zoomMenu, "MNUZOOM100", "100 %", "", ""},
    {id::ZOOM75, zoomMenu, "MNUZOOM75", "75 %", "", ""},
    {id::ZOOM50, zoomMenu, "MNUZOOM50", "50 %", "", ""},
    {id::ZOOM25, zoomMenu, "MNUZOOM25", "25 %", "", ""},
    {id::ZOOMPW, zoomMenu, "MNUZOOMPW", "&Page Width", "", ""},
    {id::ZOOMWP, zoomMenu, "MNUZOOMWP", "&Whole Page", "", ""},
    {goToMenu, menuBar, "MNUGOTOP", "&Go To", "", ""},
    {id::FIRST, goToMenu, "MNUVIEWFIRST", "&First Page", "Home", "FIRST PAGE", true},
    {id::PREVIOUS, goToMenu, "MNUVIEWPREVIOUS", "&Previous Page", "PgUp", "PREVIOUS PAGE", true},
    {id::NEXT, goToMenu, "MNUVIEWNEXT", "&Next Page", "PgDn", "NEXT PAGE", true},
    {id::LAST, goToMenu, "MNUVIEWLAST", "&Last Page", "End", "LAST PAGE", true},
    {helpMenu, menuBar, "MNUHELPTOP", "&Help", "", ""},
    {id::ABOUT, helpMenu, "MNUHELPABOUT", "&About", "", "ABOUT"},
    {id::ZOOMOUT, noMenu, "", "&Zoom Out", "", "ZOOM OUT", true},
    {id::ZOOMIN, noMenu, "", "&Zoom In", "", "ZOOM IN", true},
}};

/// The command or menu with this number; null where there is none.
[[nodiscard]] constexpr const PreviewCommand* findPreviewCommand(int number) {
  for (const PreviewCommand& command : previewCommands)
    if (command.number == number) return &command;
  return nullptr;
}

/// Caption as the menu shows it: with a tab and the shortcut's text behind it where it has one.
[[nodiscard]] inline std::string menuCaption(const PreviewCommand& command) {
  std::string text(command.caption);
  if (!command.shortcut.empty()) text += '\t' + std::string(command.shortcut);
  return text;
}

namespace detail {
constexpr bool menusStandBeforeTheirCommands() {
  for (std::size_t i = 0; i < previewCommands.size(); ++i) {
    bool known = previewCommands[i].menu <= menuBar;
    for (std::size_t j = 0; j < i; ++j) {
      if (previewCommands[j].number == previewCommands[i].number) return false;
      known = known || previewCommands[j].number == previewCommands[i].menu;
    }
    if (!known) return false;
  }
  return true;
}
static_assert(menusStandBeforeTheirCommands());
}  // namespace detail

}  // namespace printing
