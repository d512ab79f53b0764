#include "tests/support/bitmap_win.h"

#include "tests/support/files_win.h"

namespace test_support {
namespace {

BITMAPINFOHEADER headerOf(LONG width, LONG height) {
  BITMAPINFOHEADER header{};
  header.biSize = sizeof header;
  header.biWidth = width;
  header.biHeight = height;
  header.biPlanes = 1;
  header.biBitCount = 24;
  return header;
}

template <typename T>
std::string bytesOf(const T& value) {
  return {reinterpret_cast<const char*>(&value), sizeof value};
}

}  // namespace

Bitmap::Bitmap(LONG width, LONG height)
    : dc_(CreateCompatibleDC(nullptr)), header_(headerOf(width, height)) {
  BITMAPINFO info{};
  info.bmiHeader = header_;
  bitmap_.reset(CreateDIBSection(dc_.get(), &info, DIB_RGB_COLORS, &bits_, nullptr, 0));
  selected_.emplace(dc_.get(), bitmap_.get());
}

std::string Bitmap::pixels() const {
  GdiFlush();
  return {static_cast<const char*>(bits_),
          static_cast<std::size_t>((header_.biWidth * 3 + 3) / 4 * 4 * header_.biHeight)};
}

bool Bitmap::write(const std::string& file) const {
  const std::string drawn = pixels();
  BITMAPFILEHEADER header{};
  header.bfType = 0x4D42;
  header.bfOffBits = sizeof header + sizeof header_;
  header.bfSize = header.bfOffBits + static_cast<DWORD>(drawn.size());
  return writeFile(file, bytesOf(header) + bytesOf(header_) + drawn);
}

}  // namespace test_support
