// The commands of a form in one table: its menus, toolbar, shortcuts, descriptions and the bars
// that the user shows and hides are all made from it.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "library/images.h"
#include "library/settings.h"
#include "library/shortcut.h"

namespace library {

// Parents of rows that are in no menu: the titles on the menu bar, and commands that are on the
// toolbar only.
constexpr int menuBar = 0;
constexpr int noMenu = -1;
/// Number of a separator line. Its row has only a parent and a name.
constexpr int line = 0;

enum class ToolButton { none, plain, afterGap };

/// A bar that a command shows and hides, and the setting that stores whether it is shown.
struct Bar {
  int control = 0;
  Setting setting = {};
};

/// A command, a menu (a row that others name as their parent) or a separator line.
struct Command {
  int number;  ///< identifies a command in the program, a menu in its table
  int parent;
  std::string_view name;
  std::string_view caption = {};  ///< "&" marks the access key
  std::string_view picture = {};  ///< key of the picture, and of the toolbar button
  ToolButton button = ToolButton::none;
  Shortcut shortcut = {};
  Bar bar = {};
};

/// A form's rows in the order of menus and toolbar.
using Commands = std::span<const Command>;

/// The row with this number; null where there is none.
[[nodiscard]] constexpr const Command* findCommand(Commands commands, int number) {
  for (const Command& command : commands)
    if (command.number == number && number != line) return &command;
  return nullptr;
}

// What the compiler checks of a table.

constexpr bool numbersAndNamesAreUnique(Commands commands) {
  for (const Command& a : commands)
    for (const Command& b : commands) {
      if (&a == &b) continue;
      if (a.number == b.number && a.number != line) return false;
      if (a.name == b.name && a.parent != noMenu) return false;
    }
  return true;
}

constexpr bool menusStandBeforeTheirItems(Commands commands) {
  for (std::size_t i = 0; i < commands.size(); ++i) {
    const int parent = commands[i].parent;
    if (parent > menuBar && findCommand(commands.first(i), parent) == nullptr) return false;
  }
  return true;
}

constexpr bool linesAreBare(Commands commands) {
  for (const Command& row : commands) {
    const bool bare = row.caption.empty() && row.picture.empty() && row.bar.control == 0 &&
                      row.shortcut == Shortcut{} && row.button == ToolButton::none;
    if (bare != (row.number == line) || (bare && row.parent <= menuBar)) return false;
  }
  return true;
}

constexpr bool picturesAreThere(Commands commands) {
  for (const Command& row : commands) {
    if (row.button != ToolButton::none && row.picture.empty()) return false;
    if (!row.picture.empty() && imageIndex(row.picture) < 0) return false;
  }
  return true;
}

constexpr bool shortcutsCanWork(Commands commands) {
  for (const Command& a : commands) {
    const auto [key, held] = a.shortcut;
    if (key == Key::none) continue;
    // Windows uses keys with Alt itself. A letter without Ctrl is typed into a box.
    if (held == Held::alt && a.shortcut != closesWindow) return false;
    if (held == Held::nothing && designOf(key).text.empty()) return false;
    for (const Command& b : commands)
      if (&a != &b && a.shortcut == b.shortcut) return false;
  }
  return true;
}

/// Whether the table has a row for each number that `isCommand` accepts, and no other row.
template <typename IsCommand>
constexpr bool holdsEveryCommand(Commands commands, int first, IsCommand isCommand) {
  constexpr int range = 100;  // the numbers reserved for the commands of one form
  for (int number = first; number < first + range; ++number)
    if (isCommand(number) != (findCommand(commands, number) != nullptr)) return false;
  return true;
}

}  // namespace library
