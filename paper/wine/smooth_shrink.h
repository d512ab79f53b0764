// Making a picture smaller without losing its thin lines. On Windows, StretchBlt can do it in its
// mode HALFTONE; Wine's has no such mode and leaves out most lines.
#pragma once

#include <cstdint>
#include <span>

namespace paper::wine {

/// Makes each pixel of `small` (`width` columns) the mean of `factor` times `factor` pixels of
/// `large` (`largeWidth` columns), beginning at its first row and column. Pixels are 32 bits, eight
/// for each colour, row by row.
void shrinkSmoothly(std::span<const std::uint32_t> large, int largeWidth,
                    std::span<std::uint32_t> small, int width, int factor);

}  // namespace paper::wine
