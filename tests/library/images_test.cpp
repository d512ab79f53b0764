#include "library/images.h"

#include <gtest/gtest.h>

namespace library {
namespace {

TEST(Images, SizeFollowsTheResolution) {
  const struct {
    int dpi, size;
  } cases[] = {{72, 16},  {96, 16},  {119, 16}, {120, 20}, {143, 20},
               {144, 24}, {168, 24}, {192, 32}, {288, 32}};
  for (const auto& [dpi, size] : cases) EXPECT_EQ(imageSize(dpi), size) << dpi;
}

}  // namespace
}  // namespace library
