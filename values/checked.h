// Whole-number arithmetic in 16 or 32 bits that raises an overflow instead of wrapping around.
#pragma once

#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>

#include "values/runtime_error.h"

namespace values {

/// `value` in the narrower type `To`; raises overflow where it does not fit.
template <std::signed_integral To>
[[nodiscard]] constexpr To checkedCast(std::int64_t value) {
  if (value < std::numeric_limits<To>::min() || value > std::numeric_limits<To>::max())
    raiseOverflow();
  return static_cast<To>(value);
}

/// Sum, difference and product in the type of the operands; each raises overflow.
template <std::signed_integral T>
requires(sizeof(T) <= 4) [[nodiscard]] constexpr T checkedAdd(T a, T b) {
  return checkedCast<T>(std::int64_t{a} + std::int64_t{b});
}
template <std::signed_integral T>
requires(sizeof(T) <= 4) [[nodiscard]] constexpr T checkedSubtract(T a, T b) {
  return checkedCast<T>(std::int64_t{a} - std::int64_t{b});
}
template <std::signed_integral T>
requires(sizeof(T) <= 4) [[nodiscard]] constexpr T checkedMultiply(T a, T b) {
  return checkedCast<T>(std::int64_t{a} * std::int64_t{b});
}

/// `value` rounded to the nearest whole number; a half is rounded to the even one.
[[nodiscard]] inline double roundHalfEven(double value) {
  const double below = std::floor(value);
  const double fraction = value - below;
  if (fraction < 0.5) return below;
  if (fraction > 0.5) return below + 1.0;
  return std::fmod(below, 2.0) == 0.0 ? below : below + 1.0;
}

/// `value` rounded half to even, as a `To`. Raises overflow where it does not fit or is not a
/// number.
template <std::signed_integral To>
[[nodiscard]] To roundTo(double value) {
  const double rounded = roundHalfEven(value);
  if (!(rounded >= static_cast<double>(std::numeric_limits<To>::min()) &&
        rounded <= static_cast<double>(std::numeric_limits<To>::max())))
    raiseOverflow();
  return static_cast<To>(rounded);
}

}  // namespace values
