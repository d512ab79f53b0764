// Lengths that carry their unit: twips (1440 to the inch) in designs, settings and on
// pages, pixels on devices. The device's resolution is always an argument.
#pragma once

#include <cmath>
#include <compare>

namespace values {

constexpr int twipsPerInch = 1440;
constexpr int designDpi = 96;  ///< resolution at which one pixel is 15 twips

/// A length in twips. It may have a fraction, since a pixel of a device need not be a whole number
/// of twips.
struct Twips {
  double value = 0;
  // clang-tidy takes the 0 that the compiler generates here for a pointer.
  // NOLINTNEXTLINE(modernize-use-nullptr)
  friend constexpr auto operator<=>(const Twips&, const Twips&) = default;
  friend constexpr Twips operator+(Twips a, Twips b) { return {a.value + b.value}; }
  friend constexpr Twips operator-(Twips a, Twips b) { return {a.value - b.value}; }
  friend constexpr Twips operator/(Twips a, double by) { return {a.value / by}; }
};

/// A length in whole device pixels.
struct Pixels {
  int value = 0;
  friend constexpr auto operator<=>(const Pixels&, const Pixels&) = default;
  friend constexpr Pixels operator+(Pixels a, Pixels b) { return {a.value + b.value}; }
  friend constexpr Pixels operator-(Pixels a, Pixels b) { return {a.value - b.value}; }
};

/// Nearest pixel of a length on a device of `dpi` dots per inch.
[[nodiscard]] inline Pixels toPixels(Twips length, int dpi) {
  return {static_cast<int>(std::lround(length.value * dpi / twipsPerInch))};
}

/// Exact length of `length` pixels on a device of `dpi` dots per inch.
[[nodiscard]] constexpr Twips toTwips(Pixels length, int dpi) {
  return {static_cast<double>(length.value) * twipsPerInch / dpi};
}

}  // namespace values
