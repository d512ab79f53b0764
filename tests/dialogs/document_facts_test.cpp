#include "dialogs/document_facts.h"

#include <gtest/gtest.h>

#include "windowing/runtime_error.h"

namespace dialogs {
namespace {

TEST(DocumentFacts, TypeIsTheShellsOrTheExtension) {
  EXPECT_EQ(fileTypeText("Tellary Document", "a.tly"), "Tellary Document");
  EXPECT_EQ(fileTypeText("", "a.b.\xE9 tar"), "\xE9 TAR file");
  EXPECT_EQ(fileTypeText("", "README"), " file");
  const library::LeadByteTest japanese = [](unsigned char byte) { return byte == 0x83; };
  EXPECT_EQ(fileTypeText("",
                         "x.\x83\x61"
                         "b",
                         japanese),
            "\x83\x61"
            "B file");
}

TEST(DocumentFacts, PagesHoldWholeLines) {
  constexpr double inch = 1440;
  const ReportPage page{11 * inch, inch, inch, 240};  // room for 54 lines
  const struct {
    int lines;
    ReportPage page;
    int pages;
  } cases[] = {{0, page, 1},
               {54, page, 1},
               {55, page, 2},
               {109, page, 3},
               {54, {11 * inch, inch, inch + 1, 240}, 2},
               {3, {11 * inch, 6 * inch, 6 * inch, 240}, 3}};
  for (const auto& [lines, paper, pages] : cases)
    EXPECT_EQ(pageCount(lines, paper), pages) << lines;
  EXPECT_THROW(static_cast<void>(pageCount(1, {inch, 0, 0, 0})), windowing::RuntimeError);
}

}  // namespace
}  // namespace dialogs
