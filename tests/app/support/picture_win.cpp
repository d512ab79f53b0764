#include "tests/app/support/picture_win.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <vector>

namespace drive {

namespace {

// Pixels of a part of the screen from the bottom row up, their fourth byte set.
std::vector<std::uint32_t> pixelsOf(const RECT& place, BITMAPINFO& info) {
  const int width = place.right - place.left, height = place.bottom - place.top;
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  const HDC screen = GetDC(nullptr);
  const HDC memory = CreateCompatibleDC(screen);
  void* bits = nullptr;
  const HBITMAP bitmap = CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  const HGDIOBJ old = SelectObject(memory, bitmap);
  BitBlt(memory, 0, 0, width, height, screen, place.left, place.top, SRCCOPY);
  GdiFlush();
  const auto* first = static_cast<const std::uint32_t*>(bits);
  std::vector<std::uint32_t> pixels(first, first + width * height);
  SelectObject(memory, old);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);
  for (std::uint32_t& pixel : pixels) pixel |= 0xFF000000;
  return pixels;
}

RECT placeOf(HWND window) {
  RECT place{};
  GetWindowRect(window, &place);
  return place;
}

}  // namespace

bool screenShows(HWND window) {
  BITMAPINFO info{};
  const std::vector<std::uint32_t> pixels = pixelsOf(placeOf(window), info);
  return !std::equal(pixels.begin() + 1, pixels.end(), pixels.begin());
}

bool takePicture(HWND window, const std::string& file) {
  if (!screenShows(window)) return false;
  BITMAPINFO info{};
  // What the program drew arrives on the screen a little later.
  constexpr DWORD pause = 60;
  std::vector<std::uint32_t> pixels, before;
  for (int i = 0; i < 20 && (pixels.empty() || pixels != before); ++i) {
    Sleep(pixels.empty() ? 0 : pause);
    before = std::move(pixels);
    pixels = pixelsOf(placeOf(window), info);
  }

  std::FILE* const stream = std::fopen(file.c_str(), "wb");
  if (stream == nullptr) return false;
  BITMAPFILEHEADER header{};
  const auto size = static_cast<DWORD>(pixels.size() * sizeof pixels.front());
  header.bfType = 0x4D42;
  header.bfOffBits = sizeof header + sizeof info.bmiHeader;
  header.bfSize = header.bfOffBits + size;
  const bool written = std::fwrite(&header, sizeof header, 1, stream) == 1 &&
                       std::fwrite(&info.bmiHeader, sizeof info.bmiHeader, 1, stream) == 1 &&
                       std::fwrite(pixels.data(), size, 1, stream) == 1;
  return std::fclose(stream) == 0 && written;
}

}  // namespace drive
