// Pictures with an alpha for every colour of their palette. They take a quarter of the room that
// pictures of 32 bits a pixel would take in the executable. Windows ignores the alpha of a palette,
// so the program unpacks them itself.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace windowing {

/// Whether the colours of a picture are multiplied by its alpha (for AlphaBlend) or not (for image
/// lists).
enum class Alpha { straight, premultiplied };

/// Pixels as 0xAARRGGBB, bottom row first as in a bitmap of positive height.
struct Picture {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;
};

/// The picture in `bitmap`, which holds a BITMAPINFOHEADER, a palette and the rows of pixels as a
/// bitmap resource does: 4 or 8 bits a pixel, not compressed. No value for any other bytes.
[[nodiscard]] std::optional<Picture> unpackPicture(std::span<const std::byte> bitmap, Alpha alpha);

}  // namespace windowing
