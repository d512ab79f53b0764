#include "windowing/image_list_win.h"

#include <cstdint>
#include <cstring>

#include "windowing/application_win.h"
#include "windowing/picture_resource_win.h"
#include "windowing/screen_win.h"

namespace windowing {
namespace {

constexpr int sizeAt96 = 16;

// One pixel of the strip, as it lies in memory.
struct Pixel {
  std::uint8_t blue;
  std::uint8_t green;
  std::uint8_t red;
  std::uint8_t alpha;
};

// A pixel of a disabled picture: its grey, mixed with a middle grey so that it looks pale on a
// light and on a dark background.
Pixel faded(Pixel pixel) {
  const int grey = (pixel.red * 30 + pixel.green * 59 + pixel.blue * 11) / 100;
  const auto mixed = static_cast<std::uint8_t>((grey + 2 * 160) / 3);
  return {mixed, mixed, mixed, static_cast<std::uint8_t>(pixel.alpha * 55 / 100)};
}

ImageListHandle listOf(HBITMAP strip, int size, int count) {
  ImageListHandle list(ImageList_Create(size, size, ILC_COLOR32, count, 0));
  ImageList_Add(list.get(), strip, nullptr);
  return list;
}

values::BitmapHandle fadedCopy(const DIBSECTION& strip) {
  BITMAPINFO info{};
  info.bmiHeader = strip.dsBmih;
  info.bmiHeader.biCompression = BI_RGB;
  info.bmiHeader.biClrUsed = 0;
  void* bits = nullptr;
  values::BitmapHandle copy(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  if (!copy) return copy;
  const auto* from = static_cast<const Pixel*>(strip.dsBm.bmBits);
  auto* to = static_cast<Pixel*>(bits);
  const int count = strip.dsBm.bmWidth * strip.dsBm.bmHeight;
  for (int i = 0; i < count; ++i) to[i] = faded(from[i]);
  return copy;
}

}  // namespace

ImageList::ImageList(std::span<const ImageStrip> strips) {
  int resource = 0;
  for (const ImageStrip& strip : strips) {
    if (size_ != 0 && strip.size > scaled(sizeAt96)) continue;
    size_ = strip.size;
    resource = strip.resource;
  }
  const values::BitmapHandle strip(loadPicture(programInstance(), resource, Alpha::straight));
  DIBSECTION section{};
  if (!strip || size_ == 0 || GetObjectA(strip.get(), sizeof section, &section) != sizeof section ||
      section.dsBm.bmBitsPixel != 32)
    return;
  const int pictures = section.dsBm.bmWidth / size_;
  const values::BitmapHandle pale = fadedCopy(section);
  enabled_ = listOf(strip.get(), size_, pictures);
  disabled_ = listOf(pale.get(), size_, pictures);
}

int ImageList::count() const {
  return enabled_ ? ImageList_GetImageCount(enabled_.get()) : 0;
}

void ImageList::draw(HDC dc, int x, int y, int index, bool enabled) const {
  if (index < 0 || index >= count()) return;
  ImageList_Draw(enabled ? enabled_.get() : disabled_.get(), index, dc, x, y, ILD_TRANSPARENT);
}

}  // namespace windowing
