#include "dialogs/document_facts.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace dialogs
