#include "dialogs/report_paper_win.h"

#include <windows.h>

#include "library/stored_settings_win.h"
#include "paper/text_format.h"
#include "values/handles_win.h"
#include "values/units.h"

namespace dialogs {

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
  using library::readNumber;
  using library::Setting;
  return {readNumber(Setting::propertiesLeftMargin), readNumber(Setting::rightMargin),
          readNumber(Setting::topMargin), readNumber(Setting::bottomMargin)};
}

}  // namespace dialogs
