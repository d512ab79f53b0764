#include "windowing/page_picture_win.h"

#include <gtest/gtest.h>

#include "tests/support/recording_win.h"
#include "windowing/page_drawing_win.h"
#include "windowing/screen_win.h"

namespace windowing {
namespace {

// A picture of a page, shown at `percent` of its size on a grey ground.
class Shown {
 public:
  Shown(const PagePicture& picture, int percent)
      : width_(screenPixels(picture.width() * percent / 100)),
        height_(screenPixels(picture.height() * percent / 100)) {
    const WindowDc screen(nullptr);
    dc_.reset(CreateCompatibleDC(screen.get()));
    bitmap_.reset(CreateCompatibleBitmap(screen.get(), width_ + 20, height_ + 20));
    SelectObject(dc_.get(), bitmap_.get());
    const RECT all{0, 0, width_ + 20, height_ + 20};
    FillRect(dc_.get(), &all, static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH)));
    picture.draw(dc_.get(), {10, 10, 10 + width_, 10 + height_});
  }
  // Darkest of the column's pixels, from 0 black to 255 white; from the page's corner.
  [[nodiscard]] int darkest(int x, int top, int bottom) const {
    int found = 255;
    for (int y = top; y < bottom; ++y)
      found = std::min<int>(found, GetRValue(GetPixel(dc_.get(), 10 + x, 10 + y)));
    return found;
  }
  [[nodiscard]] int width() const { return width_; }
  [[nodiscard]] int height() const { return height_; }

 private:
  int width_;
  int height_;
  BitmapHandle bitmap_;
  MemoryDc dc_;
};

TEST(PagePicture, IsShownOnWhitePaperAtAnySize) {
  PagePicture picture;
  picture.resize(6000, 9000);
  picture.begin(nullptr);
  drawPageRule(picture.dc(), 1000, 4500, 5000);
  picture.finish();
  EXPECT_EQ(picture.dc(), nullptr);
  for (const int percent : {25, 50, 100, 200}) {
    const Shown shown(picture, percent);
    const int middle = shown.width() / 2;
    EXPECT_LT(shown.darkest(middle, 0, shown.height()), 220) << percent << " %: the rule shows";
    EXPECT_EQ(shown.darkest(middle, 0, shown.height() * 9 / 20), 255);
    EXPECT_EQ(shown.darkest(middle, shown.height() * 11 / 20, shown.height()), 255);
    EXPECT_EQ(shown.darkest(shown.width() / 20, 0, shown.height()), 255) << "left of the rule";
    EXPECT_EQ(shown.darkest(-5, 0, shown.height()), 128) << "nothing beside the paper";
  }
  picture.resize(3000, 9000);
  EXPECT_NE(picture.recording(), nullptr) << "a new size leaves the page on show";
  picture.begin(nullptr);
  picture.finish();
  EXPECT_TRUE(test_support::drawingOf(picture.recording()).lines.empty()) << "blank again";
}

TEST(PageDrawing, PlacesInTwips) {
  test_support::Recording recording;
  const int dpi = GetDeviceCaps(recording.dc(), LOGPIXELSX);
  drawPageText(recording.dc(), {}, 1440, -720, "text");
  POINT end{};
  MoveToEx(recording.dc(), 0, 0, &end);
  drawPageRule(recording.dc(), 720.4, 2880, 1440);
  const test_support::Drawing drawing = recording.drawing();
  ASSERT_EQ(drawing.texts.size(), 1U);
  EXPECT_EQ(drawing.texts[0].x, dpi);
  EXPECT_EQ(drawing.texts[0].y, -dpi / 2) << "places outside are not moved in";
  EXPECT_EQ(drawing.texts[0].colour, RGB(0, 0, 0));
  EXPECT_GT(end.x, dpi) << "the position is at the text's end";
  ASSERT_EQ(drawing.lines.size(), 1U);
  EXPECT_EQ(drawing.lines[0].from.x, dpi / 2);
  EXPECT_EQ(drawing.lines[0].to.y, 2 * dpi);
}

}  // namespace
}  // namespace windowing
