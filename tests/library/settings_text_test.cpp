#include "library/settings_text.h"

#include <gtest/gtest.h>

#include "windowing/runtime_error.h"

using namespace library;

TEST(SettingsText, Keys) {
  EXPECT_EQ(productKey("Maker", "Product", "\\frmMain\\View"),
            "SOFTWARE\\Maker\\Product\\frmMain\\View");
  EXPECT_EQ(sharedKey("Maker", "\\GLOBAL\\frmPPrev\\Items"),
            "SOFTWARE\\Maker\\GLOBAL\\frmPPrev\\Items");
  EXPECT_EQ(windowKey("Maker", "Product", "frmMain"), "SOFTWARE\\Maker\\Product\\frmMain\\Window");
  EXPECT_EQ(toolbarKey("Product"),
            "SOFTWARE\\Zandor Software Development\\Product\\frmMain\\Toolbar\\Standard");
  EXPECT_EQ(versionText(5, 3), "5.3");
}

TEST(SettingsText, RootsTravelAsDecimalText) {
  for (const char* root : {"-2147483648", "-2147483647", "-2147483646"})
    EXPECT_EQ(rootText(rootOfText(root)), root);
  for (const char* bad : {"", "HKEY_CURRENT_USER", "2147483649", "80000001h"})
    EXPECT_THROW((void)rootOfText(bad), windowing::RuntimeError) << bad;
}

TEST(SettingsText, WhatAReadMeans) {
  using namespace std::string_view_literals;
  const std::string blanks(settingBufferSize, ' ');
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
              {{true, 1, blanks, 0}, ""},
              {{true, 1, "abc"sv, 300}, "ab"},
              {{true, 3, "abc\0"sv, 4}, "default"},
              {{true, 4, "\1\0\0\0"sv, 4}, "default"},
              {{true, 7, "abc\0\0"sv, 5}, "default"},
              {{true, 0, "abc\0"sv, 4}, "default"},
              {{false, 1, "abc\0"sv, 4}, "default"},
              {{}, "default"}};
  for (const auto& row : rows) EXPECT_EQ(settingText(row.read, "default"), row.text);
}
