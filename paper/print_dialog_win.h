// The print dialog: it shows the program's current printer, and changes it to the user's choice.
#pragma once

#include <windows.h>

#include <commdlg.h>

namespace paper {

/// The settings that the dialog shows at first, and the user's choices afterwards. Page numbers
/// count from 1.
class PrintDialog {
 public:
  DWORD flags = 0;  ///< PD_ flags; after `show`, as the dialog left them
  int fromPage = 0;
  int toPage = 0;
  int max = 0;  ///< last page that can be chosen
  int copies = 1;
  bool cancelError = false;

  /// Shows the dialog above the active window of the program; all other windows are disabled
  /// meanwhile. True for OK. When the user cancels: false, or where `cancelError` is set, raises
  /// cancelled. Raises a printer error when the dialog cannot be shown.
  bool show();
  /// Whether the user chose a range of pages, not all.
  [[nodiscard]] bool rangeChosen() const { return (flags & PD_PAGENUMS) != 0; }
};

}  // namespace paper
