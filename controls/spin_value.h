// The number in a spin field: one decimal, counted in whole tenths, so that ten steps of 0.1
// are exactly 1.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace controls {

/// Limits of a field, tenths; none is negative.
struct SpinLimits {
  int lowest = 0;
  int highest = 999;
  friend bool operator==(const SpinLimits&, const SpinLimits&) = default;
};

/// The number in `text`, in tenths; "." is allowed besides the user's decimal sign. No value for a
/// text that is no number yet ("", "."). A number too large for the type gives the largest one.
/// Decimals after the first are rounded half up.
[[nodiscard]] std::optional<int> parseTenths(std::string_view text, char decimalSign);

/// `tenths` as text with one decimal: "1.0".
[[nodiscard]] std::string tenthsText(int tenths, char decimalSign);

/// Whether a text may stand in a field while it is typed: digits, at most one decimal sign and
/// at most one digit after it.
[[nodiscard]] bool acceptedWhileTyping(std::string_view text, char decimalSign);

/// `tenths` within the limits.
[[nodiscard]] int withinLimits(int tenths, const SpinLimits& limits);

/// `tenths` moved by a number of steps of 0.1, stopping at the limits.
[[nodiscard]] int stepped(int tenths, int steps, const SpinLimits& limits);

}  // namespace controls
