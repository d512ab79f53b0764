#include "controls/spin_value.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace controls {
namespace {

constexpr int tenthsInOne = 10;

constexpr bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

constexpr bool isDecimalSign(char c, char decimalSign) {
  return c == '.' || c == decimalSign;
}

}  // namespace

std::optional<int> parseTenths(std::string_view text, char decimalSign) {
  constexpr std::int64_t most = std::numeric_limits<int>::max();
  std::int64_t value = 0;
  int decimals = -1;  // how many digits follow the decimal sign; -1 while none was found
  bool anyDigit = false;
  for (const char c : text) {
    if (isDecimalSign(c, decimalSign)) {
      if (decimals >= 0) return std::nullopt;
      decimals = 0;
      continue;
    }
    if (!isDigit(c)) return std::nullopt;
    anyDigit = true;
    if (decimals >= 0) ++decimals;
    if (decimals <= 1) {
      value = std::min(value * tenthsInOne + (c - '0'), most);
    } else if (decimals == 2 && c >= '5') {
      value = std::min(value + 1, most);
    }
  }
  if (!anyDigit) return std::nullopt;
  if (decimals <= 0) value = std::min(value * tenthsInOne, most);
  return static_cast<int>(value);
}

std::string tenthsText(int tenths, char decimalSign) {
  return std::to_string(tenths / tenthsInOne) + decimalSign +
         static_cast<char>('0' + tenths % tenthsInOne);
}

bool acceptedWhileTyping(std::string_view text, char decimalSign) {
  int decimals = -1;
  for (const char c : text) {
    if (isDecimalSign(c, decimalSign)) {
      if (decimals >= 0) return false;
      decimals = 0;
    } else if (!isDigit(c) || decimals == 1) {
      return false;
    } else if (decimals == 0) {
      decimals = 1;
    }
  }
  return true;
}

int withinLimits(int tenths, const SpinLimits& limits) {
  // On a very small sheet of paper the highest can be below the lowest; then the lowest is used.
  return std::max(limits.lowest, std::min(tenths, limits.highest));
}

int stepped(int tenths, int steps, const SpinLimits& limits) {
  const std::int64_t moved = std::int64_t{tenths} + steps;
  const auto bounded = std::clamp<std::int64_t>(moved, 0, std::numeric_limits<int>::max());
  return withinLimits(static_cast<int>(bounded), limits);
}

}  // namespace controls
