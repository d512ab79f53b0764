// Turns rich text into printed or previewed pages. The rich text box does the layout
// (EM_FORMATRANGE): it gets the rectangle of a page and tells where the page ends.
#pragma once

#include <windows.h>

#include <richedit.h>

#include <cstdint>
#include <vector>

#include "printing/print_form_win.h"

namespace printing {

/// Margins of a page, in whole inches or in twips.
struct PageMargins {
  std::int16_t left;
  std::int16_t top;
  std::int16_t right;
  std::int16_t bottom;
};

class PrintEngine {
 public:
  explicit PrintEngine(PageBoxes& boxes) : boxes_(boxes) {}

  /// Takes the text that is to be divided into pages from `source`: its selection or, without one,
  /// all of it. Sets the flags of the print dialog accordingly.
  void takeText(DialogForm& form, const paper::RichTextBox& source);

  /// Reads the four margins from the settings. Raises type mismatch where one is not a number.
  void readMargins();

  /// Counts the pages of the text and prepares the print dialog for them. Margins are whole
  /// inches; raises overflow where one needs more than 16 bits of twips.
  std::int32_t countPages(DialogForm& form, const PageMargins& wholeInches);
  /// The same with the margins that were read.
  std::int32_t countPages(DialogForm& form) { return countPages(form, wholeInches()); }
  /// Counts again if margins, paper or printer have changed.
  void refresh(DialogForm& form);

  /// Prints the pages that the user chooses in the print dialog, or all without asking.
  void print(DialogForm& form, bool skipDialog);
  /// Ends a job after an error. Pages that the printing system already has may still be printed.
  void abandon();

  /// Draws page `page` (from 1) at full size; the last page where there are fewer.
  void drawPage(std::int32_t page, paper::PagePicture& picture);

  /// The page drawn last; 1 after every layout.
  [[nodiscard]] std::int32_t currentPage() const { return currentPage_; }
  [[nodiscard]] std::int32_t pageCount() const { return pageCount_; }

 private:
  /// The margins in whole inches for the body, and in twips for header and footer. Deliberate: they
  /// are rounded differently, so that half an inch counts as 0 for the body.
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

  /// Where the text of a page goes, twips from the corner of the printable area.
  struct Layout {
    RECT body{};
    RECT page{};
    POINT offset{};  ///< unprintable strips at the left and top
  };
  /// The beginnings of the pages laid out so far. They are valid for the same text, paper and
  /// margins only.
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
  /// Number of characters, as EM_FORMATRANGE counts, in the box that is being laid out: RTF3 while
  /// pages are counted, RTF2 while they are printed.
  std::int32_t textLength_ = 0;
  DWORD dialogFlags_ = 0;
  LaidOut laidOut_;
};

}  // namespace printing
