// Printing and its preview for the rest of the program. The work is done by the print engine and
// the preview's controller.
#pragma once

#include <cstdint>

#include "printing/preview_controller_win.h"
#include "printing/print_engine_win.h"

namespace printing {

class clsPrinting {
 public:
  explicit clsPrinting(PreviewWindow& window) : engine_(window), preview_(window, engine_) {}

  /// Takes the text that is to be divided into pages from `SOURCE`: its selection or, without one,
  /// all of it. Sets the flags of the print dialog accordingly.
  void INITIALIZEPATH(DialogForm& FORM, const paper::RichTextBox& SOURCE);
  /// Counts the pages of `RTF3` and prepares the print dialog for them. The flag is ignored.
  /// Margins are whole inches; raises overflow where one needs more than 16 bits of twips.
  std::int32_t PAGECOUNT(DialogForm& FORM, int FLAG, std::int16_t LEFT, std::int16_t TOP,
                         std::int16_t RIGHT, std::int16_t BOTTOM);
  /// Prints the text of `SOURCE`, after the print dialog unless `SKIPDIALOG` is set. Raises errors
  /// of taking the text over. After that, an error or "Cancel" ends printing without a report.
  void PRINTDOCUMENT(DialogForm& FORM, const paper::RichTextBox& SOURCE, bool SKIPDIALOG);
  /// Reads the four margins from the settings store. Raises type mismatch where one is not a
  /// number.
  void GETMARGINS();

  // The preview. The page and the zoom are the texts of its two lists.

  /// Sets the box with the report to preview.
  void setReport(const paper::RichTextBox& RTF1) { report_ = &RTF1; }
  /// Shows the preview of the report and returns when it is closed. Tells the user when there is no
  /// printer. Raises, without showing anything, when the pages cannot be laid out.
  void PRINTPREVIEW();
  /// Draws page `PAGENO` (from 1) into `PICTURE` at full size, and shows it.
  void PAGESEL(std::int16_t PAGENO, paper::PagePicture& PICTURE);
  void PAGESTART();
  void PAGENEXT();
  void PAGEPREVIOUS();
  void PAGEEND();
  /// Changes the zoom to the next percentage up or down. Does nothing at the last one and at a zoom
  /// that fits the page into the view.
  void ZOOMIN();
  void ZOOMOUT();
  /// Places the view between the bars and applies the zoom of the zoom list.
  void ZOOMSEL();
  /// Lays the pages out again after printing, since the print dialog may have changed the printer.
  void refreshPreview() { preview_.refresh(); }

  [[nodiscard]] std::int32_t currentPage() const { return engine_.currentPage(); }
  [[nodiscard]] std::int32_t pageCount() const { return engine_.pageCount(); }

 private:
  PrintEngine engine_;
  PreviewController preview_;
  const paper::RichTextBox* report_ = nullptr;
};

/// The program's one object for printing.
[[nodiscard]] clsPrinting& PRINTING();

}  // namespace printing
