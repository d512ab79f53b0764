// Paper and margins of a printed report.
#pragma once

#include "paper/printer_win.h"

namespace dialogs {

/// Size of a printer's paper and of the report's text on it, twips.
struct ReportPaper {
  double width = 0;
  double height = 0;
  double lineHeight = 0;
};

/// Paper in `printer`. Raises a printer error where no printer is installed.
[[nodiscard]] ReportPaper reportPaper(paper::Printer& printer);

/// The stored margins of printed pages, inches.
struct ReportMargins {
  double left = 1;
  double right = 1;
  double top = 1;
  double bottom = 1;
};

/// Raises type mismatch where a stored margin is no number.
[[nodiscard]] ReportMargins reportMargins();

}  // namespace dialogs
