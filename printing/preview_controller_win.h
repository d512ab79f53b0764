// Decides which page the preview shows and at which zoom, and updates the controls of its window.
#pragma once

#include <cstdint>
#include <string_view>

#include "printing/print_engine_win.h"

namespace printing {

class PreviewController {
 public:
  PreviewController(PreviewWindow& window, PrintEngine& engine)
      : window_(window), engine_(engine) {}

  /// Shows the preview of `report` and returns when it is closed. Raises, without showing anything,
  /// when the pages cannot be laid out.
  void show(const paper::RichTextBox& report);
  /// Lays the pages out again after printing, since the print dialog may have changed the printer.
  void refresh();

  /// Draws a page (from 1) into `picture` at full size, and shows it.
  void drawPage(std::int32_t page, paper::PagePicture& picture);
  /// Shows a page (from 1) and selects it in the list.
  void goToPage(std::int32_t page);
  /// The page that is selected in the list.
  [[nodiscard]] std::int32_t shownPage() const;

  /// Places the view between the bars and applies the zoom that is selected in the list.
  void applyZoom();
  void setZoom(std::string_view text);
  /// Changes the zoom to the next percentage up or down. Does nothing at the last one and at a zoom
  /// that fits the page into the view.
  void zoomIn();
  void zoomOut();

 private:
  void prepare(const paper::RichTextBox& report);
  void fillLists();
  void showPaperSize();
  void UpdatePageButtons();
  void ApplyZoomPercent(double percent);
  void UpdateZoomControls();

  PreviewWindow& window_;
  PrintEngine& engine_;
};

}  // namespace printing
