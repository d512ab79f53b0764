// Breaking text into the lines of one page, for formatting pages on Wine. Lengths are pixels of the
// device that measures.
#pragma once

#include <string_view>
#include <vector>

namespace paper::wine {

struct LineHeight {
  int ascent = 0;
  int descent = 0;
};

/// The text to lay out and its measures on a device. Positions count from 0; a paragraph break is
/// one character, CR or LF.
class TextMeasure {
 public:
  TextMeasure() = default;
  TextMeasure(const TextMeasure&) = delete;
  TextMeasure& operator=(const TextMeasure&) = delete;
  virtual ~TextMeasure() = default;

  [[nodiscard]] virtual std::u16string_view text() const = 0;
  /// Width of the character at `position`, which is neither a tab nor a line end.
  [[nodiscard]] virtual int advance(int position) = 0;
  [[nodiscard]] virtual LineHeight height(int position) = 0;
};

struct PageArea {
  int width = 0;
  int height = 0;
  int tabStop = 1;  ///< distance between two tab stops, above 0
};

struct PageLine {
  int first = 0;
  int end = 0;   ///< past the last visible character; blanks at a line's end are not visible
  int next = 0;  ///< first character of the following line
  int top = 0;   ///< from the top of the area
  LineHeight height;
};

struct PageLayout {
  std::vector<PageLine> lines;
  int next = 0;    ///< first character that is not on the page
  int height = 0;  ///< of all its lines
};

/// Lays out as much of [first, last) as fits into `area`. Lines break at blanks, tabs and hyphens,
/// and inside a word only where it is wider than the area. A line is never split between two pages.
/// Every page has at least one line and every line at least one character, however small the area
/// is. A form feed ends the page. The time depends on this page only, not on the text before it.
[[nodiscard]] PageLayout layOutPage(TextMeasure& measure, int first, int last,
                                    const PageArea& area);

/// Width of a tab that begins at `x`.
[[nodiscard]] int tabAdvance(int x, int tabStop);

}  // namespace paper::wine
