// The print dialog: it starts from the program's current printer and gives its choice back to
// it.
#pragma once

#include <windows.h>

#include <commdlg.h>

#include <functional>

namespace paper {

/// What the dialog is opened with, and what it left behind. Page numbers run from 1.
class PrintDialog {
 public:
  DWORD flags = 0;  ///< PD_ flags; after `show`, as the dialog left them
  int fromPage = 0;
  int toPage = 0;
  int max = 0;  ///< last page that can be asked for
  int copies = 1;
  bool cancelError = false;

  /// Shows the dialog above the active window of the program; everything else takes no input
  /// meanwhile. Raises cancelled when the user cancels and `cancelError` says so, else returns
  /// whether the user agreed. Raises a printer error when the dialog cannot be shown.
  bool show();
  /// Whether a range of pages was chosen, not everything.
  [[nodiscard]] bool rangeChosen() const { return (flags & PD_PAGENUMS) != 0; }
};

/// The system's dialog; a test replaces it.
[[nodiscard]] std::function<BOOL(PRINTDLGA&)>& printDialogSeam();

}  // namespace paper
