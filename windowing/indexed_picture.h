// Pictures whose palette carries an alpha for every colour. Windows reads such a
// bitmap as an opaque one, so the program unpacks it itself: the pictures then take a
// quarter of the room in the executable that 32 bits for every pixel would.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace windowing {

/// How the colours of a picture relate to its alpha: as they are (image lists), or
/// multiplied by it (AlphaBlend).
enum class Alpha { straight, premultiplied };

/// Pixels as 0xAARRGGBB, bottom row first as in a bitmap of positive height.
struct Picture {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;
};

/// The picture in `bitmap`: a BITMAPINFOHEADER, its palette and the rows, as a bitmap
/// resource holds them, with 4 or 8 bits for every pixel and no compression. Nothing
/// where the bytes are no such bitmap.
[[nodiscard]] std::optional<Picture> unpackPicture(std::span<const std::byte> bitmap, Alpha alpha);

}  // namespace windowing
