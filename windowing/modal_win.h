// Modality across the whole program: while a box, a common dialog or a modal form is open,
// every other window of the program takes no input.
#pragma once

#include <windows.h>

#include <vector>

namespace windowing {

/// Disables every enabled top-level window of the calling thread except `except` (a common dialog
/// disables its owner itself), and enables them again at the end of the scope.
class DisabledOthers {
 public:
  explicit DisabledOthers(HWND except);
  DisabledOthers(const DisabledOthers&) = delete;
  DisabledOthers& operator=(const DisabledOthers&) = delete;
  ~DisabledOthers() { enable(); }
  /// Enables them before the end of the scope. A modal window calls this before it is destroyed;
  /// otherwise another program would come to the front.
  void enable();

 private:
  std::vector<HWND> disabled_;
};

/// Owner for a box or dialog: the active window of the program, or the main window when no
/// window of the program is active (null before there is one).
[[nodiscard]] HWND dialogOwner();
void setMainWindow(HWND window);
[[nodiscard]] HWND mainWindow();

}  // namespace windowing
