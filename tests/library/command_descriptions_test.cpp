#include "library/command_descriptions.h"

#include <gtest/gtest.h>

using namespace library;

namespace {

const DescriptionContext mainWindow{"noun", "Product"};
const DescriptionContext preview{"noun", "Product", true};

std::string described(std::string_view caption, const DescriptionContext& context = mainWindow) {
  return commandDescription(caption, context).value_or("(none)");
}

}  // namespace

TEST(CommandDescriptions, FirstMatchInTableOrderWins) {
  const struct {
    const char *caption, *sameAs;
  } hidden[] = {{"&Save All", "&Save"}, {"&New Window", "&New"},
                {"&Copy to", "&Copy"},  {"&Address", "&Add"},
                {"&27", "&2"},          {"&Date Of Birth", "&Date Of Birth!"}};
  for (const auto& row : hidden) EXPECT_EQ(described(row.caption), described(row.sameAs));
  EXPECT_NE(described("&Date Of Birth"), described("&Date"));
  EXPECT_NE(described("&Properties"), described("Proper&ties"));
  EXPECT_NE(described("&Remove"), described("Re&move"));
  EXPECT_NE(described("Save &As"), described("&Save"));
  EXPECT_NE(described("Cl&ear Recent List"), described("Cl&ear"));
  for (const char* unknown : {"", "&save", "Save", "&Edit", "&View", "100%", " &New"})
    EXPECT_FALSE(commandDescription(unknown, mainWindow)) << unknown;
}

TEST(CommandDescriptions, NameTheNounTheProductAndTheirOwnWindow) {
  EXPECT_EQ(described("&Open..."), "Open an existing noun");
  EXPECT_EQ(described("E&xit\tAlt+F4"), "Quits Product; prompts to save noun");
  EXPECT_EQ(described("E&xit", {"noun", "Product", false, true}), "Quits Product");
  EXPECT_EQ(described("200 %"), "View noun at 200 %");
  EXPECT_EQ(described("&Close"), "Close the current document");
  EXPECT_EQ(described("&Close\tAlt+F4", preview), "Close Print Preview");
  EXPECT_EQ(described("&7 C:\\Book.tly"), "Open this recent document in Product");
  EXPECT_EQ(systemCommandDescription(61472), "Reduce the window to an icon");
  EXPECT_EQ(systemCommandDescription(61504), "");
}
