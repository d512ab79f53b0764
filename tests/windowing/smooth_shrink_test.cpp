#include "windowing/smooth_shrink.h"

#include <gtest/gtest.h>

#include <vector>

namespace windowing {
namespace {

TEST(SmoothShrink, TakesTheMeanOfEachBlock) {
  // Three blocks of two by two, above three more.
  const std::vector<std::uint32_t> large{
      0xFFFFFF, 0xFFFFFF, 0x000000, 0x000000, 0xFF0000, 0x0000FF,  //
      0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0x00FF00, 0x000000,  //
      0x000000, 0x000000, 0x040404, 0x080808, 0x101010, 0x101010,  //
      0x000000, 0x000000, 0x0C0C0C, 0x080808, 0x101010, 0x101010};
  std::vector<std::uint32_t> small(6);
  shrinkSmoothly(large, small, 3, 2);
  EXPECT_EQ(small, (std::vector<std::uint32_t>{0xFFFFFF, 0x7F7F7F, 0x3F3F3F, 0x000000, 0x080808,
                                               0x101010}));
  std::vector<std::uint32_t> same(large.size());
  shrinkSmoothly(large, same, 6, 1);
  EXPECT_EQ(same, large);
}

}  // namespace
}  // namespace windowing
