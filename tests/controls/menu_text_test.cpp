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
      {"Odd&", "Odd&", "", '\0', "Odd&"},
      {"Plain\t&X", "Plain", "&X", '\0', "Plain &X"},
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
      {"200 %"}, {"25 %"},          {"&Send"},        {"Quite &Wide\tCtrl+Q"}};
  const struct {
    char key;
    int highlighted;  // -1: none
    int chosen;
    bool run;
  } rows[] = {{'a', -1, 3, true},
              {'W', -1, 7, true},
              {'p', -1, 1, false},  // not available: shown, not run
              {'s', -1, 0, false},
              {'S', 0, 6, false},
              {'s', 6, 0, false},  // several take turns
              // First letters, where nothing has the key; not of items with a key of their own.
              {'2', -1, 4, false},
              {'2', 4, 5, false},
              {'q', -1, -1, false},
              {'\0', -1, -1, false}};
  for (const auto& row : rows) {
    for (std::size_t i = 0; i < entries.size(); ++i)
      entries[i].highlighted = static_cast<int>(i) == row.highlighted;
    const KeyChoice choice = chooseByKey(entries, row.key);
    EXPECT_EQ(choice.position, row.chosen) << row.key;
    EXPECT_EQ(choice.run, row.run) << row.key;
  }
}
