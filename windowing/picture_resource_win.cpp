#include "windowing/picture_resource_win.h"

#include <algorithm>

namespace windowing {

HBITMAP loadPicture(HINSTANCE module, int id, Alpha alpha) {
  const HRSRC place = FindResourceA(module, MAKEINTRESOURCEA(id), RT_BITMAP);
  const HGLOBAL resource = place ? LoadResource(module, place) : nullptr;
  const auto* bytes = resource ? static_cast<const std::byte*>(LockResource(resource)) : nullptr;
  if (!bytes) return nullptr;
  const auto picture = unpackPicture({bytes, SizeofResource(module, place)}, alpha);
  if (!picture) return nullptr;

  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = picture->width;
  info.bmiHeader.biHeight = picture->height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  void* bits = nullptr;
  const HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  if (bitmap) std::ranges::copy(picture->pixels, static_cast<std::uint32_t*>(bits));
  return bitmap;
}

}  // namespace windowing
