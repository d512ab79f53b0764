#include "windowing/richtextbox_win.h"

#include <gtest/gtest.h>

#include <memory>

#include "tests/support/recording_win.h"
#include "windowing/units.h"

namespace windowing {
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

  // Lays out one page on the screen's resolution and returns what was drawn on it.
  test_support::Drawing page(FORMATRANGE& range, LRESULT& next, bool render = true) {
    test_support::Recording recording;
    range.hdc = range.hdcTarget = recording.dc();
    next = box_.send(EM_FORMATRANGE, render ? TRUE : FALSE, reinterpret_cast<LPARAM>(&range));
    return recording.drawing();
  }
  static FORMATRANGE area(LONG width, LONG height, LONG first = 0) {
    return {nullptr, nullptr, {0, 0, width, height}, {0, 0, width, height}, {first, -1}};
  }

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
  struct Case {
    std::string text;
    std::string back;
    int length;
  };
  std::string high;
  for (int code = 0xA0; code <= 0xFF; ++code) high += static_cast<char>(code);
  const Case cases[] = {
      {"", "", 0},
      {"one\r\ntwo", "one\r\ntwo", 7},
      {"one\ntwo\r", "one\r\ntwo\r\n", 8},
      {"\r\n", "\r\n", 1},
      {"{\\rtf1 \\b bold}", "{\\rtf1 \\b bold}", 15},
      {"a\tb\\c{d}", "a\tb\\c{d}", 8},
      {" blanks ", " blanks ", 8},
      {"\x80\x8A\x93\x99" + high, "\x80\x8A\x93\x99" + high, 100},
      {repeated("0123456789", 1000), repeated("0123456789", 1000), 10000},
      {repeated("0123456789abcde\r\n", 5000), repeated("0123456789abcde\r\n", 5000), 80000},
  };
  for (const Case& c : cases) {
    box_.setPlain(c.text);
    EXPECT_EQ(box_.text(), c.back);
    EXPECT_EQ(box_.length(), c.length) << c.text.substr(0, 40);
  }
}

TEST_F(RichTextBoxes, PiecesAreInsertedAtTheCaretInTheirFormat) {
  other_.setPlain("");
  TextFormat bold;
  bold.bold = true;
  other_.insertLineBreak();
  box_.setFormat(bold);
  box_.setPlain("Ann Bee");
  other_.replaceSelection(box_.richText());
  box_.setFormat({});
  box_.setPlain("Pager: 1");
  other_.insertLineBreak();
  other_.replaceSelection(box_.richText());
  EXPECT_EQ(other_.text(), "\r\nAnn Bee\r\nPager: 1");
  EXPECT_EQ(other_.length(), 17);
  box_.setRichText(other_.richText());

  FORMATRANGE range = area(20000, 20000);
  LRESULT next = 0;
  const test_support::Drawing drawing = page(range, next);
  ASSERT_EQ(drawing.joined(), "Ann Bee|Pager: 1|");
  EXPECT_EQ(drawing.texts[0].weight, FW_BOLD);
  EXPECT_EQ(drawing.texts[1].weight, FW_NORMAL);
  EXPECT_EQ(drawing.texts[0].colour, RGB(0, 0, 0));
  EXPECT_GT(drawing.texts[0].y, 0) << "below the empty line";
  EXPECT_EQ(next, 17);
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

TEST_F(RichTextBoxes, SelectionsCountABreakAsOne) {
  box_.setPlain("one\r\ntwo");
  box_.select({4, 3});
  EXPECT_EQ(box_.selection().start, 4);
  EXPECT_EQ(box_.selection().length, 3);
  other_.setRichText(box_.selectedRichText());
  EXPECT_EQ(other_.text(), "two");
  box_.send(EM_SETSEL, 0, -1);
  EXPECT_EQ(box_.selection().length, 7) << "the final mark is no character of the text";
}

TEST_F(RichTextBoxes, PagesFollowEachOtherToTheEnd) {
  box_.setPlain(repeated("a line of a few words\r\n", 400));
  const int length = box_.length();
  int pages = 0;
  int seen = 0;
  LONG first = 0;
  while (first < length && pages < 1000) {
    // Measuring and rendering agree, and measuring draws nothing.
    FORMATRANGE measured = area(6 * twipsPerInch, 4 * twipsPerInch, first);
    LRESULT measuredNext = 0;
    EXPECT_TRUE(page(measured, measuredNext, false).texts.empty());
    FORMATRANGE drawn = area(6 * twipsPerInch, 4 * twipsPerInch, first);
    LRESULT next = 0;
    const test_support::Drawing drawing = page(drawn, next);
    EXPECT_EQ(next, measuredNext);
    EXPECT_EQ(drawn.rc.bottom, measured.rc.bottom);
    EXPECT_GT(drawn.rc.bottom, 0);
    EXPECT_LE(drawn.rc.bottom, 4 * twipsPerInch);
    ASSERT_GT(next, first) << "every page goes on";
    seen += static_cast<int>(drawing.texts.size());
    first = static_cast<LONG>(next);
    ++pages;
  }
  EXPECT_EQ(first, length);
  EXPECT_EQ(seen, 400) << "every line once, none split";
  EXPECT_GT(pages, 10);
  EXPECT_EQ(box_.send(EM_FORMATRANGE, FALSE, 0), 0);
}

TEST_F(RichTextBoxes, ChangedTextIsFormattedAnew) {
  FORMATRANGE range = area(20000, 20000);
  LRESULT next = 0;
  EXPECT_EQ(page(range, next).joined(), "");
  EXPECT_EQ(next, 0) << "an empty text has nothing to format";
  box_.setPlain("one");
  range = area(20000, 20000);
  EXPECT_EQ(page(range, next).joined(), "one|");
  EXPECT_GT(range.rc.bottom, 10 * 20) << "one line of 10 points";
  EXPECT_LT(range.rc.bottom, 2 * 10 * 20);
  box_.select({3, 0});
  box_.send(EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(" more"));
  range = area(20000, 20000);
  EXPECT_EQ(page(range, next).joined(), "one more|");
  EXPECT_EQ(box_.selection().start, 8) << "formatting leaves the caret alone";
  range = area(20000, 20000);
  range.chrg.cpMax = 3;
  EXPECT_EQ(page(range, next).joined(), "one|");
  EXPECT_EQ(next, 3);
  box_.setFormat({documentTypeface, documentPoints, true});
  range = area(20000, 20000);
  EXPECT_EQ(page(range, next).texts.at(0).weight, FW_BOLD);
}

}  // namespace
}  // namespace windowing
