// The print engine's side of the preview: which page is drawn, at which zoom, and what the
// window's controls say about it.
#include <algorithm>
#include <string>

#include "library/clsLibrary_win.h"
#include "library/stored_settings_win.h"
#include "paper/printer_win.h"
#include "printing/clsPrinting_win.h"
#include "printing/printer_ready_win.h"
#include "printing/zoom.h"
#include "values/checked.h"
#include "values/number_text.h"
#include "values/units.h"
#include "values/user_locale_win.h"

namespace printing {

using library::LIBRARY;
using paper::printer;
namespace id = library::id::preview;

namespace {

std::string selectedText(const windowing::ComboBox& list) {
  const int selected = list.selected();
  return selected < 0 ? std::string() : list.entry(selected);
}

PageSize sizeOf(const paper::PagePicture& picture) {
  return {picture.width(), picture.height()};
}

// A page being drawn. Header and footer may raise: neither the picture nor what the box keeps for
// its pages stays open then.
class OpenPage {
 public:
  OpenPage(paper::PagePicture& picture, const paper::RichTextBox& text)
      : picture_(picture), text_(text) {
    picture_.begin(printer().dc());
  }
  OpenPage(const OpenPage&) = delete;
  OpenPage& operator=(const OpenPage&) = delete;
  ~OpenPage() {
    picture_.finish();
    text_.send(EM_FORMATRANGE, FALSE, 0);
  }

 private:
  paper::PagePicture& picture_;
  const paper::RichTextBox& text_;
};

bool same(const RECT& a, const RECT& b) {
  return EqualRect(&a, &b) != FALSE;
}

}  // namespace

void clsPrinting::PRINTPREVIEW() {
  if (report_ == nullptr) return;
  if (!printerReady()) return;
  try {
    preparePreview();
  } catch (...) {
    // Half a preview is none: the next one starts anew.
    form_.discardPreview();
    throw;
  }
  form_.showPreview();
}

void clsPrinting::preparePreview() {
  INITIALIZEPATH(form_, *report_);
  GETMARGINS();
  countPages(form_);
  form_.ICONMENUS();
  fillLists();
  goToPage(1);
  ApplyZoomPercent(100);
  const std::string stored = library::readText(library::Setting::previewZoom);
  setZoom(zoomIndex(stored) ? std::string_view(stored) : defaultZoom);
  UpdatePageButtons();
  showPaperSize();
  form_.restorePlace();
}

// A list shows nothing that is not in it: they are filled before anything is chosen.
void clsPrinting::fillLists() {
  const windowing::ComboBox pages = form_.CBOPGNO();
  {
    const windowing::PaintingSuspended quiet(pages.handle());
    pages.clear();
    for (std::int32_t page = 1; page <= pageCount_; ++page) pages.add(std::to_string(page));
  }
  const windowing::ComboBox zooms = form_.CBOPGZOOM();
  if (zooms.count() > 0) return;
  for (const ZoomLevel& level : zoomLevels) zooms.add(std::string(level.text));
}

void clsPrinting::showPaperSize() {
  const auto inches = [](double twips) {
    return values::formatDecimals(twips / values::twipsPerInch, 0, 2, values::userDecimalSign());
  };
  form_.setPaperSize(inches(printer().width()) + " x " + inches(printer().height()) + " inches");
}

std::int32_t clsPrinting::shownPage() const {
  return static_cast<std::int32_t>(values::leadingNumber(selectedText(form_.CBOPGNO())));
}

void clsPrinting::goToPage(std::int32_t page) {
  form_.CBOPGNO().select(page - 1);
  PAGESEL(values::roundTo<std::int16_t>(page), form_.PICSTDPAGE());
}

void clsPrinting::PAGESTART() {
  goToPage(1);
}

void clsPrinting::PAGEEND() {
  goToPage(pageCount_);
}

void clsPrinting::PAGENEXT() {
  const std::int32_t shown = shownPage();
  if (pageCount_ != 1 && shown < pageCount_) goToPage(shown + 1);
}

void clsPrinting::PAGEPREVIOUS() {
  const std::int32_t shown = shownPage();
  if (shown > 1) goToPage(shown - 1);
}

void clsPrinting::UpdatePageButtons() {
  const std::int32_t shown = shownPage();
  for (const int command : {id::FIRST, id::PREVIOUS}) form_.setCommandEnabled(command, shown > 1);
  for (const int command : {id::NEXT, id::LAST})
    form_.setCommandEnabled(command, shown < pageCount_);
}

// The pages that are known to begin where they do stay valid for one text on one paper with one
// set of margins.
bool clsPrinting::pagesStillValid() const {
  return same(laidOut_.body, body_) && same(laidOut_.page, page_) &&
         laidOut_.target == printer().dc() && laidOut_.length == reportTextLength_;
}

void clsPrinting::rememberPages() {
  if (!pagesStillValid()) laidOut_ = {body_, page_, printer().dc(), reportTextLength_, {0}};
}

// Sets the measuring range to the beginning of `page`, or of the last page if there are fewer.
void clsPrinting::seekPage(std::int32_t page) {
  rememberPages();
  std::vector<std::int32_t>& starts = laidOut_.starts;
  const auto known = static_cast<std::int32_t>(starts.size());
  currentPage_ = std::clamp(page, std::int32_t{1}, known);
  measuring_.chrg.cpMin = starts[static_cast<std::size_t>(currentPage_) - 1];
  const paper::RichTextBox& text = form_.RTF3();
  while (currentPage_ < page && formatPage(text, measuring_)) {
    advance(measuring_);
    starts.push_back(next_);
    ++currentPage_;
  }
}

void clsPrinting::PAGESEL(std::int16_t PAGENO, paper::PagePicture& PICTURE) {
  GETMARGINS();
  SetupPageLayout(wholeInches());
  useText(form_.RTF3());
  seekPage(PAGENO);
  drawPage(PICTURE);
  UpdatePageButtons();
  form_.PICWINDOW().showNewPicture();
}

void clsPrinting::drawPage(paper::PagePicture& picture) {
  const paper::RichTextBox& text = form_.RTF3();
  const BodyMargins margins = inTwips();
  const OpenPage open(picture, text);
  // Crossed as on the printer.
  LIBRARY().PAGEHEADERFOOTERINFOPREVIEW(picture, std::to_string(currentPage_), margins.left,
                                        margins.top, margins.right, margins.bottom);
  FORMATRANGE shown = measuring_;
  shown.hdc = picture.dc();
  const RECT body = body_;
  // The picture is the whole paper; places on the printer count from its printable corner.
  OffsetRect(&body_, offsetX_, offsetY_);
  (void)formatPage(text, shown);
  body_ = body;
}

void clsPrinting::setZoom(std::string_view text) {
  form_.CBOPGZOOM().select(zoomIndex(text).value_or(0));
  ZOOMSEL();
}

void clsPrinting::ZOOMIN() {
  const std::string now = selectedText(form_.CBOPGZOOM());
  const std::string_view next = zoomedIn(now);
  if (next != now) setZoom(next);  // brings the controls in step, too
}

void clsPrinting::ZOOMOUT() {
  const std::string now = selectedText(form_.CBOPGZOOM());
  const std::string_view next = zoomedOut(now);
  if (next != now) setZoom(next);  // brings the controls in step, too
}

void clsPrinting::ZOOMSEL() {
  form_.placeView();
  const std::string zoom = selectedText(form_.CBOPGZOOM());
  const PageSize page = sizeOf(form_.PICSTDPAGE());
  // Before a page is drawn there is nothing to be zoomed.
  if (zoom.empty() || page.width <= 0) return;
  PageView& view = form_.PICWINDOW();
  const double percent = values::leadingNumber(zoom);
  if (percent != 0) {
    ApplyZoomPercent(percent);
  } else if (zoom == wholePageZoom) {
    view.showPage(placeWholePage(page, view.size()));
  } else {
    view.showPage(placePageWidth(page, view.size()));
  }
  UpdateZoomControls();
}

void clsPrinting::ApplyZoomPercent(double percent) {
  PageView& view = form_.PICWINDOW();
  view.showPage(placeAtPercent(sizeOf(form_.PICSTDPAGE()), view.size(), percent));
}

void clsPrinting::UpdateZoomControls() {
  for (const ZoomLevel& level : zoomLevels) form_.setCommandChecked(level.command, false);
  const auto index = zoomIndex(selectedText(form_.CBOPGZOOM()));
  if (!index) return;
  const ZoomLevel& level = zoomLevels[static_cast<std::size_t>(*index)];
  form_.setCommandEnabled(id::ZOOMIN, level.canZoomIn);
  form_.setCommandEnabled(id::ZOOMOUT, level.canZoomOut);
  form_.setCommandChecked(level.command, true);
}

void clsPrinting::refreshPreview() {
  const std::int32_t shown = shownPage();
  GETMARGINS();
  SetupPageLayout(wholeInches());
  useText(form_.RTF3());
  if (!pagesStillValid()) countPages(form_);
  fillLists();
  goToPage(std::clamp(shown, std::int32_t{1}, pageCount_));
  showPaperSize();
  ZOOMSEL();
}

}  // namespace printing
