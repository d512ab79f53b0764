#include "tests/app/support/picture_win.h"

#include "tests/support/files_win.h"

namespace drive {

namespace {

template <typename T>
std::string bytesOf(const T& value) {
  return {reinterpret_cast<const char*>(&value), sizeof value};
}

// Pixels of a part of the screen from the bottom row up, as bytes.
std::string pixelsOf(const RECT& place, const BITMAPINFO& info) {
  const LONG width = info.bmiHeader.biWidth, height = info.bmiHeader.biHeight;
  const values::WindowDc screen(nullptr);
  const values::MemoryDc memory(CreateCompatibleDC(screen.get()));
  void* bits = nullptr;
  const values::BitmapHandle bitmap(
      CreateDIBSection(memory.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  const values::Selected selected(memory.get(), bitmap.get());
  BitBlt(memory.get(), 0, 0, width, height, screen.get(), place.left, place.top, SRCCOPY);
  GdiFlush();
  return {static_cast<const char*>(bits),
          static_cast<std::size_t>((width * 3 + 3) / 4 * 4 * height)};
}

}  // namespace

bool takePicture(HWND window, const std::string& file) {
  RECT place{};
  GetWindowRect(window, &place);
  BITMAPINFO info{};
  info.bmiHeader = {sizeof info.bmiHeader,
                    place.right - place.left,
                    place.bottom - place.top,
                    1,
                    24,
                    BI_RGB,
                    0,
                    0,
                    0,
                    0,
                    0};
  // What the program drew arrives on the screen a little later.
  std::string pixels, before;
  for (int i = 0; i < 20 && (pixels.empty() || pixels != before); ++i) {
    Sleep(60);
    before = std::move(pixels);
    pixels = pixelsOf(place, info);
  }
  BITMAPFILEHEADER header{};
  header.bfType = 0x4D42;
  header.bfOffBits = sizeof header + sizeof info.bmiHeader;
  header.bfSize = header.bfOffBits + static_cast<DWORD>(pixels.size());
  return pixels.find_first_not_of('\0') != std::string::npos &&
         test_support::writeFile(file, bytesOf(header) + bytesOf(info.bmiHeader) + pixels);
}

}  // namespace drive
