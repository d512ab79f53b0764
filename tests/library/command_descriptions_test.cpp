#include "library/command_descriptions.h"

#include <gtest/gtest.h>

using namespace library;

namespace {

const DescriptionContext mainWindow{"noun", "Product"};

std::string described(std::string_view caption, const DescriptionContext& context = mainWindow) {
  return commandDescription(caption, context).value_or("(none)");
}

}  // namespace

TEST(CommandDescriptions, FirstMatchInTableOrderWins) {
  const std::pair<const char*, const char*> hidden[] = {
      {"&Save All", "&Save"}, {"&Address", "&Add"}, {"&27", "&2"}};
  for (const auto& [caption, sameAs] : hidden) EXPECT_EQ(described(caption), described(sameAs));
  const std::pair<const char*, const char*> apart[] = {
      {"&Properties", "Proper&ties"}, {"Save &As", "&Save"}, {"Cl&ear Recent List", "Cl&ear"}};
  for (const auto& [caption, other] : apart) EXPECT_NE(described(caption), described(other));
  for (const char* unknown : {"", "&save", "Save", "100%", " &New"})
    EXPECT_FALSE(commandDescription(unknown, mainWindow)) << unknown;
}

TEST(CommandDescriptions, NameTheNounTheProductAndTheirOwnWindow) {
  EXPECT_EQ(described("E&xit\tAlt+F4"), "Quits Product; prompts to save noun");
  EXPECT_EQ(described("E&xit", {"noun", "Product", false, true}), "Quits Product");
  EXPECT_EQ(described("200 %"), "View noun at 200 %");
  EXPECT_EQ(described("&Close\tAlt+F4", {"noun", "Product", true}), "Close Print Preview");
  EXPECT_EQ(systemCommandDescription(61504), "");
}
