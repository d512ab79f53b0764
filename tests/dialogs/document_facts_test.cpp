#include "dialogs/document_facts.h"

#include <gtest/gtest.h>

#include "windowing/runtime_error.h"

namespace dialogs {
namespace {

TEST(DocumentFacts, KindsHaveTheirPages) {
  const struct {
    const char* kind;
    ShownPages pages;
  } cases[] = {
      {"UNTITLED", {true, false}}, {"DOCUMENT", {true, false}},   {"Document", {true, false}},
      {"PICTURE", {false, true}},  {"picture", {false, true}},    {"TEMPLATE", {false, false}},
      {"", {false, false}},        {"DOCUMENTS", {false, false}},
  };
  for (const auto& [kind, pages] : cases) EXPECT_EQ(pagesOfKind(kind), pages) << kind;
}

TEST(DocumentFacts, TypeIsTheShellsOrTheExtension) {
  const library::LeadByteTest japanese = [](unsigned char byte) { return byte == 0x83; };
  EXPECT_EQ(fileTypeText("Tellary Document", "a.tly"), "Tellary Document");
  EXPECT_EQ(fileTypeText("", "a.tly"), "TLY file");
  EXPECT_EQ(fileTypeText("", "a.b.tar"), "TAR file");
  EXPECT_EQ(fileTypeText("", "a.\xE9 1"), "\xE9 1 file");
  EXPECT_EQ(fileTypeText("",
                         "a.x\x83"
                         "a",
                         japanese),
            "X\x83"
            "a file");
  EXPECT_EQ(fileTypeText("", "README"), " file");
}

TEST(DocumentFacts, LocationIsTheFolder) {
  EXPECT_EQ(locationText("C:\\Data\\a.tly"), "C:\\Data");
  EXPECT_EQ(locationText("C:\\a.tly"), "C:\\");
  EXPECT_EQ(locationText("C:\\"), "C:\\");
  EXPECT_EQ(locationText("\\\\server\\share\\a.tly"), "\\\\server\\share");
  EXPECT_EQ(locationText("a.tly"), "");
}

TEST(DocumentFacts, PagesHoldWholeLines) {
  constexpr double inch = 1440;
  const ReportPage page{11 * inch, inch, inch, 240};  // room for 54 lines
  const struct {
    int lines;
    ReportPage page;
    int pages;
  } cases[] = {
      {0, page, 1},
      {1, page, 1},
      {54, page, 1},
      {55, page, 2},
      {108, page, 2},
      {109, page, 3},
      {54, {11 * inch, inch, inch + 1, 240}, 2},
      {3, {11 * inch, 6 * inch, 6 * inch, 240}, 3},
      {3, {100, 0, 0, 240}, 3},
  };
  for (const auto& [lines, paper, pages] : cases)
    EXPECT_EQ(pageCount(lines, paper), pages) << lines;
  EXPECT_THROW(static_cast<void>(pageCount(1, {})), windowing::RuntimeError);
  EXPECT_THROW(static_cast<void>(pageCount(1, {inch, 0, 0, 0})), windowing::RuntimeError);
}

}  // namespace
}  // namespace dialogs
