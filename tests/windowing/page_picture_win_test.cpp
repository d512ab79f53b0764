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

// What scrolling brings into view must join what is there.
TEST(PagePicture, PartsJoinToTheWhole) {
  PagePicture picture;
  picture.resize(9000, 12000);
  picture.begin(nullptr);
  for (int line = 0; line < 30; ++line)
    drawPageText(picture.dc(), {}, 500, 400.0 * line, "Some words on a line of their own");
  picture.finish();
  const WindowDc screen(nullptr);
  for (const int percent : {25, 75, 200}) {
    const RECT place{7, 5, 7 + screenPixels(90.0 * percent), 5 + screenPixels(120.0 * percent)};
    const MemoryDc whole(CreateCompatibleDC(screen.get()));
    const MemoryDc parts(CreateCompatibleDC(screen.get()));
    const BitmapHandle one(CreateCompatibleBitmap(screen.get(), place.right, place.bottom));
    const BitmapHandle other(CreateCompatibleBitmap(screen.get(), place.right, place.bottom));
    const Selected first(whole.get(), one.get());
    const Selected second(parts.get(), other.get());
    picture.draw(whole.get(), place);
    const LONG middle = place.bottom / 3 + 2;
    picture.draw(parts.get(), place, {0, 0, place.right, middle});
    EXPECT_EQ(GetPixel(parts.get(), 8, middle), RGB(0, 0, 0)) << "nothing beyond the part";
    picture.draw(parts.get(), place, {0, middle, place.right / 2, place.bottom});
    picture.draw(parts.get(), place, {place.right / 2, middle, place.right, place.bottom});
    int dark = 0;
    int unlike = 0;
    for (int y = 0; y < place.bottom; y += 2)
      for (int x = 0; x < place.right; x += 2) {
        const COLORREF wanted = GetPixel(whole.get(), x, y);
        dark += GetRValue(wanted) < 128 && x >= place.left && y >= place.top ? 1 : 0;
        unlike += GetPixel(parts.get(), x, y) == wanted ? 0 : 1;
      }
    EXPECT_GT(dark, 20) << percent;
    EXPECT_EQ(unlike, 0) << percent;
  }
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
