// The print engine: rich text into printed or previewed pages. It lays nothing out itself, but
// hands rectangles to the rich text box (EM_FORMATRANGE), which says where each page ends.
#pragma once

#include <windows.h>

#include <richedit.h>

#include <cstdint>
#include <string_view>
#include <vector>

#include "printing/print_form_win.h"

namespace printing {

class clsPrinting {
 public:
  explicit clsPrinting(PrintForm& form) : form_(form) {}

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

  // The preview (clsPrinting_preview_win.cpp). Those that turn pages and change the zoom work on
  // the texts of the preview's two lists.

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
  void refreshPreview();

  /// Reads the four margins from the settings store. Raises type mismatch where one is not a
  /// number.
  void GETMARGINS();

  [[nodiscard]] std::int32_t currentPage() const { return currentPage_; }
  [[nodiscard]] std::int32_t pageCount() const { return pageCount_; }

 private:
  /// One of the four margins in whole inches, for the body, and in twips, for header and footer.
  /// Deliberately rounded in two ways: half an inch is nothing to the body.
  struct BodyMargins {
    std::int16_t left;
    std::int16_t top;
    std::int16_t right;
    std::int16_t bottom;
  };
  [[nodiscard]] BodyMargins wholeInches() const;
  [[nodiscard]] BodyMargins inTwips() const;

  void SetupPageLayout(std::int16_t left, std::int16_t top, std::int16_t right,
                       std::int16_t bottom);
  void SetupPageLayout(const BodyMargins& margins) {
    SetupPageLayout(margins.left, margins.top, margins.right, margins.bottom);
  }
  std::int32_t countPages(DialogForm& form);
  void askUser(DialogForm& form);
  void print(DialogForm& form, bool skipDialog);
  void takePages(std::int32_t from, std::int32_t to);
  void sendPages();
  void useText(const paper::RichTextBox& box) { reportTextLength_ = box.length(); }
  bool formatPage(const paper::RichTextBox& box, FORMATRANGE& range);
  void advance(FORMATRANGE& range) const;
  void release(const paper::RichTextBox& box) const;

  void preparePreview();
  void fillLists();
  void showPaperSize();
  void goToPage(std::int32_t page);
  [[nodiscard]] std::int32_t shownPage() const;
  void seekPage(std::int32_t page);
  void drawPage(paper::PagePicture& picture);
  void setZoom(std::string_view text);
  void ApplyZoomPercent(double percent);
  void UpdatePageButtons();
  void UpdateZoomControls();

  /// Where the pages laid out so far begin, and the page they were laid out for.
  struct LaidOut {
    RECT body{};
    RECT page{};
    HDC target = nullptr;
    std::int32_t length = -1;
    std::vector<std::int32_t> starts;
  };
  void forgetPages() { laidOut_ = {}; }
  [[nodiscard]] bool pagesStillValid() const;
  void rememberPages();

  PrintForm& form_;
  const paper::RichTextBox* report_ = nullptr;
  FORMATRANGE measuring_{};  ///< counting pages, finding a range, drawing the preview
  FORMATRANGE printing_{};   ///< sending pages to the printer
  RECT body_{};              ///< twips, as in both ranges
  RECT page_{};
  std::int16_t offsetX_ = 0;  ///< unprintable strips at the left and top, twips
  std::int16_t offsetY_ = 0;
  std::int32_t next_ = 0;  ///< first character after the page formatted last
  std::int32_t currentPage_ = 1;
  double bottom_ = 0;  ///< margins, inches
  double left_ = 0;
  double right_ = 0;
  double top_ = 0;
  std::int32_t pageCount_ = 0;
  /// Characters of the text that is being divided, counted as EM_FORMATRANGE counts. It always
  /// belongs to the box in use: RTF3 while counting, RTF2 while printing.
  std::int32_t reportTextLength_ = 0;
  DWORD dialogFlags_ = 0;
  LaidOut laidOut_;
};

/// The program's one print engine.
[[nodiscard]] clsPrinting& PRINTING();

}  // namespace printing
