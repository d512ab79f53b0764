// Numbers and truth values as text, as settings, controls and labels hold them. All conversions are
// here, so that "." and the user's own decimal sign are understood everywhere, whatever the locale
// of the C library.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace values {

constexpr char noGrouping = '\0';

/// The number that `text` consists of. Allowed are blanks around it, a leading sign, one decimal
/// sign ("." or `decimalSign`) and an exponent. No value for any other text: an empty one, one with
/// group signs, hexadecimal digits, "inf", "nan", or a number out of range.
[[nodiscard]] std::optional<double> parseNumber(std::string_view text, char decimalSign);

/// As `parseNumber`; raises type mismatch where the text is no number.
[[nodiscard]] double toNumber(std::string_view text, char decimalSign);

/// The same for stored settings. They hold the decimal sign that the user had when they were
/// written, so "," is allowed too, besides "." and `decimalSign`. Group signs are never stored.
[[nodiscard]] std::optional<double> parseStoredNumber(std::string_view text, char decimalSign);
[[nodiscard]] double storedNumber(std::string_view text, char decimalSign);

/// `toNumber` rounded half to even; raises type mismatch, or overflow outside the type.
[[nodiscard]] std::int16_t toInteger16(std::string_view text, char decimalSign);
[[nodiscard]] std::int32_t toInteger32(std::string_view text, char decimalSign);

/// The number that `text` begins with ("50 %" is 50), with "." as its only decimal sign and
/// blanks before it skipped; 0 where it begins with none. Raises overflow out of range.
[[nodiscard]] double leadingNumber(std::string_view text);

/// Shortest text of a single-precision value to 7 significant digits, without grouping, with
/// an exponent from 1E+07 up and below 0.0001. Raises overflow out of single range.
[[nodiscard]] std::string singleText(double value, char decimalSign);

/// As `singleText` for a double-precision value, to 15 significant digits (exponent from 1E+15).
[[nodiscard]] std::string doubleText(double value, char decimalSign);

/// Plain decimal digits, with "-" before a negative value.
[[nodiscard]] std::string integerText(std::int64_t value);

/// `value` with exactly `decimals` digits after the decimal sign and at least
/// `minimumIntegerDigits` before it (0 leaves the zero out: ".98"), grouped by thousands
/// unless `groupSeparator` is `noGrouping`. The decimal text of 15 significant digits is rounded
/// half away from zero: 0.25 gives "0.3" to one decimal. A value that rounds to zero has no "-".
/// Raises overflow for a value that is not finite.
[[nodiscard]] std::string formatDecimals(double value, int minimumIntegerDigits, int decimals,
                                         char decimalSign, char groupSeparator = noGrouping);

/// Truth value of a stored text: "True" or "False" in any case, or a number, where all but zero are
/// true. Raises type mismatch for any other text.
[[nodiscard]] bool booleanOfText(std::string_view text);

/// "True" or "False".
[[nodiscard]] std::string textOfBoolean(bool value);

/// Whether `text` is the word "true" in any case. No other text is an error.
[[nodiscard]] bool flagIsTrue(std::string_view text);

/// `text` with the letters A to Z in lower case. Other bytes stay as they are.
[[nodiscard]] std::string lowerCaseAscii(std::string_view text);

}  // namespace values
