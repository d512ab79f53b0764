#include "pagesetup/sample_page.h"

#include <gtest/gtest.h>

namespace pagesetup {
namespace {

constexpr double window = 2400;

void expectBox(const Box& box, const Box& expected) {
  EXPECT_NEAR(box.left, expected.left, 1e-6);
  EXPECT_NEAR(box.top, expected.top, 1e-6);
  EXPECT_NEAR(box.width, expected.width, 1e-6);
  EXPECT_NEAR(box.height, expected.height, 1e-6);
}

TEST(SamplePage, StripsCountInWholeInchesByWayOfTenths) {
  const std::pair<double, int> cases[] = {{0, 0},   {0.25, 0}, {0.44, 0}, {0.45, 1},
                                          {0.5, 1}, {1.44, 1}, {1.45, 2}};
  for (const auto& [inches, counts] : cases)
    for (const char sign : {'.', ','}) EXPECT_EQ(wholeInches(inches, sign), counts) << inches;
}

TEST(SamplePage, PaperFillsTheWindowByItsLongerSide) {
  const struct {
    double width;
    double height;
    Box paper;
  } cases[] = {{8.5, 11, {350, 100, 1700, 2200}},
               {11, 8.5, {100, 350, 2200, 1700}},
               {4, 4, {100, 100, 2200, 2200}},
               {1, 22, {1150, 100, 100, 2200}}};
  for (const auto& [width, height, paper] : cases) {
    const auto page = samplePage({width, height, {}}, {}, window);
    ASSERT_TRUE(page);
    expectBox(page->PICPAPER, paper);
    expectBox(page->PICSHADOW, {paper.left + 60, paper.top + 60, paper.width, paper.height});
    EXPECT_LE(page->PICSHADOW.left + page->PICSHADOW.width, window);
    EXPECT_LE(page->PICSHADOW.top + page->PICSHADOW.height, window);
  }
  EXPECT_FALSE(samplePage({0, 11, {}}, {}, window));
  EXPECT_FALSE(samplePage({8.5, 0, {}}, {}, window));
}

TEST(SamplePage, AreaLiesBetweenTheLargerOfMarginsAndStrips) {
  const PaperFacts plain{8.5, 11, {}};
  expectBox(samplePage(plain, {1, 2, 3, 4}, window)->SHPAREA.value(),
            {350 + 200 - 15, 100 + 600 - 15, 1700 - 600, 2200 - 1400});
  const PaperFacts strips{8.5, 11, {1, 0, 2, 1}};
  expectBox(samplePage(strips, {0.5, 0.5, 2.5, 0}, window)->SHPAREA.value(),
            {350 + 200 - 15, 100 + 500 - 15, 1700 - 300, 2200 - 700});
  EXPECT_TRUE(samplePage(plain, {4.2, 4.2, 0, 0}, window)->SHPAREA);
  for (const Sides& margins :
       {Sides{4.25, 4.25, 0, 0}, {0, 9, 0, 0}, {0, 0, 5.5, 5.5}, {0, 0, 12, 0}})
    EXPECT_FALSE(samplePage(plain, margins, window)->SHPAREA);
}

TEST(SamplePage, SizesShowTwoDecimals) {
  EXPECT_EQ(sizeText("Height: ", 595.0 / 72, '.'), "Height: 8.26");
  EXPECT_EQ(sizeText("Width: ", 0.98, ','), "Width: ,98");
}

TEST(SamplePage, MarginsLeaveMoreThanAnInchBetweenThem) {
  const std::pair<double, double> cases[] = {
      {8.5, 3.7}, {9, 3.9}, {5100 * (1440.0 / 600) / 1440, 3.7}, {595.0 / 72, 3.6}, {1.3, 0.1},
      {1.2, 0},   {0.5, 0}};
  for (const auto& [side, margin] : cases) EXPECT_DOUBLE_EQ(largestMargin(side), margin) << side;
}

}  // namespace
}  // namespace pagesetup
