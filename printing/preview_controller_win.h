// Which page the preview shows, at which zoom, and what the window's controls say about it.
#pragma once

#include <cstdint>
#include <string_view>

#include "printing/print_engine_win.h"

namespace printing {

class PreviewController {
 public:
  PreviewController(PreviewWindow& window, PrintEngine& engine)
      : window_(window), engine_(engine) {}

  /// Shows the preview of `report` and returns when it is closed. Raises what keeps the pages
  /// from being laid out; nothing is shown then.
  void show(const paper::RichTextBox& report);
  /// Shows the pages as they are after printing: the dialog may have changed the printer.
  void refresh();

  /// Draws a page, from 1, into `picture` at full size, and shows it.
  void drawPage(std::int32_t page, paper::PagePicture& picture);
  /// Shows a page, from 1, and names it in the list.
  void goToPage(std::int32_t page);
  /// The page that the list names.
  [[nodiscard]] std::int32_t shownPage() const;

  /// Applies the zoom that the list names, after the view was placed between the bars.
  void applyZoom();
  void setZoom(std::string_view text);
  /// One percentage up or down; nothing from the last one or a fitted zoom.
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
