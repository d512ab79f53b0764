#include "values/number_text.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/error_of.h"

using namespace values;
using test_support::errorOf;

TEST(NumberText, ReadsWholeTextsWithPointOrTheUsersSign) {
  const std::pair<const char*, double> good[] = {
      {"0,5", 0.5}, {"-1237.5", -1237.5}, {" 42\t", 42},     {"+7", 7},    {".5", 0.5},
      {"5.", 5},    {"1e3", 1000},        {"-2.5E-1", -.25}, {"1e-400", 0}};
  for (const auto& [text, value] : good) EXPECT_EQ(toNumber(text, ','), value) << text;
  for (const char* bad : {"", " ", "-", ".", "1.2.3", "1,2.3", "1 2", "1'000", "0x10", "&H10",
                          "inf", "nan", "1e", "1e+", "e5", "12a", "--1", "1e400"}) {
    EXPECT_FALSE(parseNumber(bad, ',')) << bad;
    EXPECT_EQ(errorOf([&] { (void)toNumber(bad, ','); }), 13) << bad;
  }
  // The other sign is grouping, which would turn 1.5 into 15 or 1,000 into 1 without a word.
  EXPECT_FALSE(parseNumber("1,000", '.'));
  EXPECT_FALSE(parseNumber(std::string_view("1\0", 2), '.'));
}

TEST(NumberText, ReadsWhatWasStoredUnderAnotherCountrysSign) {
  const std::pair<const char*, double> good[] = {{"0,5", 0.5},      {"0.5", 0.5}, {"1,000", 1},
                                                 {"1.000", 1},      {"2", 2},     {"-45,5", -45.5},
                                                 {" 2,5E+02", 250}, {",5 ", .5}};
  for (const char sign : {'.', ',', '\''}) {
    for (const auto& [text, value] : good)
      EXPECT_EQ(storedNumber(text, sign), value) << text << " with " << sign;
    for (const char* bad : {"", ",", "1,000.5", "1.000,5", "1,2,3", "1.2.3", "1 000", "abc"}) {
      EXPECT_FALSE(parseStoredNumber(bad, sign)) << bad << " with " << sign;
      EXPECT_EQ(errorOf([&, s = sign] { (void)storedNumber(bad, s); }), 13) << bad;
    }
  }
  EXPECT_EQ(storedNumber("1'5", '\''), 1.5) << "the user's own sign";
}

TEST(NumberText, IntegersRoundHalfToEvenWithinTheirType) {
  EXPECT_EQ(toInteger16("2.5", '.'), 2);
  EXPECT_EQ(toInteger16("3,5", ','), 4);
  EXPECT_EQ(toInteger16("32767.4", '.'), 32767);
  EXPECT_EQ(errorOf([] { (void)toInteger16("32767.5", '.'); }), 6);
  EXPECT_EQ(errorOf([] { (void)toInteger32("2147483648", '.'); }), 6);
  EXPECT_EQ(errorOf([] { (void)toInteger32("one", '.'); }), 13);
}

TEST(NumberText, LeadingNumberOrNothing) {
  const std::pair<const char*, double> rows[] = {{"50 %", 50}, {"  8.5 x 11", 8.5}, {"1,5", 1},
                                                 {"-3a", -3},  {"2e", 2},           {"2e1x", 20},
                                                 {"", 0},      {"Page 2", 0},       {".", 0}};
  for (const auto& [text, value] : rows) EXPECT_EQ(leadingNumber(text), value) << text;
  EXPECT_EQ(errorOf([] { (void)leadingNumber("1e999 %"); }), 6);
}

TEST(NumberText, WritesTheShortestTextOfItsPrecision) {
  const struct {
    double value;
    const char *single, *full;
  } rows[] = {{-0.0, "0", "0"},
              {1237.5, "1237,5", "1237,5"},
              {60000.0 / 7, "8571,429", "8571,42857142857"},
              {9999999, "9999999", "9999999"},
              {12345678, "1,234568E+07", "12345678"},
              {1e15, "1E+15", "1E+15"},
              {0.0001, "0,0001", "0,0001"},
              {0.000025, "2,5E-05", "2,5E-05"}};
  for (const auto& row : rows) {
    EXPECT_EQ(singleText(row.value, ','), row.single);
    EXPECT_EQ(doubleText(row.value, ','), row.full);
  }
  EXPECT_EQ(errorOf([] { (void)singleText(1e39, '.'); }), 6);
  EXPECT_EQ(errorOf([] { (void)doubleText(std::nan(""), '.'); }), 6);
}

TEST(NumberText, PatternsRoundDecimalDigitsAwayFromZeroAndGroupThousands) {
  const struct {
    double value;
    int whole, decimals;
    const char* text;
  } rows[] = {
      {0.25, 1, 1, "0.3"},   {-0.25, 1, 1, "-0.3"},    {1.005, 1, 2, "1.01"},
      {-0.04, 1, 1, "0.0"},  {99.995, 1, 2, "100.00"}, {0.5, 1, 0, "1"},
      {-0.98, 0, 2, "-.98"}, {7, 2, 0, "07"},          {999, 1, 0, "999"},
      {1023, 1, 0, "1,023"}, {-1234, 1, 0, "-1,234"},  {4294967296., 1, 0, "4,294,967,296"}};
  for (const auto& row : rows)
    EXPECT_EQ(formatDecimals(row.value, row.whole, row.decimals, '.', ','), row.text);
  EXPECT_EQ(formatDecimals(1e15, 1, 2, ','), "1000000000000000,00");
  EXPECT_EQ(errorOf([] { (void)formatDecimals(HUGE_VAL, 1, 1, '.'); }), 6);
}

TEST(NumberText, TruthValues) {
  for (const char* text : {"True", "TRUE", "1", "-1", "0.5", "0,5", " True "})
    EXPECT_TRUE(booleanOfText(text)) << text;
  for (const char* text : {"False", "false", "0", "0.0", "0,0"})
    EXPECT_FALSE(booleanOfText(text)) << text;
  for (const char* text : {"", "yes", "Truer"})
    EXPECT_EQ(errorOf([&] { (void)booleanOfText(text); }), 13) << text;
  EXPECT_TRUE(flagIsTrue("tRuE"));
  EXPECT_FALSE(flagIsTrue("1"));
  EXPECT_EQ(lowerCaseAscii("AZ\xC0[@"), "az\xC0[@");
}
