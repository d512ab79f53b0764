#include "controls/menu_text.h"

#include <gtest/gtest.h>

#include <vector>

using namespace controls;

TEST(MenuText, PartsOfACaption) {
  const struct {
    const char* caption;
    const char* words;
    const char* shortcut;
    char key;
    const char* spoken;
  } rows[] = {
      {"&First Page\tHome", "&First Page", "Home", 'F', "First Page Home"},
      {"Page Set&up...", "Page Set&up...", "", 'U', "Page Setup..."},
      {"Fish && &chips", "Fish && &chips", "", 'C', "Fish & chips"},
      {"100 %", "100 %", "", '\0', "100 %"},
      {"R&&D", "R&&D", "", '\0', "R&D"},
      {"Odd&", "Odd&", "", '\0', "Odd&"},
      {"Plain\t&X", "Plain", "&X", '\0', "Plain &X"},
      {"", "", "", '\0', ""},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(splitMenuText(row.caption).words, row.words) << row.caption;
    EXPECT_EQ(splitMenuText(row.caption).shortcut, row.shortcut) << row.caption;
    EXPECT_EQ(accessKey(row.caption), row.key) << row.caption;
    EXPECT_EQ(spokenText(row.caption), row.spoken) << row.caption;
  }
}

TEST(MenuText, KeysChooseItems) {
  std::vector<MenuEntry> entries = {
      {"&Save"}, {"&Print", false}, {"", true, true}, {"Save &As"},
      {"200 %"}, {"25 %"},          {"&Send"},        {"Page &Width\tCtrl+Q"}};
  const auto chosen = [&](char key) {
    const KeyChoice choice = chooseByKey(entries, key);
    return std::pair(choice.position, choice.run);
  };
  EXPECT_EQ(chosen('a'), std::pair(3, true));
  EXPECT_EQ(chosen('W'), std::pair(7, true));
  // What is not available is shown, not run.
  EXPECT_EQ(chosen('p'), std::pair(1, false));
  // Several take turns.
  EXPECT_EQ(chosen('s'), std::pair(0, false));
  entries[0].highlighted = true;
  EXPECT_EQ(chosen('S'), std::pair(6, false));
  entries[0].highlighted = false;
  entries[6].highlighted = true;
  EXPECT_EQ(chosen('s'), std::pair(0, false));
  // First letters, where nothing has the key; not of items that have a key of their own.
  EXPECT_EQ(chosen('2'), std::pair(4, false));
  entries[4].highlighted = true;
  EXPECT_EQ(chosen('2'), std::pair(5, false));
  EXPECT_EQ(chosen('q').first, -1);
  EXPECT_EQ(chosen('\0').first, -1);
}
