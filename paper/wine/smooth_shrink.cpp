#include "paper/wine/smooth_shrink.h"

#include <cstddef>

namespace paper::wine {

// Red and blue are added up in one number, sixteen bits apart; the sums of 4 x 4 pixels need twelve
// bits.
void shrinkSmoothly(std::span<const std::uint32_t> large, int largeWidth,
                    std::span<std::uint32_t> small, int width, int factor) {
  constexpr std::uint32_t redAndBlue = 0xFF00FF;
  constexpr std::uint32_t channel = 0xFF;
  const auto columns = static_cast<std::size_t>(width);
  const auto side = static_cast<std::size_t>(factor);
  const auto pixels = static_cast<std::uint32_t>(factor * factor);
  const auto stride = static_cast<std::size_t>(largeWidth);
  std::uint32_t* shown = small.data();
  for (std::size_t row = 0; row < small.size() / columns; ++row) {
    const std::uint32_t* corner = large.data() + row * side * stride;
    for (std::size_t column = 0; column < columns; ++column, corner += side) {
      std::uint32_t pair = 0;
      std::uint32_t green = 0;
      for (std::size_t y = 0; y < side; ++y) {
        for (std::size_t x = 0; x < side; ++x) {
          const std::uint32_t pixel = corner[y * stride + x];
          pair += pixel & redAndBlue;
          green += pixel >> 8 & channel;
        }
      }
      *shown++ = (pair >> 16) / pixels << 16 | green / pixels << 8 | (pair & 0xFFFF) / pixels;
    }
  }
}

}  // namespace paper::wine
