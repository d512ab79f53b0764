// Which commands are available for the contacts there are. Menu, toolbar, shortcuts and tests ask
// here; only Save does not, for it is the modified state itself.
#pragma once

namespace mainwindow {

/// What availability follows from: the number of contacts and the index of the one on screen
/// (from 0).
struct CommandState {
  int count = 0;
  int current = 0;
};

/// Whether the main window's command `id` is available; a command without a rule always is.
[[nodiscard]] bool commandAvailable(int id, const CommandState& state);

/// Whether the name box takes a choice.
[[nodiscard]] bool nameBoxAvailable(const CommandState& state);

}  // namespace mainwindow
