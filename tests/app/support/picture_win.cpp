#include "tests/app/support/picture_win.h"

#include "tests/support/bitmap_win.h"

namespace drive {

bool takePicture(HWND window, const std::string& file) {
  RECT place{};
  GetWindowRect(window, &place);
  const LONG width = place.right - place.left, height = place.bottom - place.top;
  const values::WindowDc screen(nullptr);
  const test_support::Bitmap picture(width, height);
  // What the program drew arrives on the screen a little later.
  std::string pixels, before;
  for (int i = 0; i < 20 && (pixels.empty() || pixels != before); ++i) {
    Sleep(60);
    before = std::move(pixels);
    BitBlt(picture.dc(), 0, 0, width, height, screen.get(), place.left, place.top, SRCCOPY);
    pixels = picture.pixels();
  }
  return pixels.find_first_not_of('\0') != std::string::npos && picture.write(file);
}

}  // namespace drive
