#include "paper/page_picture_win.h"

#include <gtest/gtest.h>

#include "paper/page_drawing_win.h"
#include "tests/support/recording_win.h"
#include "windowing/screen_win.h"

namespace paper {
namespace {

// A grey ground to draw on.
class Canvas {
 public:
  Canvas(LONG width, LONG height) {
    const values::WindowDc screen(nullptr);
    dc_.reset(CreateCompatibleDC(screen.get()));
    bitmap_.reset(CreateCompatibleBitmap(screen.get(), width, height));
    SelectObject(dc_.get(), bitmap_.get());
    const RECT all{0, 0, width, height};
    FillRect(dc_.get(), &all, static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH)));
  }
  [[nodiscard]] HDC dc() const { return dc_.get(); }
  [[nodiscard]] COLORREF at(LONG x, LONG y) const { return GetPixel(dc_.get(), x, y); }
  // Darkest of a column's pixels, from 0 black to 255 white.
  [[nodiscard]] int darkest(LONG x, LONG top, LONG bottom) const {
    int found = 255;
    for (LONG y = top; y < bottom; ++y) found = std::min<int>(found, GetRValue(at(x, y)));
    return found;
  }

 private:
  values::BitmapHandle bitmap_;
  values::MemoryDc dc_;
};

TEST(PagePicture, IsShownOnWhitePaperAtAnySize) {
  PagePicture picture;
  picture.resize(6000, 9000);
  picture.begin(nullptr);
  drawPageRule(picture.dc(), 1000, 4500, 5000);
  picture.finish();
  for (const int percent : {25, 100, 200}) {
    const LONG width = windowing::screenPixels(60.0 * percent),
               height = windowing::screenPixels(90.0 * percent);
    const Canvas shown(width + 10, height + 10);
    const RECT place{10, 10, 10 + width, 10 + height};
    picture.draw(shown.dc(), place, place);
    const LONG column = 10 + width / 2;
    EXPECT_LT(shown.darkest(column, 10, height), 220) << percent << " %: the rule shows";
    EXPECT_EQ(shown.darkest(column, 10, height * 9 / 20), 255);
    EXPECT_EQ(shown.darkest(column, 10 + height * 11 / 20, 10 + height), 255);
    EXPECT_EQ(shown.darkest(10 + width / 20, 10, height), 255) << "left of the rule";
    EXPECT_EQ(shown.darkest(5, 10, height), 128) << "nothing beside the paper";
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
  for (const int percent : {25, 75, 200}) {
    const RECT place{7, 5, 7 + windowing::screenPixels(90.0 * percent),
                     5 + windowing::screenPixels(120.0 * percent)};
    const Canvas whole(place.right, place.bottom), parts(place.right, place.bottom);
    picture.draw(whole.dc(), place, place);
    const LONG middle = place.bottom / 3 + 2;
    picture.draw(parts.dc(), place, {0, 0, place.right, middle});
    EXPECT_EQ(parts.at(8, middle), RGB(128, 128, 128)) << "nothing beyond the part";
    picture.draw(parts.dc(), place, {0, middle, place.right / 2, place.bottom});
    picture.draw(parts.dc(), place, {place.right / 2, middle, place.right, place.bottom});
    int dark = 0, unlike = 0;
    for (LONG y = 0; y < place.bottom; y += 2)
      for (LONG x = 0; x < place.right; x += 2) {
        dark += GetRValue(whole.at(x, y)) < 128 ? 1 : 0;
        unlike += parts.at(x, y) == whole.at(x, y) ? 0 : 1;
      }
    EXPECT_GT(dark, 20) << percent;
    EXPECT_EQ(unlike, 0) << percent;
  }
}

}  // namespace
}  // namespace paper
