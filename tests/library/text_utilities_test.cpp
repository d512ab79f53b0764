#include "library/text_utilities.h"

#include <gtest/gtest.h>

#include "values/runtime_error.h"

using namespace library;

TEST(TextUtilities, TokensAndPieces) {
  EXPECT_FALSE(charCheck("a:b", ':'));
  EXPECT_TRUE(charCheck("", ':'));
  const struct {
    const char *text, *token, *left;
  } tokens[] = {{"key=a=b", "=", "key"}, {"=a", "=", ""}, {"key", "=", ""}, {"a==b", "==", ""}};
  for (const auto& row : tokens) EXPECT_EQ(tokenLeft(row.text, row.token), row.left) << row.text;
  const struct {
    const char* text;
    std::int16_t number;
    double value;
  } pieces[] = {{"8.5;11;x", 1, 8.5}, {"8.5;11;x", 2, 11}, {"8.5;11;x", 3, 0}, {"8.5;11;7", 4, 0},
                {"8.5", 0, 0},        {"8.5", -1, 0},      {"8.5", 32767, 0},  {";;3 in", 3, 3}};
  for (const auto& row : pieces)
    EXPECT_EQ(piece(row.text, ';', row.number), row.value) << row.text << " " << row.number;
  const std::string longText = std::string(32765, ' ') + ";7";
  EXPECT_EQ(piece(longText, ';', 2), 7);
  EXPECT_THROW((void)piece(longText + "1", ';', 2), values::RuntimeError);
}

TEST(TextUtilities, NumberFormats) {
  const struct {
    const char *text, *one, *two;
  } rows[] = {{"1.125", "1,1", "1,13"},
              {"-0.25", "-0,3", "-0,25"},
              {"12345", "12345,0", "12345,00"},
              {"0,75", "0,8", "0,75"},
              {"", "", ""},
              {"1,5 in", "", ""}};
  for (const auto& row : rows) {
    EXPECT_EQ(textJustify(row.text, ','), row.one) << row.text;
    EXPECT_EQ(textJustifyCurrency(row.text, ','), row.two) << row.text;
    EXPECT_EQ(currencyFormat(row.text, ','), row.two) << row.text;
  }
  const std::pair<std::uint64_t, const char*> sizes[] = {
      {0, "0 Bytes"},
      {1023, "1.023 Bytes"},
      {1024, "1,00KB (1.024 Bytes)"},
      {1023999, "1000KB (1.023.999 Bytes)"},
      {10240000, "9,8MB (10.240.000 Bytes)"},
      {1024000000, "0,95GB (1.024.000.000 Bytes)"}};
  for (const auto& [bytes, text] : sizes) EXPECT_EQ(fileSizeText(bytes, ',', '.'), text);
}

TEST(TextUtilities, WordCount) {
  const std::pair<const char*, int> rows[] = {
      {"", 0},      {"one  two", 2}, {"hyphen-\r\nated", 1}, {"\r\n one two \r\n\r\n", 2},
      {"a - b", 3}, {"a\rb\nc", 1},  {"--\r\nx", 1},         {"-\r\n", 0}};
  for (const auto& [text, words] : rows) EXPECT_EQ(wordCount(text), words) << text;
  std::string book;
  for (int i = 0; i < 300000; ++i) book += "word   ";  // would take minutes if it were quadratic
  EXPECT_EQ(wordCount(book), 300000);
}

TEST(TextUtilities, ColoursAndCaptions) {
  EXPECT_EQ(hexValue(0xAB0901), "#0109AB19171");
  const std::pair<const char*, const char*> rows[] = {
      {"ff", "255"},  {"FFFF", "-1"}, {"8000", "-32768"}, {"", "0"},
      {"10000", "0"}, {"12G", "0"},   {"-1", "0"},        {"0x1", "0"}};
  for (const auto& [digits, decimal] : rows) EXPECT_EQ(hexToDecimal(digits), decimal) << digits;
  EXPECT_EQ(colorDepthText("24"), "16 million colors (24 bit)");
  EXPECT_EQ(colorDepthText("32"), "");
  // Captions are cut before their marks go.
  EXPECT_EQ(shortCaption(std::string(32, 'x')), std::string(32, 'x'));
  EXPECT_EQ(shortCaption("&&" + std::string(31, 'x')), std::string(30, 'x') + "...");
}

TEST(TextUtilities, AmountKeysAndComboHeights) {
  for (const int key : {48, 57, 8}) EXPECT_EQ(currencyKey("1.5", key), key);
  EXPECT_EQ(currencyKey("15", '.'), '.');
  EXPECT_EQ(currencyKey("1.5", '.'), 0);
  for (const int key : {44, 45, 97, 47, 58, 13}) EXPECT_EQ(currencyKey("15", key), 0) << key;
  EXPECT_EQ(comboListHeight("15", 13), 221);
  EXPECT_THROW((void)comboListHeight("many", 13), values::RuntimeError);
}

TEST(TextUtilities, WebAddresses) {
  const struct {
    const char *typed, *checked, *left;  // left: what the box holds after it was left
  } rows[] = {{"", "", ""},
              {"www.example.org", "http://www.example.org", "http://www.example.org"},
              {"HTTP://X", "HTTP://X", "HTTP://X"},
              {"Ftp://x", "Ftp://x", "Ftp://x"},
              {" http://x", "http:// http://x", "http:// http://x"},
              {"httpS://x", "http://httpS://x", "httpS://x"}};
  for (const auto& row : rows) {
    EXPECT_EQ(htmlFormatCheck(row.typed), row.checked);
    const auto written = webAddressOnLeave(row.typed);
    EXPECT_EQ(written.value_or(row.typed), row.left);
    EXPECT_EQ(written.has_value(), std::string(row.typed) != row.left) << row.typed;
  }
  EXPECT_EQ(fileCheck(""), "Untitled");
}
