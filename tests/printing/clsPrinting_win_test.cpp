#include "printing/clsPrinting_win.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "paper/printer_win.h"
#include "printing/compose_report_win.h"
#include "printing/frmPPrev_win.h"
#include "tests/support/print_job_win.h"
#include "tests/support/printers_win.h"
#include "tests/support/recording_win.h"
#include "tests/support/scratch_registry_win.h"
#include "values/runtime_error.h"
#include "windowing/application_win.h"
#include "windowing/seams_win.h"

namespace printing {
namespace {

using library::Setting;
using paper::printer;
using paper::RichTextBox;
using test_support::JobPage;
using test_support::lines;
using test_support::pagesOf;
using test_support::TestPrinters;
using windowing::Replaced;

// Texts of all pages but for the six of header and footer.
std::size_t bodyLines(const std::vector<JobPage>& pages) {
  std::size_t lines = 0;
  for (const JobPage& page : pages) lines += page.texts.size() - 6;
  return lines;
}

constexpr int ascent = 75;  // of letters of 10 points at 600 dots per inch

class Printing : public testing::Test {
 protected:
  Printing() {
    window_ = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr,
                              nullptr);
    RTF1_.create(window_, 1, {0, 0, 10, 10});
    printer().select(TestPrinters::a4);
    printer().select(TestPrinters::letter);
    windowing::seams().localTime = [] { return SYSTEMTIME{2024, 2, 1, 5, 9, 5, 0, 0}; };
    for (const Setting edge :
         {Setting::leftMargin, Setting::rightMargin, Setting::topMargin, Setting::bottomMargin})
      settings_.store(edge, "1");
    settings_.store(Setting::footerField1Text, "Ann Bee");
  }
  ~Printing() override {
    windowing::seams() = real_;
    DestroyWindow(window_);
  }

  // Prints as the toolbar does, without dialog.
  std::vector<JobPage> print() {
    TestPrinters::clearJobs();
    engine_.PRINTDOCUMENT(thePreview(), RTF1_, true);
    return pagesOf(TestPrinters::letterJob());
  }
  // What the preview draws of a page.
  test_support::Drawing draw(std::int16_t page) {
    engine_.INITIALIZEPATH(thePreview(), RTF1_);
    engine_.PAGESEL(page, thePreview().PICSTDPAGE());
    return test_support::drawingOf(thePreview().PICSTDPAGE().recording());
  }
  // Prints as the menu does; `answer` fills in the dialog.
  std::vector<JobPage> printAfter(std::function<BOOL(PRINTDLGA&)> answer,
                                  const RichTextBox* source = nullptr) {
    TestPrinters::clearJobs();
    const Replaced dialog(windowing::seams().printDialog, std::move(answer));
    engine_.PRINTDOCUMENT(thePreview(), source != nullptr ? *source : RTF1_, false);
    return pagesOf(TestPrinters::letterJob());
  }

  std::vector<JobPage> printRange(WORD from, WORD to) {
    return printAfter([from, to](PRINTDLGA& dialog) -> BOOL {
      dialog.Flags |= PD_PAGENUMS;
      dialog.nFromPage = from;
      dialog.nToPage = to;
      return TRUE;
    });
  }

  TestPrinters printers_;
  test_support::ScratchRegistry settings_;
  windowing::Seams real_ = windowing::seams();
  HWND window_ = nullptr;
  RichTextBox RTF1_{"RTF1"};
  clsPrinting engine_{thePreview()};
};

TEST_F(Printing, SendsHeaderFooterAndBodyOfEveryPage) {
  RTF1_.setPlain(lines(150));
  const std::vector<JobPage> pages = print();
  ASSERT_EQ(pages.size(), 3U);
  for (std::size_t page = 0; page < pages.size(); ++page)
    EXPECT_TRUE(
        pages[page].joined().starts_with("05/02/2024|9:05:00|Tellary Report.|Ann Bee|Untitled|" +
                                         std::to_string(page + 1) + "|Line "))
        << pages[page].joined().substr(0, 100);
  EXPECT_EQ(bodyLines(pages), 150U) << "every line on one page";
  EXPECT_GE(pages[2].find("Line 150").x, 0);

  // Pixels of 2.4 twips from the printable corner, which lies (360, 720) twips inside.
  const JobPage& first = pages[0];
  const struct {
    const char* start;
    double x, top;  // twips
  } places[] = {{"05/02", 1440 + 200, 1440 - 700},
                {"9:05", 11400 - 2500, 1440 - 700},
                {"Tellary", (11400 - 15 * 170) / 2.0 + 400, 1440 - 700},
                {"Ann", 1440 + 300, 14520 - 1440 + 360},
                {"Untitled", 11400 - 4000, 14520 - 1440 + 360},
                {"1", (11400 - 170) / 2.0, 14520 - 1440 + 360},
                {"Line 1", 1440 - 360, 1440 - 720}};
  for (const auto& [start, x, top] : places) {
    EXPECT_NEAR(first.find(start).x, x / 2.4, 0.6) << start;
    EXPECT_NEAR(first.find(start).y, top / 2.4 + ascent, 2) << start;
  }
  ASSERT_EQ(first.rules.size(), 2U);
  for (const int footer : {0, 1}) {
    const test_support::JobRule& rule = first.rules[static_cast<std::size_t>(footer)];
    EXPECT_NEAR(rule.x, (1440 - 200) / 2.4, 0.6);
    EXPECT_NEAR(rule.toX, (11400 - 1440) / 2.4, 0.6);
    EXPECT_NEAR(rule.y, (footer == 1 ? 14520 - 1440 + 200 : 1440 - 300) / 2.4, 0.6);
  }
  const int foot = (15840 - 1440 - 720) * 10 / 24;
  EXPECT_LE(first.texts.back().y, foot);
  EXPECT_GT(first.texts.back().y, foot - 120) << "the page is filled";
}

TEST_F(Printing, RoundsBodyMarginsToWholeInchesAndHandsTheOthersOverCrossed) {
  RTF1_.setPlain("Body");
  struct Case {
    const char* inches;
    int bodyTwips;
    int dateTwips;
  };
  for (const Case& c :
       {Case{"0.4", 0, 576}, {"0.5", 0, 720}, {"2.5", 2880, 3600}, {"1.5", 2880, 2160}}) {
    settings_.store(Setting::leftMargin, c.inches);
    const JobPage page = print().at(0);
    EXPECT_NEAR(page.find("Body").x, (c.bodyTwips - 360) / 2.4, 0.6) << c.inches;
    EXPECT_NEAR(page.find("05/02").x, (c.dateTwips + 200) / 2.4, 0.6) << c.inches;
  }
  const int usual = print().at(0).find("Ann").y;
  settings_.store(Setting::rightMargin, "2");
  EXPECT_NEAR(usual - print().at(0).find("Ann").y, 1440 / 2.4, 1) << "the right margin lifts it";
  settings_.store(Setting::rightMargin, "1");
  settings_.store(Setting::bottomMargin, "2");
  EXPECT_EQ(print().at(0).find("Ann").y, usual);
  EXPECT_NEAR(print().at(0).rules.at(1).toX, (11400 - 2880) / 2.4, 1) << "it shortens the rules";
}

TEST_F(Printing, EndsSilentlyWhereMarginsAreWrong) {
  RTF1_.setPlain("Body");
  for (const char* wrong : {"23", "x", "", "-23", "1e300"}) {
    settings_.store(Setting::topMargin, wrong);
    EXPECT_TRUE(print().empty()) << wrong;
  }
  // So far above the page that the header's place overflows, with the job open by then.
  settings_.store(Setting::topMargin, "-22.4");
  print();
  EXPECT_FALSE(printer().documentOpen());
  for (const char* odd : {"22", "-1", "0,5"}) {
    settings_.store(Setting::topMargin, odd);
    EXPECT_FALSE(print().empty()) << odd << " is no error, whatever room it leaves";
  }
  settings_.store(Setting::topMargin, "1");
  settings_.store(Setting::leftMargin, "5");
  settings_.store(Setting::rightMargin, "5");
  EXPECT_FALSE(print().empty()) << "no width";
}

TEST_F(Printing, PrintsTheRangeThatWasChosen) {
  RTF1_.setPlain(lines(200));
  const std::vector<JobPage> all = printAfter([](PRINTDLGA& dialog) -> BOOL {
    EXPECT_EQ(+dialog.Flags, 1048852U);
    EXPECT_EQ(+dialog.nFromPage, 1);
    EXPECT_EQ(+dialog.nToPage, 4);
    EXPECT_EQ(+dialog.nMaxPage, 4);
    return TRUE;
  });
  ASSERT_EQ(all.size(), 4U);
  const std::vector<JobPage> two = printRange(2, 3);
  ASSERT_EQ(two.size(), 2U);
  for (std::size_t page = 0; page < 2; ++page) {
    EXPECT_EQ(two[page].texts[5].text, std::to_string(page + 1)) << "numbered within the range";
    ASSERT_EQ(two[page].texts.size(), all[page + 1].texts.size());
    EXPECT_EQ(two[page].texts[6].text, all[page + 1].texts[6].text);
  }
  // The preview prints its own text, which a range must not have cut; nor does its flag stick.
  const std::vector<JobPage> again = printAfter(
      [](PRINTDLGA& dialog) -> BOOL {
        EXPECT_EQ(+dialog.Flags, 1048852U);
        return TRUE;
      },
      &thePreview().RTF3());
  EXPECT_EQ(again.size(), 4U);
  EXPECT_EQ(printRange(3, 9).size(), 2U);
  EXPECT_EQ(printRange(4, 2).size(), 1U);
}

TEST_F(Printing, MakesCopiesOfTheSelectionOnce) {
  RTF1_.setPlain("First\r\nSecond\r\nThird");
  RTF1_.select({6, 6});
  const std::vector<JobPage> pages = printAfter([](PRINTDLGA& dialog) -> BOOL {
    EXPECT_EQ(+dialog.Flags, 1048849U);
    dialog.nCopies = 3;
    return TRUE;
  });
  ASSERT_EQ(pages.size(), 1U);
  EXPECT_EQ(pages[0].texts.back().text, "Second");
  EXPECT_NE(TestPrinters::letterJob().find("copies=3"), std::string::npos);
  print();
  EXPECT_EQ(TestPrinters::letterJob().find("copies="), std::string::npos);
}

TEST_F(Printing, RecoversFromCancellingAndFromAPrinterThatFails) {
  RTF1_.setPlain(lines(100));
  printAfter([](PRINTDLGA&) { return FALSE; });
  EXPECT_EQ(TestPrinters::letterJob(), "");
  TestPrinters::blockLetterOutput();
  engine_.PRINTDOCUMENT(thePreview(), RTF1_, true);
  EXPECT_FALSE(printer().documentOpen());
  EXPECT_EQ(print().size(), 2U);
}

TEST_F(Printing, GoesToThePrinterThatWasChosen) {
  RTF1_.setPlain(lines(112));
  paper::Printer other;
  other.select(TestPrinters::a4);
  other.setOrientation(paper::Orientation::landscape);
  EXPECT_EQ(print().size(), 2U);
  const std::vector<JobPage> onLetter = printAfter([&](PRINTDLGA& dialog) -> BOOL {
    printer().adopt(other.name(), *reinterpret_cast<const DEVMODEA*>(other.settings().data()));
    GlobalFree(dialog.hDevMode);
    dialog.hDevMode = nullptr;
    return TRUE;
  });
  EXPECT_TRUE(onLetter.empty());
  const std::vector<JobPage> onA4 = pagesOf(TestPrinters::a4Job());
  EXPECT_EQ(onA4.size(), 3U) << "all the pages there, not as many as there were on the other";
  EXPECT_EQ(bodyLines(onA4), 112U);
  // Turned, the strips of 20 and 10 points lie at the left and at the top.
  EXPECT_NEAR(onA4[0].find("Line 1").x, (1440 - 400) / 4.8, 0.6);
  EXPECT_NEAR(onA4[0].find("Line 1").y, (1440 - 200) / 4.8 + ascent / 2.0, 2);
  printer().select(TestPrinters::letter);
}

TEST_F(Printing, GivesAnEmptyTextOnePage) {
  engine_.INITIALIZEPATH(thePreview(), RTF1_);
  thePreview().CMD1().toPage = 7;
  EXPECT_EQ(engine_.PAGECOUNT(thePreview(), 1, 1, 1, 1, 1), 1);
  EXPECT_EQ(thePreview().CMD1().toPage, 7) << "the dialog stays as it was";
  settings_.store(Setting::header, "0");
  settings_.store(Setting::footerField2, "2");
  const std::vector<JobPage> pages = print();
  ASSERT_EQ(pages.size(), 1U);
  EXPECT_EQ(pages[0].joined(), "Ann Bee|1|");
}

TEST_F(Printing, DrawsThePageOnShow) {
  RTF1_.setPlain(lines(150));
  const test_support::Drawing drawing = draw(2);
  EXPECT_EQ(thePreview().PICSTDPAGE().width(), 12240);
  const JobPage printed = print().at(1);
  EXPECT_EQ(drawing.joined(), printed.joined());
  EXPECT_EQ(drawing.lines.size(), 2U);
  // The picture is the whole paper: one inch from its edges is one inch from the paper's.
  EXPECT_EQ(drawing.texts[6].x, 600);
  EXPECT_NEAR(drawing.texts[6].y - printed.texts[6].y, 300, 1);
  EXPECT_NEAR(drawing.texts[2].x, ((12240 - 15 * 170) / 2.0 + 700) / 2.4, 0.6);
  EXPECT_NEAR(drawing.texts[4].x, (12240 - 5000) / 2.4, 0.6);
  settings_.store(Setting::rightMargin, "2");
  const test_support::DrawnLine rule = draw(2).lines.at(1);
  EXPECT_NEAR(rule.from.y, (15840 - 2880 + 200) / 2.4, 0.6) << "crossed as on paper";
  EXPECT_NEAR(rule.to.x, (12240 - 1440) / 2.4, 0.6);
  // Another product may write the margins while the page is on show.
  settings_.store(Setting::bottomMargin, "5");
  engine_.PAGESEL(2, thePreview().PICSTDPAGE());
  EXPECT_NE(test_support::drawingOf(thePreview().PICSTDPAGE().recording()).texts[6].text,
            drawing.texts[6].text);
}

TEST_F(Printing, FillsTheLinesUpToTheRightMargin) {
  std::string text;
  for (int i = 0; i < 500; ++i) text += "ii ";  // narrow, so that lines end close to the edge
  RTF1_.setPlain(text);
  settings_.store(Setting::rightMargin, "2");
  const test_support::Drawing drawing = draw(1);
  int widest = 0;
  for (const test_support::DrawnText& line : drawing.texts)
    if (line.text.starts_with("ii")) widest = std::max(widest, line.x + line.width);
  EXPECT_LE(widest, (12240 - 2880) * 10 / 24);
  EXPECT_GT(widest, (12240 - 2880 - 200) * 10 / 24);
}

TEST_F(Printing, ComposesTheReport) {
  document::ContactRecord values;
  values[document::Slot::FirstNames] = "Ann";
  values[document::Slot::Surname] = "{\\rtf1 Bee}";
  values[document::Slot::Comments] = "caf\xE9\r\nnext";
  values[document::Slot::WorkFax] = "12";
  for (int round = 0; round < 2; ++round) {
    composeReport(values, RTF1_, thePreview().RTF3());
    EXPECT_EQ(RTF1_.text(),
              "\r\nAnn {\\rtf1 Bee}\r\nComments: caf\xE9\r\nnext\r\nWork Fax Number: 12");
    const test_support::Drawing drawing = draw(1);
    ASSERT_EQ(drawing.texts.size(), 6U + 4U);
    EXPECT_EQ(drawing.texts[6].weight, FW_BOLD);
    for (std::size_t i = 7; i < 10; ++i) EXPECT_EQ(drawing.texts[i].weight, FW_NORMAL);
    const JobPage printed = print().at(0);
    EXPECT_TRUE(printed.texts.at(6).bold) << printed.joined();
    EXPECT_FALSE(printed.find("Work").bold);
  }
  composeReport({}, RTF1_, thePreview().RTF3());
  EXPECT_EQ(RTF1_.length(), 1) << "one line break and nothing else";
}

TEST(PrintingWithoutPrinter, IsSilent) {
  ASSERT_TRUE(paper::printerNames().empty());
  clsPrinting engine(thePreview());
  const test_support::ScratchRegistry settings;
  EXPECT_NO_THROW(engine.PRINTDOCUMENT(thePreview(), thePreview().RTF3(), true));
}

}  // namespace
}  // namespace printing
