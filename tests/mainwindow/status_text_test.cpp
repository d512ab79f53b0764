#include "mainwindow/status_text.h"

#include <gtest/gtest.h>

#include "values/runtime_error.h"

using namespace mainwindow;

TEST(StatusText, PositionAndTitle) {
  EXPECT_EQ(statusText(0, 0), "");
  EXPECT_EQ(statusText(1, 0), "1 of 1 contacts.");
  EXPECT_EQ(statusText(32767, 32766), "32767 of 32767 contacts.");
  EXPECT_EQ(titleText("Product", ""), "Product - (Untitled)");
  EXPECT_EQ(titleText("Product", "C:\\A & B.tly"), "Product - (C:\\A & B.tly)");
}

TEST(StatusText, HeightOfWhatIsShown) {
  LayoutHeights heights{{420}, {375}, {4000}, {330}};
  for (const auto& [toolbar, statusBar, inner] :
       {std::tuple{true, true, 5215}, {true, false, 4885}, {false, true, 4795}}) {
    heights.toolbarShown = toolbar;
    heights.statusBarShown = statusBar;
    EXPECT_EQ(innerHeight(heights), inner);
    EXPECT_EQ(windowHeight(heights), inner + 700);
  }
  // Rounded once, in the end, and to 16 bits.
  EXPECT_EQ(innerHeight({{0.25}, {100}, {1000}, {0.25}}), 1190);
  EXPECT_EQ(innerHeight({{0.5}, {101}, {1000}, {0}}), 1192);
  EXPECT_EQ(windowHeight({{0}, {0}, {31977}, {0}}), 32767);
  EXPECT_THROW((void)windowHeight({{0}, {0}, {31978}, {0}}), values::RuntimeError);
}
