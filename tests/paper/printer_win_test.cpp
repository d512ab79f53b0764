#include "paper/printer_win.h"

#include <gtest/gtest.h>

#include "tests/support/error_of.h"
#include "tests/support/printers_win.h"
#include "values/runtime_error.h"

namespace paper {
namespace {

using test_support::TestPrinters;

int occurrences(const std::string& text, const std::string& part) {
  int count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
    ++count;
  return count;
}

int pagesOf(const std::string& job) {
  return occurrences(job, "\n%%Page:");
}

using test_support::errorOf;
constexpr int printerError = static_cast<int>(values::ErrorNumber::printer);
constexpr int invalidCall = static_cast<int>(values::ErrorNumber::invalidCall);

TEST(NoPrinter, EveryOperationRaisesAPrinterError) {
  ASSERT_TRUE(printerNames().empty());
  Printer none;
  EXPECT_EQ(none.name(), "");
  EXPECT_EQ(errorOf([&] { (void)none.dc(); }), printerError);
  EXPECT_EQ(errorOf([&] { none.setPaperSize(1); }), printerError);
  EXPECT_EQ(errorOf([&] { none.newPage(); }), printerError);
  EXPECT_EQ(errorOf([&] { none.endDocument(); }), 0) << "there is nothing to end";
  {
    const TestPrinters printers;
    EXPECT_EQ(none.name(), TestPrinters::letter) << "as soon as there is one it is found";
    EXPECT_EQ(none.paperSize(), DMPAPER_LETTER);
  }
  // Taken away while it is in use, it refuses all, and what it was set to stays.
  EXPECT_EQ(errorOf([&] { none.setPaperSize(DMPAPER_A4); }), printerError);
  EXPECT_EQ(errorOf([&] { none.setOrientation(Orientation::landscape); }), printerError);
  EXPECT_EQ(none.paperSize(), DMPAPER_LETTER);
  EXPECT_EQ(none.orientation(), Orientation::portrait);
  EXPECT_EQ(errorOf([&] { none.startOutput(); }), printerError);
  EXPECT_FALSE(none.documentOpen());
}

class Printers : public testing::Test {
 protected:
  TestPrinters printers_;
  Printer printer_;
};

TEST_F(Printers, AreChosenByNameWithoutChangingTheWindowsDefault) {
  EXPECT_EQ(printerNames(), (std::vector<std::string>{TestPrinters::a4, TestPrinters::letter}));
  EXPECT_EQ(printer_.name(), TestPrinters::letter) << "whole, not cut off after 31 characters";
  printer_.select(TestPrinters::a4);
  EXPECT_EQ(printer_.name(), TestPrinters::a4);
  EXPECT_EQ(Printer().name(), TestPrinters::letter) << "the default";
  EXPECT_EQ(errorOf([&] { printer_.select("no such printer"); }), printerError);
  EXPECT_EQ(printer_.name(), TestPrinters::a4) << "a failed choice changes nothing";
}

TEST_F(Printers, AreKnownByNameAlsoWhenTheyCannotBeAskedForAnything) {
  TestPrinters::addBroken();
  EXPECT_EQ(printer_.name(), TestPrinters::broken);
  EXPECT_EQ(errorOf([&] { (void)printer_.paperSize(); }), printerError);
  printer_.select(TestPrinters::a4);
  EXPECT_EQ(printer_.paperSize(), DMPAPER_A4) << "another one can be chosen";
}

TEST_F(Printers, TurnAndChangeTheirPaperAtOnce) {
  const HDC dc = printer_.dc();
  printer_.setOrientation(Orientation::landscape);
  EXPECT_DOUBLE_EQ(printer_.width(), 15840);
  EXPECT_EQ(printer_.dc(), dc) << "the device context stays the same";
  printer_.setPaperSize(DMPAPER_A4);
  EXPECT_NEAR(printer_.height(), 595 * 20, 3) << "and the page stays turned";
  printer_.setOrientation(Orientation::portrait);
  EXPECT_NEAR(printer_.height(), 842 * 20, 3);
  printer_.setPaperSize(256);
  EXPECT_TRUE(printer_.paperSize() == DMPAPER_LETTER || printer_.paperSize() == DMPAPER_A4)
      << "says what it took instead of a paper that it does not have";
  const int before = printer_.paperSize();
  EXPECT_EQ(errorOf([&] { printer_.setPaperSize(0); }), invalidCall);
  EXPECT_EQ(errorOf([&] { printer_.setPaperSize(40000); }), invalidCall);
  EXPECT_EQ(errorOf([&] { printer_.setOrientation(static_cast<Orientation>(3)); }), invalidCall);
  EXPECT_EQ(errorOf([&] { printer_.setCopies(0); }), invalidCall);
  EXPECT_EQ(printer_.paperSize(), before);
}

TEST_F(Printers, OpenADocumentAtTheFirstOutput) {
  TextOutA(printer_.dc(), 500, 500, "too early", 9);
  printer_.endDocument();
  EXPECT_EQ(TestPrinters::letterJob(), "") << "without output there is no job";

  TextOutA(printer_.dc(), 500, 500, "too early", 9);
  TextOutA(printer_.startOutput(), 500, 500, "first", 5);
  EXPECT_EQ(printer_.startOutput(), printer_.dc()) << "one page, however often it is asked for";
  printer_.newPage();
  // What is set while a page is open waits for the next one.
  printer_.setOrientation(Orientation::landscape);
  EXPECT_DOUBLE_EQ(printer_.width(), 12240);
  printer_.newPage();
  EXPECT_DOUBLE_EQ(printer_.width(), 15840);
  printer_.endDocument();
  const std::string threePages = TestPrinters::letterJob();
  EXPECT_EQ(pagesOf(threePages), 3);
  EXPECT_EQ(occurrences(threePages, " glyphshow"), 5) << "the letters of \"first\" and no others";
  EXPECT_EQ(occurrences(threePages, "\n-90 rotate"), 1) << "one page is turned";

  TestPrinters::clearJobs();
  printer_.setCopies(3);
  printer_.startOutput();
  printer_.endDocument();
  const std::string job = TestPrinters::letterJob();
  EXPECT_EQ(pagesOf(job), 1) << "copies are the device's business";
  EXPECT_EQ(occurrences(job, "copies=3"), 1);
}

TEST_F(Printers, PrintAgainAfterAnError) {
  TestPrinters::blockLetterOutput();
  EXPECT_EQ(errorOf([&] {
              printer_.startOutput();
              printer_.endDocument();
            }),
            printerError);
  EXPECT_FALSE(printer_.documentOpen());
  printer_.startOutput();
  printer_.abandonDocument();
  EXPECT_FALSE(printer_.documentOpen());
  TestPrinters::clearJobs();
  printer_.startOutput();
  printer_.endDocument();
  EXPECT_EQ(pagesOf(TestPrinters::letterJob()), 1);
}

}  // namespace
}  // namespace paper
