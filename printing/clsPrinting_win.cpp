#include "printing/clsPrinting_win.h"

#include <exception>

#include "printing/frmPPrev_win.h"
#include "printing/printer_ready_win.h"

namespace printing {

void clsPrinting::INITIALIZEPATH(DialogForm& FORM, const paper::RichTextBox& SOURCE) {
  engine_.takeText(FORM, SOURCE);
}

std::int32_t clsPrinting::PAGECOUNT(DialogForm& FORM, int, std::int16_t LEFT, std::int16_t TOP,
                                    std::int16_t RIGHT, std::int16_t BOTTOM) {
  return engine_.countPages(FORM, {LEFT, TOP, RIGHT, BOTTOM});
}

void clsPrinting::PRINTDOCUMENT(DialogForm& FORM, const paper::RichTextBox& SOURCE,
                                bool SKIPDIALOG) {
  if (SOURCE.name() != "RTF3") INITIALIZEPATH(FORM, SOURCE);
  try {
    engine_.print(FORM, SKIPDIALOG);
  } catch (const std::exception&) {
    // Deliberately not reported.
    engine_.abandon();
  }
}

void clsPrinting::GETMARGINS() {
  engine_.readMargins();
}

void clsPrinting::PRINTPREVIEW() {
  if (report_ != nullptr && printerReady()) preview_.show(*report_);
}

void clsPrinting::PAGESEL(std::int16_t PAGENO, paper::PagePicture& PICTURE) {
  preview_.drawPage(PAGENO, PICTURE);
}

void clsPrinting::PAGESTART() {
  preview_.goToPage(1);
}

void clsPrinting::PAGENEXT() {
  const std::int32_t shown = preview_.shownPage();
  if (pageCount() != 1 && shown < pageCount()) preview_.goToPage(shown + 1);
}

void clsPrinting::PAGEPREVIOUS() {
  const std::int32_t shown = preview_.shownPage();
  if (shown > 1) preview_.goToPage(shown - 1);
}

void clsPrinting::PAGEEND() {
  preview_.goToPage(pageCount());
}

void clsPrinting::ZOOMIN() {
  preview_.zoomIn();
}

void clsPrinting::ZOOMOUT() {
  preview_.zoomOut();
}

void clsPrinting::ZOOMSEL() {
  preview_.applyZoom();
}

clsPrinting& PRINTING() {
  static clsPrinting printing(thePreview());
  return printing;
}

}  // namespace printing
