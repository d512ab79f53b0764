#include "mainwindow/shown_text.h"

#include <gtest/gtest.h>

#include <string>

TEST(ShownText, IsWholeButForWhatNoBoxCanCarry) {
  const struct {
    std::string text;
    std::string back;
    bool multipleBytes;
    bool whole;
  } rows[] = {
      {"", "", false, true},
      {"one", "one", false, true},
      {"one", "two", false, false},  // the text before
      {"one", "", false, false},
      {"", "two", false, false},
      {"many\r\nlines", "many\r\nlines", false, true},
      {"many\r\nlines", "many", false, false},
      {"\x01tab\t.", "tab.", false, true},
      {std::string("nul\0inside", 10), "nul", false, true},
      {std::string("\0inside", 7), "", false, true},
      {"\x81", "?", false, false},
      {"\x81", "?", true, true},
      {"a\x81\x20z", "a?z", true, true},
      {"one", "two", true, false},
      {"\x83\x5C\x95\x5C", "", true, false},
  };
  for (const auto& [text, back, multipleBytes, whole] : rows)
    EXPECT_EQ(mainwindow::shownWhole(text, back, multipleBytes), whole) << text << "|" << back;
}
