#include "paper/wine/page_layout.h"

#include <algorithm>

namespace paper::wine {
namespace {

constexpr char16_t formFeed = 0x0C;

bool endsLine(char16_t character) {
  constexpr char16_t verticalTab = 0x0B;  // a line break inside a paragraph
  return character == u'\r' || character == u'\n' || character == verticalTab ||
         character == formFeed;
}

void include(LineHeight& line, LineHeight character) {
  line.ascent = std::max(line.ascent, character.ascent);
  line.descent = std::max(line.descent, character.descent);
}

// The line from `first` up to `next`: its visible characters and its height.
PageLine finish(TextMeasure& measure, int first, int end, int next) {
  PageLine line{first, end, next, 0, {}};
  const std::u16string_view text = measure.text();
  while (line.end > first && text[static_cast<std::size_t>(line.end - 1)] == u' ') --line.end;
  for (int i = first; i < next; ++i) include(line.height, measure.height(i));
  return line;
}

PageLine breakLine(TextMeasure& measure, int first, int last, const PageArea& area) {
  const std::u16string_view text = measure.text();
  int x = 0;
  int wordStart = first;  // where the line can be broken
  for (int i = first; i < last; ++i) {
    const char16_t character = text[static_cast<std::size_t>(i)];
    if (endsLine(character)) return finish(measure, first, i, i + 1);
    const bool tab = character == u'\t';
    const int advance = tab ? tabAdvance(x, area.tabStop) : measure.advance(i);
    const bool blank = character == u' ';
    if (tab) wordStart = i;
    // Blanks at the end of a line may lie beyond the edge, so that no line begins with one.
    if (!blank && x + advance > area.width && i > first) {
      const int next = wordStart > first ? wordStart : i;
      return finish(measure, first, next, next);
    }
    x += advance;
    if (blank || tab || character == u'-') wordStart = i + 1;
  }
  return finish(measure, first, last, last);
}

}  // namespace

int tabAdvance(int x, int tabStop) {
  return tabStop - x % tabStop;
}

PageLayout layOutPage(TextMeasure& measure, int first, int last, const PageArea& area) {
  PageLayout page;
  page.next = first;
  while (page.next < last) {
    PageLine line = breakLine(measure, page.next, last, area);
    const int height = line.height.ascent + line.height.descent;
    if (!page.lines.empty() && page.height + height > area.height) break;
    line.top = page.height;
    page.height += height;
    page.next = line.next;
    page.lines.push_back(line);
    if (line.end < line.next && measure.text()[static_cast<std::size_t>(line.next - 1)] == formFeed)
      break;
  }
  return page;
}

}  // namespace paper::wine
