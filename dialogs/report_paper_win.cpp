#include "dialogs/report_paper_win.h"

#include <windows.h>

#include "library/clsLibrary_win.h"
#include "library/own_keys_win.h"
#include "paper/text_format.h"
#include "values/handles_win.h"
#include "values/number_text.h"
#include "values/units.h"
#include "values/user_locale_win.h"

namespace dialogs {
namespace {

// Margins are shared by all of the maker's products. The first of them is looked for where it is
// never written: the name of its key lacks a letter, deliberately, so it is an inch wide.
constexpr char firstMarginSection[] = "\\GLOBAL\\tems";
constexpr char marginSection[] = "\\GLOBAL\\frmpprev\\Items";

double margin(const char* section, const char* value) {
  const std::string text = library::LIBRARY().REGSTRREAD(library::currentUserRoot,
                                                         library::familyKey(section), value, "1");
  return values::storedNumber(text, values::userDecimalSign());
}

}  // namespace

ReportPaper reportPaper(paper::Printer& printer) {
  const HDC dc = printer.dc();
  const int dpi = GetDeviceCaps(dc, LOGPIXELSY);
  const values::FontHandle font(
      CreateFontA(-MulDiv(paper::documentPoints, dpi, 72), 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE,
                  DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                  DEFAULT_PITCH | FF_DONTCARE, paper::documentTypeface));
  const values::Selected selected(dc, font.get());
  TEXTMETRICA metrics{};
  GetTextMetricsA(dc, &metrics);
  return {printer.width(), printer.height(),
          static_cast<double>(metrics.tmHeight) * values::twipsPerInch / dpi};
}

ReportMargins reportMargins() {
  ReportMargins margins;
  margins.left = margin(firstMarginSection, "Page Margin 0");
  margins.right = margin(marginSection, "Page Margin 1");
  margins.top = margin(marginSection, "Page Margin 2");
  margins.bottom = margin(marginSection, "Page Margin 3");
  return margins;
}

}  // namespace dialogs
