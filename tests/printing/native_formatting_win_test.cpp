// What is shipped to Windows: rich edit controls that format pages themselves. The program's own
// answer, which Wine needs, must keep out of it, and the pages be the same.
#include "tests/support/native_formatting_win.h"

#include <gtest/gtest.h>

#include <sstream>
#include <vector>

#include "dialogs/frmProps_ids.h"
#include "dialogs/frmProps_win.h"
#include "library/modLibrary_win.h"
#include "paper/printer_win.h"
#include "printing/clsPrinting_win.h"
#include "printing/frmPPrev_win.h"
#include "tests/support/print_job_win.h"
#include "tests/support/printers_win.h"
#include "tests/support/recording_win.h"
#include "tests/support/scratch_registry_win.h"

namespace printing {
namespace {

using test_support::NativeFormatting;
using test_support::TestPrinters;

template <typename Text>
std::string placed(const std::vector<Text>& texts) {
  std::ostringstream all;
  for (const Text& text : texts) all << text.x << ',' << text.y << ' ' << text.text << '\n';
  return all.str();
}

struct Pages {
  std::string ranges;  ///< the last character of every page, and where it ends
  std::int32_t count = 0;
  std::vector<std::string> previewed;
  std::vector<std::string> printed;
  std::string figures;  ///< pages and lines in the properties
};

class NativePages : public testing::Test {
 protected:
  NativePages() {
    windowing::seams().localTime = [] { return SYSTEMTIME{2024, 2, 1, 5, 9, 5, 0, 0}; };
    paper::printer().select(TestPrinters::a4);
    paper::printer().select(TestPrinters::letter);
    static_cast<void>(thePreview().unload());
  }
  ~NativePages() override {
    static_cast<void>(thePreview().unload());
    windowing::seams() = real_;
  }

  static std::string rangesOf(const paper::RichTextBox& box) {
    std::ostringstream ranges;
    const HDC dc = paper::printer().dc();
    for (CHARRANGE rest{0, -1}; rest.cpMin < box.length();) {
      FORMATRANGE range{dc, dc, {1000, 1000, 9000, 9000}, {}, rest};
      const auto next =
          static_cast<LONG>(box.send(EM_FORMATRANGE, FALSE, reinterpret_cast<LPARAM>(&range)));
      if (next <= rest.cpMin) return "no way on";
      rest.cpMin = next;
      ranges << next << " at " << range.rc.bottom << '\n';
    }
    box.send(EM_FORMATRANGE, FALSE, 0);
    return ranges.str();
  }

  Pages pagesOf(const std::string& text) {
    Pages pages;
    dialogs::frmProps properties;
    library::modLibrary().documentKind = "UNTITLED";
    properties.load();
    paper::RichTextBox report("RTF1");
    report.create(properties.handle(), 1, {0, 0, 9, 9});
    report.setPlain(text);
    properties.setDocumentText([&] { return report.text(); });
    properties.UPDATEINFO();
    pages.figures = properties.control(dialogs::props_id::TXTDOCPAGES).text() + " of " +
                    properties.control(dialogs::props_id::TXTDOCLINES).text();

    pages.ranges = rangesOf(report);
    engine_.INITIALIZEPATH(thePreview(), report);
    pages.count = engine_.PAGECOUNT(thePreview(), 1, 1, 1, 1, 1);
    for (std::int32_t page = 1; page <= pages.count; ++page) {
      engine_.PAGESEL(static_cast<std::int16_t>(page), thePreview().PICSTDPAGE());
      pages.previewed.push_back(
          placed(test_support::drawingOf(thePreview().PICSTDPAGE().recording()).texts));
    }
    TestPrinters::clearJobs();
    engine_.PRINTDOCUMENT(thePreview(), report, true);
    for (const auto& page : test_support::pagesOf(TestPrinters::letterJob()))
      pages.printed.push_back(placed(page.texts));
    static_cast<void>(thePreview().unload());
    return pages;
  }

  TestPrinters printers_;
  test_support::ScratchRegistry settings_;
  windowing::Seams real_ = windowing::seams();
  clsPrinting engine_{thePreview()};
};

TEST_F(NativePages, AreThoseOfTheProgramsOwnAnswer) {
  std::string text = "\r\n";
  for (int line = 1; line < 100; ++line) text += "Line " + std::to_string(line) + "\r\n";
  for (int word = 0; word < 200; ++word) text += "comments that wrap ";

  Pages own;
  {
    const NativeFormatting wine(false);
    own = pagesOf(text);
    EXPECT_GT(wine.takenOver(), 0) << "else nothing would be noticed below";
  }
  const NativeFormatting windows(true);
  const Pages native = pagesOf(text);
  EXPECT_EQ(windows.takenOver(), 0) << "the program's answer took part";
  EXPECT_GT(windows.drawn(), 0);
  EXPECT_EQ(windows.unreleased(), 0);

  EXPECT_EQ(native.count, 3);
  EXPECT_EQ(native.ranges, own.ranges);
  EXPECT_EQ(native.count, own.count);
  EXPECT_EQ(native.previewed, own.previewed);
  EXPECT_EQ(native.printed, own.printed);
  EXPECT_EQ(native.figures, own.figures);
  EXPECT_EQ(native.printed.size(), 3U);
}

}  // namespace
}  // namespace printing
