// Breaking text into the lines of one page: the arithmetic of formatting pages on Wine, over
// measures that a device gives. Lengths are whole device units of the measuring device.
#pragma once

#include <string_view>
#include <vector>

namespace paper::wine {

struct LineHeight {
  int ascent = 0;
  int descent = 0;
};

/// What layout asks of a text and its device. Positions count from 0; a paragraph break is one
/// character, CR or LF.
class TextMeasure {
 public:
  TextMeasure() = default;
  TextMeasure(const TextMeasure&) = delete;
  TextMeasure& operator=(const TextMeasure&) = delete;
  virtual ~TextMeasure() = default;

  [[nodiscard]] virtual std::u16string_view text() const = 0;
  /// Width of the character at `position`; never asked of tabs and line ends.
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
  int end = 0;   ///< past the last character to be seen: blanks at a line's end are not
  int next = 0;  ///< first character of the following line
  int top = 0;   ///< from the top of the area
  LineHeight height;
};

struct PageLayout {
  std::vector<PageLine> lines;
  int next = 0;    ///< first character that is not on the page
  int height = 0;  ///< of all its lines
};

/// Lays out what of [first, last) fits into `area`. Words wrap at blanks, tabs and hyphens; a
/// word wider than the area breaks inside; a line is never split between two pages. Every page
/// takes at least one line and every line at least one character, however small the area is. A
/// form feed ends the page. The cost depends on the page alone, not on what stands before it.
[[nodiscard]] PageLayout layOutPage(TextMeasure& measure, int first, int last,
                                    const PageArea& area);

/// Width of a tab that begins at `x`.
[[nodiscard]] int tabAdvance(int x, int tabStop);

}  // namespace paper::wine
