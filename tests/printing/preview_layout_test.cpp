#include "printing/preview_layout.h"

#include <gtest/gtest.h>

#include "values/runtime_error.h"

namespace printing {
namespace {

constexpr PageSize letter{12240, 15840};
constexpr PageSize wide{15840, 12240};
constexpr PageSize a3{16838, 23811};
constexpr ViewSize usual{9900, 5700, 240, 240};
constexpr ViewSize tiny{200, 100, 240, 240};

// Sizes are computed in single precision.
void expectNear(const PageSpan& actual, const PageSpan& expected, double percent) {
  EXPECT_NEAR(actual.start, expected.start, 0.01) << percent;
  EXPECT_NEAR(actual.length, expected.length, 0.01) << percent;
  EXPECT_EQ(actual.scrollMax, expected.scrollMax) << percent;
}

TEST(PreviewLayout, PagesAtAPercentage) {
  struct Case {
    PageSize page;
    ViewSize view;
    double percent;
    PagePlace expected;
  };
  const Case cases[] = {
      // Narrower than the view: in the middle, as far as scroll bars leave it free.
      {letter, usual, 50, {{(9660 - 6120) / 2.0, 6120, 0}, {45, 7920, 7920 + 90 - 5460}}},
      {letter, usual, 25, {{(9660 - 3060) / 2.0, 3060, 0}, {45, 3960, 0}}},
      // Wider: both edges can be reached, and the ground beside them.
      {letter, usual, 100, {{45, 12240, 12240 + 90 - 9660}, {45, 15840, 15840 + 90 - 5460}}},
      {a3, usual, 200, {{45, 33676, 33676 + 90 - 9660}, {45, 47622, 47622 + 90 - 5460}}},
      // Exactly as wide as what is visible.
      {{9660, 1000}, usual, 100, {{0, 9660, 0}, {45, 1000, 0}}},
      {{9661, 1000}, usual, 100, {{45, 9661, 91}, {45, 1000, 0}}},
      // Nothing is visible at all.
      {letter, tiny, 25, {{45, 3060, 3150}, {45, 3960, 4050}}},
  };
  for (const Case& c : cases) {
    const PagePlace place = placeAtPercent(c.page, c.view, c.percent);
    expectNear(place.across, c.expected.across, c.percent);
    expectNear(place.down, c.expected.down, c.percent);
  }
  // Nothing is cut off without a word where lengths leave 32 bits.
  for (const double length : {1e10, 1e30})
    EXPECT_THROW((void)placeAtPercent({1, length}, usual, 100), values::RuntimeError) << length;
  // Single precision, as pictures have their sizes.
  EXPECT_EQ(placeAtPercent({12241, 1}, usual, 75).across.length, 12241.0F / 100 * 75);
}

TEST(PreviewLayout, FittedPages) {
  const PagePlace whole = placeWholePage(letter, usual);
  EXPECT_EQ(whole.down, (PageSpan{45, 5700 - 180 - 240, 0}));
  EXPECT_DOUBLE_EQ(whole.across.length, 5280 * 12240.0 / 15840);
  EXPECT_DOUBLE_EQ(whole.across.start, (9900 - 4080 - 240 - 60) / 2.0);
  EXPECT_EQ(whole.across.scrollMax, 0);

  // Wider than the view: its left edge must not lie where nobody can scroll to.
  const PagePlace broad = placeWholePage(wide, {4000, 5700, 240, 240});
  EXPECT_EQ(broad.across.start, 45);
  EXPECT_EQ(broad.across.scrollMax, static_cast<int>(5280 * 15840.0 / 12240 + 90 - 3760) + 1);

  const PagePlace width = placePageWidth(letter, usual);
  EXPECT_EQ(width.across, (PageSpan{45, 9900 - 240 - 180, 0}));
  EXPECT_DOUBLE_EQ(width.down.length, 9480 * 15840.0 / 12240);
  EXPECT_EQ(width.down.start, 45);
  EXPECT_EQ(width.down.scrollMax, static_cast<int>(9480 * 15840.0 / 12240 + 90 - 5460) + 1);

  for (const ViewSize& view : {tiny, ViewSize{}}) {
    for (const PagePlace& place : {placeWholePage(letter, view), placePageWidth(letter, view)}) {
      EXPECT_GE(place.across.length, 0);
      EXPECT_GE(place.down.length, 0);
      EXPECT_GE(place.across.start, 45);
    }
  }
}

TEST(PreviewLayout, ZoomingKeepsThePointThatWasClicked) {
  const PageSpan small{1770, 6120, 0};
  const PageSpan large{45, 24480, 14910};
  // The middle of the page stays at 4830; its ends stop at the ends of the range.
  EXPECT_EQ(scrollKeeping(4830, small, 0, large), 45 + 12240 - 4830);
  EXPECT_EQ(scrollKeeping(1770, small, 0, large), 0);
  EXPECT_EQ(scrollKeeping(9000, small, 0, large), 14910);
  EXPECT_EQ(scrollKeeping(500, large, 5000, large), 5000);
  EXPECT_EQ(scrollKeeping(4830, large, 7000, small), 0);
  EXPECT_EQ(scrollKeeping(100, {}, 0, large), 0) << "before anything was shown";
  EXPECT_EQ(scrollKeeping(4830, small, 0, {45, 1e10, 14910}), 14910);
}

}  // namespace
}  // namespace printing
