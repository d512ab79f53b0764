// Rich text into printed or previewed pages. The engine lays nothing out itself, but hands
// rectangles to the rich text box (EM_FORMATRANGE), which says where each page ends.
#pragma once

#include <windows.h>

#include <richedit.h>

#include <cstdint>
#include <vector>

#include "printing/print_form_win.h"

namespace printing {

/// Margins of a page for one purpose, in the unit of that purpose.
struct PageMargins {
  std::int16_t left;
  std::int16_t top;
  std::int16_t right;
  std::int16_t bottom;
};

class PrintEngine {
 public:
  explicit PrintEngine(PageBoxes& boxes) : boxes_(boxes) {}

  /// Takes the text to be divided from `source`: what is selected there, or else everything.
  /// Sets the dialog's flags to fit.
  void takeText(DialogForm& form, const paper::RichTextBox& source);

  /// Reads the four margins from the settings. Raises type mismatch where one is not a number.
  void readMargins();

  /// Counts the pages of the text and prepares the print dialog for them. Margins are whole
  /// inches; raises overflow where one needs more than 16 bits of twips.
  std::int32_t countPages(DialogForm& form, const PageMargins& wholeInches);
  /// The same with the margins that were read.
  std::int32_t countPages(DialogForm& form) { return countPages(form, wholeInches()); }
  /// Counts anew where margins, paper or printer have changed since.
  void refresh(DialogForm& form);

  /// Prints the pages that the user chooses in the print dialog, or all without asking.
  void print(DialogForm& form, bool skipDialog);
  /// Gives up a job that an error broke off. What has reached the printing system is left to it.
  void abandon();

  /// Draws page `page`, from 1, at full size, or the last one where there are fewer.
  void drawPage(std::int32_t page, paper::PagePicture& picture);

  /// The page drawn last; every layout begins at page 1 again.
  [[nodiscard]] std::int32_t currentPage() const { return currentPage_; }
  [[nodiscard]] std::int32_t pageCount() const { return pageCount_; }

 private:
  /// Margins in whole inches, for the body, and in twips, for header and footer. Deliberately
  /// rounded in two ways: half an inch is nothing to the body.
  [[nodiscard]] PageMargins wholeInches() const;
  [[nodiscard]] PageMargins inTwips() const;

  void SetupPageLayout(std::int16_t left, std::int16_t top, std::int16_t right,
                       std::int16_t bottom);
  void layOut(const PageMargins& wholeInches);
  [[nodiscard]] FORMATRANGE firstPage() const;
  std::int32_t formatPage(const paper::RichTextBox& box, FORMATRANGE& range) const;
  [[nodiscard]] bool goesOn(std::int32_t next, const FORMATRANGE& range) const;

  void askUser(DialogForm& form);
  void takePages(std::int32_t from, std::int32_t to);
  void sendPages();
  FORMATRANGE seekPage(std::int32_t page);
  void drawAt(const FORMATRANGE& start, paper::PagePicture& picture);
  void useText(const paper::RichTextBox& box) { textLength_ = box.length(); }

  /// Where a page's text goes, twips from the printable corner.
  struct Layout {
    RECT body{};
    RECT page{};
    POINT offset{};  ///< unprintable strips at the left and top
  };
  /// Where the pages laid out so far begin, and what they were laid out for: one text on one
  /// paper with one set of margins.
  struct LaidOut {
    RECT body{};
    RECT page{};
    HDC target = nullptr;
    std::int32_t length = -1;
    std::vector<std::int32_t> starts;
  };
  [[nodiscard]] bool pagesStillValid() const;
  void rememberPages();

  PageBoxes& boxes_;
  Layout layout_;
  struct {
    double bottom = 0, left = 0, right = 0, top = 0;
  } inches_;  ///< margins
  std::int32_t currentPage_ = 1;
  std::int32_t pageCount_ = 0;
  /// Characters of the text that is being divided, counted as EM_FORMATRANGE counts. It always
  /// belongs to the box in use: RTF3 while counting, RTF2 while printing.
  std::int32_t textLength_ = 0;
  DWORD dialogFlags_ = 0;
  LaidOut laidOut_;
};

}  // namespace printing
