#include "windowing/smooth_shrink.h"

#include <cstddef>

namespace windowing {

void shrinkSmoothly(std::span<const std::uint32_t> large, std::span<std::uint32_t> small, int width,
                    int factor) {
  constexpr std::uint32_t channel = 0xFF;
  const auto columns = static_cast<std::size_t>(width);
  const auto side = static_cast<std::size_t>(factor);
  const auto pixels = static_cast<std::uint32_t>(factor * factor);
  for (std::size_t i = 0; i < small.size(); ++i) {
    const std::size_t corner = (i / columns * side * columns + i % columns) * side;
    std::uint32_t red = 0;
    std::uint32_t green = 0;
    std::uint32_t blue = 0;
    for (std::size_t y = 0; y < side; ++y) {
      for (std::size_t x = 0; x < side; ++x) {
        const std::uint32_t pixel = large[corner + y * columns * side + x];
        red += pixel >> 16 & channel;
        green += pixel >> 8 & channel;
        blue += pixel & channel;
      }
    }
    small[i] = red / pixels << 16 | green / pixels << 8 | blue / pixels;
  }
}

}  // namespace windowing
