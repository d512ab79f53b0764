#include "paper/wine/page_layout.h"

#include <gtest/gtest.h>

#include <string>

namespace paper::wine {
namespace {

// Every character is 10 wide; lines are 8 + 2 high, and those with a '#' 18 + 4.
class Typewriter final : public TextMeasure {
 public:
  explicit Typewriter(std::u16string text) : text_(std::move(text)) {}
  [[nodiscard]] std::u16string_view text() const override { return text_; }
  [[nodiscard]] int advance(int) override {
    ++asked;
    return 10;
  }
  [[nodiscard]] LineHeight height(int position) override {
    return text_[static_cast<std::size_t>(position)] == u'#' ? LineHeight{18, 4} : LineHeight{8, 2};
  }
  int asked = 0;

 private:
  std::u16string text_;
};

// The lines of a page as they are seen, with "|" between them, and where the next page begins.
std::string seen(const std::u16string& text, int width, int height) {
  Typewriter measure(text);
  const PageLayout page =
      layOutPage(measure, 0, static_cast<int>(text.size()), {width, height, 40});
  std::string lines;
  for (const PageLine& line : page.lines) {
    for (int i = line.first; i < line.end; ++i)
      lines += static_cast<char>(text[static_cast<std::size_t>(i)]);
    lines += '|';
  }
  return lines + std::to_string(page.next);
}

TEST(PageLayout, BreaksLinesWhereWordsEndAndPagesWhereLinesDo) {
  const struct {
    const char* why;
    std::u16string text;
    int width, height;
    std::string lines;
  } rows[] = {
      {"nothing to place", u"", 100, 99, "0"},
      {"fits exactly", u"abcd", 40, 99, "abcd|4"},
      {"wraps at a blank", u"ab cd", 40, 99, "ab|cd|5"},
      {"blanks hang over the edge", u"abcd   ef", 40, 99, "abcd|ef|9"},
      {"a long word starts on a line of its own", u"ab cdefgh", 40, 99, "ab|cdef|gh|9"},
      {"a hyphen ends a word", u"ab-cd", 40, 99, "ab-|cd|5"},
      {"paragraphs, an empty one too", u"ab\r\rcd", 100, 99, "ab||cd|6"},
      {"a break at the end is one character", u"ab\r", 100, 99, "ab|3"},
      {"a blank of its own is kept out of sight", u" \rb", 100, 99, "|b|3"},
      {"blanks before a word stay", u"  ab", 100, 99, "  ab|4"},
      {"a line break inside a paragraph", u"ab\vcd", 100, 99, "ab|cd|5"},
      {"no width at all: one character a line", u"abc", -50, 99, "a|b|c|3"},
      {"a tab reaches the next stop", u"a\tbcd", 70, 99, "a\tbcd|5"},
      {"and wraps where the stop is outside", u"abc\td", 50, 99, "abc\td|5"},
      {"without taking the word before it along", u"ab cd\te", 50, 99, "ab cd|\te|7"},
      {"a form feed ends the page", u"ab\fcd", 100, 99, "ab|3"},
      {"two lines of 10 fit into 20", u"a\rb\rc", 100, 20, "a|b|4"},
      {"and only one into 19", u"a\rb\rc", 100, 19, "a|2"},
      {"a higher line needs its own height", u"a\r#\rc", 100, 31, "a|2"},
      {"a line higher than the page is placed all the same", u"#", 100, 5, "#|1"},
      {"no height at all: one line a page", u"a\rb", 100, -5, "a|2"},
  };
  for (const auto& row : rows)
    EXPECT_EQ(seen(row.text, row.width, row.height), row.lines) << row.why;
}

TEST(PageLayout, LastPageCostsNoMoreThanTheFirst) {
  std::u16string text;
  for (int line = 0; line < 2000; ++line) text += u"some words on a line\r";
  Typewriter measure(text);
  const int size = static_cast<int>(text.size());
  const PageLayout first = layOutPage(measure, 0, size, {500, 100, 40});
  const int cost = measure.asked;
  measure.asked = 0;
  EXPECT_EQ(layOutPage(measure, size - first.next, size, {500, 100, 40}).next, size);
  EXPECT_LE(measure.asked, cost);
}

}  // namespace
}  // namespace paper::wine
