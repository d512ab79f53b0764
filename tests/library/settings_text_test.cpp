#include "library/settings_text.h"

#include <gtest/gtest.h>

#include "library/settings.h"

using namespace library;

TEST(SettingsText, WhatAReadMeans) {
  using namespace std::string_view_literals;
  const std::string longest = std::string(254, 'x') + '\0';
  const struct {
    SettingRead read;
    std::string text;
  } rows[] = {{{true, 1, "abc\0   "sv, 4}, "abc"},
              {{true, 2, "%TEMP%\0"sv, 7}, "%TEMP%"},
              {{true, 1, longest, 255}, std::string(254, 'x')},
              {{true, 1, "abc    "sv, 3}, "ab"},  // stored without its terminator
              {{true, 1, "a\0b\0"sv, 4}, std::string("a\0b", 3)},
              {{true, 1, "\0"sv, 1}, ""},
              {{true, 1, "abc"sv, 0}, ""},
              {{true, 1, "abc"sv, 300}, "ab"},
              {{true, 3, "abc\0"sv, 4}, "default"},
              {{false, 1, "abc\0"sv, 4}, "default"}};
  for (const auto& row : rows) EXPECT_EQ(settingText(row.read, "default"), row.text);
}

// Where values lie is for good: this user's settings of before, and those that the maker's other
// products share, are found there and nowhere else.
TEST(SettingsTable, KeepsKeysNamesAndDefaults) {
  std::string seen;
  std::string last;
  for (const SettingRow& row : settings) {
    const std::string key = (row.scope == Scope::machine ? "all users: " : "") +
                            settingKey(row, "Maker", "Product", "form");
    if (key != last) seen += "\n" + key;
    last = key;
    seen += std::string("|") + row.name;
    if (row.otherwise != computed) seen += std::string("=") + row.otherwise;
  }
  EXPECT_EQ(seen, R"(
SOFTWARE\Maker\Product\form\Window|Window State|Left|Top|Width|Height
SOFTWARE\Maker\Product\frmMain\View|Standard Toolbar=True|Status Bar=True
SOFTWARE\Maker\Product\frmMain\Items|CMD Open Folder|CMD Save Folder
SOFTWARE\Zandor Software Development\Product\frmMain\Toolbar\Standard|Buttons
SOFTWARE\Maker\Product\frmPrefs\Items|Files Location
SOFTWARE\Maker\GLOBAL\frmPPrev\Items|Files Location|Zoom=50 %|Toolbar=True|Status Bar=True|Page Margin 0=1|Page Margin 1=1|Page Margin 2=1|Page Margin 3=1
SOFTWARE\Maker\GLOBAL\tems|Page Margin 0=1
SOFTWARE\Maker\Product\frmPPrev\Items\Header|Checked=1|chkTitle=1|chkHLine=1|chkDate=1|chkTime=1|txtTitle
SOFTWARE\Maker\Product\frmPPrev\Items\Footer|Checked=1|chkField1=1|chkField2=1|chkFLine=1|chkPgNo=1|txtField1|txtField2
all users: SOFTWARE\MICROSOFT\WINDOWS\CURRENTVERSION|RegisteredOwner=
SOFTWARE\MICROSOFT\WINDOWS\CURRENTVERSION|RegisteredOrganization=)");
}
