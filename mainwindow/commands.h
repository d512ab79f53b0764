// The commands of the main window and their menus. Toolbar, menus, shortcuts and availability
// walk these tables.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "library/identifiers.h"

namespace mainwindow {

struct Command {
  int id;
  std::string_view key;       ///< names the toolbar button and the icon; empty without either
  std::string_view menuItem;  ///< the menu item's name
  std::string_view caption;   ///< "&" marks the access key
  std::string_view shortcut;  ///< text shown behind the caption; may be empty
  bool onToolbar = false;
  bool hasCheckMark = false;
};

/// All commands in menu order, which is also the order of their keys and toolbar buttons.
constexpr std::array<Command, 20> commands = {{
    {library::id::NEW, "NEW", "MNUFILENEW", "&New", "", true},
    {library::id::OPEN, "OPEN", "MNUFILEOPEN", "&Open...", "", true},
    {library::id::SAVE, "SAVE", "MNUFILESAVE", "&Save", "", true},
    {library::id::SAVEAS, "SAVE AS", "MNUFILESAVEAS", "Save &As...", "", true},
    {library::id::PRINT, "PRINT", "MNUFILEPRINT", "&Print...", "", true},
    {library::id::PRINTPREVIEW, "PRINT PREVIEW", "MNUFILEPRINTPREVIEW", "Print Pre&view", "", true},
    {library::id::PAGESETUP, "", "MNUFILEPAGESETUP", "Page Set&up...", ""},
    {library::id::EXIT, "", "MNUFILEEXIT", "E&xit", "Alt+F4"},
    {library::id::ADD, "ADD", "MNUEDITADD", "&Add", "Ins", true},
    {library::id::REMOVE, "REMOVE", "MNUEDITREMOVE", "&Remove", "Ctrl+Del", true},
    {library::id::STANDARDBAR, "", "MNUVIEWSTANDARDBAR", "&Standard Toolbar", "", false, true},
    {library::id::STATUSBAR, "", "MNUVIEWSTATUSBAR", "S&tatus Bar", "", false, true},
    {library::id::HEADERFOOTER, "HEADERFOOTER", "MNUVIEWHEADERFOOTER", "&Header/Footer...", "",
     true},
    {library::id::PROPERTIES, "PROPERTIES", "MNUVIEWPROPERTIES", "&Properties...", ""},
    // One page is one contact.
    {library::id::FIRST, "FIRST PAGE", "MNUGOTOFIRST", "&First Page", "Home", true},
    {library::id::PREVIOUS, "PREVIOUS PAGE", "MNUGOTOPREVIOUS", "&Previous Page", "PgUp", true},
    {library::id::NEXT, "NEXT PAGE", "MNUGOTONEXT", "&Next Page", "PgDn", true},
    {library::id::LAST, "LAST PAGE", "MNUGOTOLAST", "&Last Page", "End", true},
    {library::id::WEBSITE, "ZANDOR ONLINE", "MNUHELPWEBSITE", "&Zandor Online", ""},
    {library::id::ABOUT, "ABOUT", "MNUHELPABOUT", "&About", ""},
}};

/// One line of a menu: a command, or a separator (no command) with its name.
struct MenuLine {
  int command = 0;
  std::string_view separator;
};

struct Menu {
  std::string_view name;
  std::string_view caption;
  std::size_t first;  ///< its first line in `menuLines`
  std::size_t count;
};

constexpr std::array<MenuLine, 25> menuLines = {{
    {library::id::NEW, ""},    {library::id::OPEN, ""},         {0, "MNUFILESEP1"},
    {library::id::SAVE, ""},   {library::id::SAVEAS, ""},       {0, "MNUFILESEP2"},
    {library::id::PRINT, ""},  {library::id::PRINTPREVIEW, ""}, {library::id::PAGESETUP, ""},
    {0, "MNUFILESEP3"},        {library::id::EXIT, ""},         {library::id::ADD, ""},
    {library::id::REMOVE, ""}, {library::id::STANDARDBAR, ""},  {library::id::STATUSBAR, ""},
    {0, "MNUVIEWSEP1"},        {library::id::HEADERFOOTER, ""}, {library::id::PROPERTIES, ""},
    {library::id::FIRST, ""},  {library::id::PREVIOUS, ""},     {library::id::NEXT, ""},
    {library::id::LAST, ""},   {library::id::WEBSITE, ""},      {0, "MNUHELPSEP1"},
    {library::id::ABOUT, ""},
}};

constexpr std::array<Menu, 5> menus = {{
    {"MNUFILETOP", "&File", 0, 11},
    {"MNUEDITTOP", "&Edit", 11, 2},
    {"MNUVIEWTOP", "&View", 13, 5},
    {"MNUGOTOTOP", "&Go To", 18, 4},
    {"MNUHELPTOP", "&Help", 22, 3},
}};

/// The command with identifier `id`; null where there is none.
[[nodiscard]] constexpr const Command* findCommand(int id) {
  for (const Command& command : commands)
    if (command.id == id) return &command;
  return nullptr;
}

/// The command whose key is exactly `key`; null where there is none, as for an empty key.
[[nodiscard]] constexpr const Command* findCommand(std::string_view key) {
  for (const Command& command : commands)
    if (!key.empty() && command.key == key) return &command;
  return nullptr;
}

/// Caption as the menu shows it: with a tab and the shortcut's text behind it where it has one.
[[nodiscard]] inline std::string menuCaption(const Command& command) {
  std::string text(command.caption);
  if (!command.shortcut.empty()) text += '\t' + std::string(command.shortcut);
  return text;
}

namespace detail {

constexpr bool commandsAreUnique() {
  for (std::size_t i = 0; i < commands.size(); ++i)
    for (std::size_t j = 0; j < i; ++j) {
      const Command &a = commands[i], &b = commands[j];
      if (a.id == b.id || a.menuItem == b.menuItem || (!a.key.empty() && a.key == b.key))
        return false;
    }
  return true;
}

/// The menus cover their lines without gap, and the lines hold every command once, in order.
constexpr bool menusHoldEveryCommand() {
  std::size_t line = 0;
  for (const Menu& menu : menus) {
    if (menu.first != line) return false;
    line += menu.count;
  }
  std::size_t command = 0;
  for (const MenuLine& entry : menuLines) {
    if ((entry.command == 0) == entry.separator.empty()) return false;
    if (entry.command == 0) continue;
    if (command == commands.size() || commands[command].id != entry.command) return false;
    ++command;
  }
  return line == menuLines.size() && command == commands.size();
}

template <typename Which>
constexpr std::size_t countCommands(Which which) {
  std::size_t count = 0;
  for (const Command& command : commands)
    if (which(command)) ++count;
  return count;
}

static_assert(commandsAreUnique());
static_assert(menusHoldEveryCommand());
static_assert(countCommands([](const Command& c) { return !c.key.empty(); }) == 16);
static_assert(countCommands([](const Command& c) { return c.onToolbar; }) == 13);
static_assert(countCommands([](const Command& c) { return !c.shortcut.empty(); }) == 7);

}  // namespace detail
}  // namespace mainwindow
