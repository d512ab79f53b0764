#include "printing/preview_controller_win.h"

#include <algorithm>
#include <string>

#include "library/stored_settings_win.h"
#include "paper/printer_win.h"
#include "printing/zoom.h"
#include "values/checked.h"
#include "values/number_text.h"
#include "values/units.h"
#include "values/user_locale_win.h"

namespace printing {

using paper::printer;

namespace {

PageSize sizeOf(const paper::PagePicture& picture) {
  return {picture.width(), picture.height()};
}

}  // namespace

void PreviewController::show(const paper::RichTextBox& report) {
  try {
    prepare(report);
  } catch (...) {
    // A preview that was made only in part is discarded; the next one starts from the beginning.
    window_.discardPreview();
    throw;
  }
  window_.showPreview();
}

void PreviewController::prepare(const paper::RichTextBox& report) {
  engine_.takeText(window_, report);
  engine_.readMargins();
  engine_.countPages(window_);
  window_.ICONMENUS();
  fillLists();
  goToPage(1);
  ApplyZoomPercent(100);
  const std::string stored = library::readText(library::Setting::previewZoom);
  setZoom(zoomIndex(stored) ? std::string_view(stored) : defaultZoom);
  UpdatePageButtons();
  showPaperSize();
  window_.restorePlace();
}

void PreviewController::refresh() {
  const std::int32_t shown = shownPage();
  engine_.refresh(window_);
  fillLists();
  goToPage(std::clamp(shown, std::int32_t{1}, engine_.pageCount()));
  showPaperSize();
  applyZoom();
}

// Fills the two lists. Called before a page or zoom is selected, since only an entry can be.
void PreviewController::fillLists() {
  const windowing::ComboBox pages = window_.CBOPGNO();
  {
    const windowing::PaintingSuspended quiet(pages.handle());
    pages.clear();
    for (std::int32_t page = 1; page <= engine_.pageCount(); ++page)
      pages.add(std::to_string(page));
  }
  const windowing::ComboBox zooms = window_.CBOPGZOOM();
  if (zooms.count() > 0) return;
  for (const ZoomLevel& level : zoomLevels) zooms.add(std::string(level.text));
}

void PreviewController::showPaperSize() {
  const auto inches = [](double twips) {
    return values::formatDecimals(twips / values::twipsPerInch, 0, 2, values::userDecimalSign());
  };
  window_.setPaperSize(inches(printer().width()) + " x " + inches(printer().height()) + " inches");
}

std::int32_t PreviewController::shownPage() const {
  return static_cast<std::int32_t>(values::leadingNumber(window_.CBOPGNO().selectedEntry()));
}

void PreviewController::goToPage(std::int32_t page) {
  window_.CBOPGNO().select(page - 1);
  drawPage(values::roundTo<std::int16_t>(page), window_.PICSTDPAGE());
}

void PreviewController::drawPage(std::int32_t page, paper::PagePicture& picture) {
  engine_.drawPage(page, picture);
  UpdatePageButtons();
  window_.PICWINDOW().showNewPicture();
}

void PreviewController::UpdatePageButtons() {
  window_.RefreshCommands();
}

void PreviewController::setZoom(std::string_view text) {
  window_.CBOPGZOOM().select(zoomIndex(text).value_or(0));
  applyZoom();
}

void PreviewController::zoomIn() {
  const std::string now = window_.CBOPGZOOM().selectedEntry();
  const std::string_view next = zoomedIn(now);
  if (next != now) setZoom(next);  // which also updates the controls
}

void PreviewController::zoomOut() {
  const std::string now = window_.CBOPGZOOM().selectedEntry();
  const std::string_view next = zoomedOut(now);
  if (next != now) setZoom(next);  // which also updates the controls
}

void PreviewController::applyZoom() {
  window_.placeView();
  const std::string zoom = window_.CBOPGZOOM().selectedEntry();
  const PageSize page = sizeOf(window_.PICSTDPAGE());
  // Before the first page is drawn, there is nothing to zoom.
  if (zoom.empty() || page.width <= 0) return;
  PageView& view = window_.PICWINDOW();
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

void PreviewController::ApplyZoomPercent(double percent) {
  PageView& view = window_.PICWINDOW();
  view.showPage(placeAtPercent(sizeOf(window_.PICSTDPAGE()), view.size(), percent));
}

void PreviewController::UpdateZoomControls() {
  const std::string zoom = window_.CBOPGZOOM().selectedEntry();
  for (const ZoomLevel& level : zoomLevels)
    window_.setCommandChecked(level.command, level.text == zoom);
  window_.RefreshCommands();
}

}  // namespace printing
