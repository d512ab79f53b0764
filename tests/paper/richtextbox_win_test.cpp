#include "paper/richtextbox_win.h"

#include <gtest/gtest.h>

#include "tests/support/recording_win.h"

namespace paper {
namespace {

// Boxes in a window that is never shown.
class RichTextBoxes : public testing::Test {
 protected:
  void SetUp() override {
    window_ = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 300, 200, nullptr, nullptr, nullptr,
                              nullptr);
    box_.create(window_, 10, {0, 0, 100, 100});
    other_.create(window_, 11, {0, 100, 100, 200});
  }
  void TearDown() override { DestroyWindow(window_); }

  // Lays out one page of `height` twips at the screen's resolution: what was drawn on it. The
  // range moves on to the next page.
  test_support::Drawing page(LONG height, CHARRANGE& range, bool render = true) {
    test_support::Recording recording;
    FORMATRANGE format{recording.dc(), recording.dc(), {0, 0, 9000, height}, {}, range};
    range.cpMin =
        static_cast<LONG>(box_.send(EM_FORMATRANGE, render, reinterpret_cast<LPARAM>(&format)));
    used_ = format.rc.bottom;
    return recording.drawing();
  }

  LONG used_ = 0;  ///< height that the last page took
  HWND window_ = nullptr;
  RichTextBox box_{"RTF1"};
  RichTextBox other_{"RTF3"};
};

std::string repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

TEST_F(RichTextBoxes, PlainTextIsTakenLiterally) {
  std::string high = "\x80\x8A\x93\x99";
  for (int code = 0xA0; code <= 0xFF; ++code) high += static_cast<char>(code);
  const struct {
    std::string text, back;
    int length;
  } rows[] = {
      {"", "", 0},
      {"one\ntwo\r", "one\r\ntwo\r\n", 8},
      {"\r\n", "\r\n", 1},
      {"{\\rtf1 \\b bold}", "{\\rtf1 \\b bold}", 15},
      {" a\tb\\c{d} ", " a\tb\\c{d} ", 10},
      {high, high, 100},
      {repeated("0123456789abcde\r\n", 5000), repeated("0123456789abcde\r\n", 5000), 80000}};
  for (const auto& row : rows) {
    box_.setPlain(row.text);
    EXPECT_EQ(box_.text(), row.back);
    EXPECT_EQ(box_.length(), row.length) << row.text.substr(0, 40);
  }
}

TEST_F(RichTextBoxes, PiecesAreInsertedAtTheCaretInTheirFormat) {
  other_.setPlain("");
  for (const bool bold : {true, false}) {
    TextFormat format;
    format.bold = bold;
    box_.setFormat(format);
    box_.setPlain(bold ? "Ann Bee" : "Pager: 1");
    other_.insertLineBreak();
    other_.replaceSelection(box_.richText());
  }
  EXPECT_EQ(other_.text(), "\r\nAnn Bee\r\nPager: 1");
  box_.setRichText(other_.richText());

  CHARRANGE all{0, -1};
  const test_support::Drawing drawing = page(20000, all);
  ASSERT_EQ(drawing.joined(), "Ann Bee|Pager: 1|");
  EXPECT_EQ(drawing.texts[0].weight, FW_BOLD);
  EXPECT_EQ(drawing.texts[1].weight, FW_NORMAL);
  EXPECT_EQ(drawing.texts[0].colour, RGB(0, 0, 0));
  EXPECT_GT(drawing.texts[0].y, 0) << "below the empty line";
  EXPECT_EQ(all.cpMin, 17);
}

// A control takes far longer to empty than to fill.
TEST_F(RichTextBoxes, ALongTextGoesWithItsControl) {
  box_.setFormat({"Arial", 12, true});
  box_.setPlain(repeated("words\r\n", 4000));
  const HWND before = box_.handle();
  box_.setPlain("short");
  EXPECT_FALSE(IsWindow(before));
  EXPECT_EQ(GetDlgItem(window_, 10), box_.handle());
  EXPECT_EQ(box_.text(), "short");
  EXPECT_EQ(box_.format().points, 12);
}

// Empty lines before the first words have the document's format, too, in an old box and a new one.
TEST_F(RichTextBoxes, TheFontOfAFormIsNoneForDocuments) {
  box_.send(WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(SYSTEM_FONT)));
  box_.insertLineBreak();
  other_.insertLineBreak();
  EXPECT_EQ(box_.richText().rtf, other_.richText().rtf);
}

TEST_F(RichTextBoxes, SelectionsCountABreakAsOne) {
  box_.setPlain("one\r\ntwo");
  box_.select({4, 3});
  other_.setRichText(box_.selectedRichText());
  EXPECT_EQ(other_.text(), "two");
  box_.send(EM_SETSEL, 0, -1);
  EXPECT_EQ(box_.selection().length, 7) << "the final mark is no character of the text";
}

TEST_F(RichTextBoxes, PagesFollowEachOtherToTheEnd) {
  constexpr LONG height = 4 * 1440;
  box_.setPlain(repeated("a line of a few words\r\n", 400));
  std::size_t seen = 0;
  int pages = 0;
  for (CHARRANGE range{0, -1}; range.cpMin < box_.length() && pages < 100; ++pages) {
    // Measuring and rendering agree, and measuring draws nothing.
    CHARRANGE measured = range;
    EXPECT_TRUE(page(height, measured, false).texts.empty());
    const LONG measuredHeight = used_;
    const LONG first = range.cpMin;
    seen += page(height, range).texts.size();
    EXPECT_EQ(range.cpMin, measured.cpMin);
    EXPECT_EQ(used_, measuredHeight);
    EXPECT_LE(used_, height);
    ASSERT_GT(range.cpMin, first) << "every page goes on";
  }
  EXPECT_EQ(seen, 400U) << "every line once, none split";
  EXPECT_GT(pages, 10);
}

TEST_F(RichTextBoxes, ChangedTextIsFormattedAnew) {
  const auto joined = [&](LONG end = -1) {
    CHARRANGE range{0, end};
    return page(20000, range).joined();
  };
  EXPECT_EQ(joined(), "") << "an empty text has nothing to format";
  box_.setPlain("one");
  EXPECT_EQ(joined(), "one|");
  EXPECT_NEAR(used_, 15 * 20, 5 * 20) << "one line of 10 points";
  box_.select({3, 0});
  box_.send(EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(" more"));
  EXPECT_EQ(joined(), "one more|");
  EXPECT_EQ(box_.selection().start, 8) << "formatting leaves the caret alone";
  EXPECT_EQ(joined(3), "one|");
}

}  // namespace
}  // namespace paper
