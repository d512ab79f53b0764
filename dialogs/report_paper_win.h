// The paper that a report would be printed on.
#pragma once

#include "paper/printer_win.h"

namespace dialogs {

/// Paper of a printer and the report's type on it, twips.
struct ReportPaper {
  double width = 0;
  double height = 0;
  double lineHeight = 0;
};

/// Paper in `printer`. Raises a printer error where no printer is installed.
[[nodiscard]] ReportPaper reportPaper(paper::Printer& printer);

/// The margins of printed pages as they are stored, inches.
struct ReportMargins {
  double left = 1;
  double right = 1;
  double top = 1;
  double bottom = 1;
};

/// Raises type mismatch where a stored margin is no number.
[[nodiscard]] ReportMargins reportMargins();

}  // namespace dialogs
