#include "windowing/indexed_picture.h"

#include <array>

namespace windowing {
namespace {

constexpr std::size_t headerSize = 40;
constexpr std::uint32_t largestSide = 16384;

std::uint32_t number(std::span<const std::byte> bytes, std::size_t at, std::size_t count) {
  std::uint32_t value = 0;
  for (std::size_t i = count; i-- > 0;)
    value = value << 8 | std::to_integer<std::uint32_t>(bytes[at + i]);
  return value;
}

std::uint32_t multiplied(std::uint32_t colour) {
  const std::uint32_t alpha = colour >> 24;
  const auto part = [&](int shift) {
    return ((colour >> shift & 0xFF) * alpha + 127) / 255 << shift;
  };
  return alpha << 24 | part(16) | part(8) | part(0);
}

}  // namespace

std::optional<Picture> unpackPicture(std::span<const std::byte> bitmap, Alpha alpha) {
  if (bitmap.size() < headerSize || number(bitmap, 0, 4) != headerSize) return std::nullopt;
  const std::uint32_t width = number(bitmap, 4, 4);
  const std::uint32_t height = number(bitmap, 8, 4);
  const std::uint32_t bits = number(bitmap, 14, 2);
  if (width == 0 || height == 0 || width > largestSide || height > largestSide ||
      (bits != 4 && bits != 8) || number(bitmap, 16, 4) != 0)
    return std::nullopt;
  const std::uint32_t most = 1U << bits;
  const std::uint32_t used = number(bitmap, 32, 4);
  const std::uint32_t colours = used == 0 ? most : used;
  if (colours > most) return std::nullopt;
  const std::size_t rowSize = (std::size_t{width} * bits + 31) / 32 * 4;
  const std::size_t start = headerSize + std::size_t{colours} * 4;
  if (bitmap.size() < start + rowSize * height) return std::nullopt;

  // A pixel with a number beyond the palette is transparent.
  std::array<std::uint32_t, 256> palette{};
  for (std::uint32_t i = 0; i < colours; ++i) {
    const std::uint32_t colour = number(bitmap, headerSize + std::size_t{i} * 4, 4);
    palette[i] = alpha == Alpha::premultiplied ? multiplied(colour) : colour;
  }

  Picture picture{static_cast<int>(width), static_cast<int>(height), {}};
  picture.pixels.reserve(std::size_t{width} * height);
  for (std::uint32_t y = 0; y < height; ++y) {
    const auto row = bitmap.subspan(start + y * rowSize, rowSize);
    for (std::uint32_t x = 0; x < width; ++x) {
      auto index = std::to_integer<std::uint32_t>(row[x * bits / 8]);
      if (bits == 4) index = x % 2 == 0 ? index >> 4 : index & 0xF;
      picture.pixels.push_back(palette[index]);
    }
  }
  return picture;
}

}  // namespace windowing
