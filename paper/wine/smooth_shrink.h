// Bringing a picture to a smaller size without losing its thin lines. StretchBlt does it on
// Windows, in its mode HALFTONE; Wine's knows no such mode and leaves out most lines.
#pragma once

#include <cstdint>
#include <span>

namespace paper::wine {

/// Fills `small`, of `width` columns, with the means of blocks of `factor` times `factor` pixels
/// of `large`, of `largeWidth` columns, beginning at its first row and column. Pixels are 32 bits,
/// eight for each colour; the rows of both follow each other.
void shrinkSmoothly(std::span<const std::uint32_t> large, int largeWidth,
                    std::span<std::uint32_t> small, int width, int factor);

}  // namespace paper::wine
