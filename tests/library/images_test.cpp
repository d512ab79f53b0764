#include "library/images.h"

#include <gtest/gtest.h>

namespace library {
namespace {

TEST(Images, KeysMatchExactly) {
  EXPECT_EQ(imageIndex("NEW"), 0);
  EXPECT_EQ(imageIndex("SAVE AS"), 3);
  EXPECT_EQ(imageIndex("WEB"), 21);
  for (const auto* unknown : {"", "new", "SAVE ", "SAVE  AS", "CLOSE"})
    EXPECT_EQ(imageIndex(unknown), -1) << unknown;
}

TEST(Images, SizeFollowsTheResolution) {
  const struct {
    int dpi, size;
  } cases[] = {{72, 16},  {96, 16},  {119, 16}, {120, 20}, {143, 20},
               {144, 24}, {168, 24}, {192, 32}, {288, 32}};
  for (const auto& [dpi, size] : cases) EXPECT_EQ(imageSize(dpi), size) << dpi;
}

}  // namespace
}  // namespace library
