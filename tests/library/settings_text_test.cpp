#include "library/settings_text.h"

#include <gtest/gtest.h>

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
