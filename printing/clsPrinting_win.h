// Printing and its preview, as the rest of the program calls them: a front over the print engine
// and the preview's controller.
#pragma once

#include <cstdint>

#include "printing/preview_controller_win.h"
#include "printing/print_engine_win.h"

namespace printing {

class clsPrinting {
 public:
  explicit clsPrinting(PreviewWindow& window) : engine_(window), preview_(window, engine_) {}

  /// Takes the text to be divided into pages from `SOURCE`: what is selected there, or else
  /// everything. Sets the dialog's flags to fit.
  void INITIALIZEPATH(DialogForm& FORM, const paper::RichTextBox& SOURCE);
  /// Counts the pages of `RTF3` and prepares the print dialog for them. The flag is ignored.
  /// Margins are whole inches; raises overflow where one needs more than 16 bits of twips.
  std::int32_t PAGECOUNT(DialogForm& FORM, int FLAG, std::int16_t LEFT, std::int16_t TOP,
                         std::int16_t RIGHT, std::int16_t BOTTOM);
  /// Prints the text of `SOURCE`, after the print dialog unless `SKIPDIALOG` is set. Errors and
  /// the dialog's cancelling end it silently, but not errors in taking the text over.
  void PRINTDOCUMENT(DialogForm& FORM, const paper::RichTextBox& SOURCE, bool SKIPDIALOG);
  /// Reads the four margins from the settings store. Raises type mismatch where one is not a
  /// number.
  void GETMARGINS();

  // The preview. Those that turn pages and change the zoom work on the texts of its two lists.

  /// The box that holds the report that is previewed, as it was composed last.
  void setReport(const paper::RichTextBox& RTF1) { report_ = &RTF1; }
  /// Shows the preview of the report and returns when it is closed; tells the user when there is
  /// no printer. Raises what keeps the pages from being laid out; nothing is shown then.
  void PRINTPREVIEW();
  /// Draws page `PAGENO`, from 1, into `PICTURE` at full size, and shows it.
  void PAGESEL(std::int16_t PAGENO, paper::PagePicture& PICTURE);
  void PAGESTART();
  void PAGENEXT();
  void PAGEPREVIOUS();
  void PAGEEND();
  /// One percentage up or down; nothing from the last one or a fitted zoom.
  void ZOOMIN();
  void ZOOMOUT();
  /// Applies the zoom of the zoom list, after the view was placed between the bars.
  void ZOOMSEL();
  /// Shows the pages as they are after printing: the dialog may have changed the printer.
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
