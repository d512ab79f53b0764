#include "controls/spin_value.h"

#include <gtest/gtest.h>

#include <limits>

using namespace controls;

TEST(SpinValue, ReadsTextsInTenths) {
  const std::pair<const char*, int> good[] = {{"1", 10},     {"1.0", 10}, {"1,5", 15},
                                              {".5", 5},     {"2.", 20},  {"0.75", 8},
                                              {"0.7499", 7}, {"007", 70}, {"9.96", 100}};
  for (const auto& [text, tenths] : good) EXPECT_EQ(parseTenths(text, ','), tenths) << text;
  for (const char* bad : {"", ".", ",", "-1", "+1", "1.2.3", "1,2.3", "1 ", "a", "1e2", "0x1"})
    EXPECT_FALSE(parseTenths(bad, ',')) << bad;
  EXPECT_FALSE(parseTenths("1,5", '.'));
  EXPECT_EQ(parseTenths("99999999999999999999999", '.'), std::numeric_limits<int>::max());
}

TEST(SpinValue, StopsAtTheLimits) {
  EXPECT_EQ(stepped(48, 10, {0, 50}), 50);
  EXPECT_EQ(stepped(3, -10, {2, 50}), 2);
  EXPECT_EQ(tenthsText(stepped(4, 1, {0, 50}), ','), "0,5");
  EXPECT_EQ(stepped(0, std::numeric_limits<int>::min(), {0, 50}), 0);
  EXPECT_EQ(stepped(std::numeric_limits<int>::max(), 1, {}), SpinLimits{}.highest);
  // Paper too small for any margin.
  EXPECT_EQ(withinLimits(10, {0, -5}), 0);
}

TEST(SpinValue, TypingMayPassThroughUnfinishedTexts) {
  for (const char* good : {"", ".", ",", "1", "1.", "1.5", ",5", "1234567"})
    EXPECT_TRUE(acceptedWhileTyping(good, ',')) << good;
  for (const char* bad : {"-", "1.5.", "1.,", "1.55", "a", "1 ", "1.5a"})
    EXPECT_FALSE(acceptedWhileTyping(bad, ',')) << bad;
}
