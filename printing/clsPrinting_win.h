// The print engine: rich text into printed or previewed pages. It lays nothing out itself, but
// hands rectangles to the rich text box (EM_FORMATRANGE), which says where each page ends.
#pragma once

#include <windows.h>

#include <richedit.h>

#include <cstdint>

#include "printing/print_host_win.h"

namespace printing {

class clsPrinting {
 public:
  explicit clsPrinting(PrintHost& host) : host_(host) {}

  /// Takes the text to be divided into pages from `SOURCE`: what is selected there, or else
  /// everything. Sets the dialog's flags to fit.
  void INITIALIZEPATH(DialogForm& FORM, const windowing::RichTextBox& SOURCE);

  /// Counts the pages of `RTF3` and prepares the print dialog for them. The flag is ignored.
  /// Margins are whole inches; raises overflow where one needs more than 16 bits of twips.
  std::int32_t PAGECOUNT(DialogForm& FORM, int FLAG, std::int16_t LEFT, std::int16_t TOP,
                         std::int16_t RIGHT, std::int16_t BOTTOM);

  /// Prints the text of `SOURCE`, after the print dialog unless `SKIPDIALOG` is set. Errors and
  /// the dialog's cancelling end it silently, but not errors in taking the text over.
  void PRINTDOCUMENT(DialogForm& FORM, const windowing::RichTextBox& SOURCE, bool SKIPDIALOG);

  /// Draws page `PAGENO`, from 1, into `PICTURE` at full size.
  void PAGESEL(std::int16_t PAGENO, windowing::PagePicture& PICTURE);

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
  void useText(const windowing::RichTextBox& box) { reportTextLength_ = box.length(); }
  bool formatPage(const windowing::RichTextBox& box, FORMATRANGE& range);
  void advance(FORMATRANGE& range) const;
  void release(const windowing::RichTextBox& box) const;

  PrintHost& host_;
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
};

/// The program's one print engine.
[[nodiscard]] clsPrinting& PRINTING();

}  // namespace printing
