// Which commands are available. Menu, toolbar, shortcuts and tests ask here.
#pragma once

namespace mainwindow {

/// What availability follows from: the number of contacts, the index of the one on screen
/// (from 0), and whether the document is modified.
struct CommandState {
  int count = 0;
  int current = 0;
  bool modified = false;
};

/// Whether the main window's command `id` is available; a command without a rule always is.
[[nodiscard]] bool commandAvailable(int id, const CommandState& state);

/// Whether the name box takes a choice.
[[nodiscard]] bool nameBoxAvailable(const CommandState& state);

}  // namespace mainwindow
