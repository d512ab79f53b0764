#include "values/number_text.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include "values/checked.h"

namespace values {
namespace {

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}
bool isBlank(char c) {
  return c == ' ' || c == '\t';
}

std::string_view trimmed(std::string_view text) {
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

std::size_t countDigits(std::string_view text, std::size_t from) {
  std::size_t at = from;
  while (at < text.size() && isDigit(text[at])) ++at;
  return at - from;
}

/// Length of the number at the start of `text`; 0 where there is none. An "e" belongs to the number
/// only if digits follow.
std::size_t numberLength(std::string_view text, char decimalSign) {
  std::size_t at = !text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0;
  std::size_t digits = countDigits(text, at);
  at += digits;
  if (at < text.size() && (text[at] == '.' || text[at] == decimalSign)) {
    const std::size_t fraction = countDigits(text, at + 1);
    digits += fraction;
    at += 1 + fraction;
  }
  if (digits == 0) return 0;
  if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
    std::size_t exponent = at + 1;
    if (exponent < text.size() && (text[exponent] == '-' || text[exponent] == '+')) ++exponent;
    if (const std::size_t length = countDigits(text, exponent); length > 0) at = exponent + length;
  }
  return at;
}

/// Value of a text that `numberLength` accepted; infinite where it is out of range. The program
/// stays in the C locale, so the decimal sign of the C library is always ".".
double valueOf(std::string_view number, char decimalSign) {
  std::string copy(number);
  std::replace(copy.begin(), copy.end(), decimalSign, '.');
  return std::strtod(copy.c_str(), nullptr);
}

/// Decimal digits of a finite value, the most significant first. `point` is the number of
/// digits before the decimal point; zero or negative where the value is below 0.1.
struct DecimalDigits {
  bool negative = false;
  std::string digits;
  int point = 0;
};

DecimalDigits decimalDigits(double value, int significant) {
  if (!std::isfinite(value)) raiseOverflow();
  char buffer[40];
  static_cast<void>(
      std::snprintf(buffer, sizeof buffer, "%.*e", significant - 1, std::fabs(value)));
  DecimalDigits result;
  result.negative = value < 0;
  const char* at = buffer;
  for (; *at != 'e'; ++at)
    if (isDigit(*at)) result.digits += *at;
  // Read as a number, because C libraries write exponents with different numbers of digits.
  constexpr int decimal = 10;
  result.point = static_cast<int>(std::strtol(at + 1, nullptr, decimal)) + 1;
  return result;
}

/// Rounds to the first `keep` digits, half away from zero; `number` must have more.
void roundDigits(DecimalDigits& number, int keep) {
  std::string& digits = number.digits;
  const bool up = keep >= 0 && digits[static_cast<std::size_t>(keep)] >= '5';
  digits.resize(static_cast<std::size_t>(std::max(keep, 0)));
  if (!up) return;
  auto at = digits.rbegin();
  for (; at != digits.rend() && *at == '9'; ++at) *at = '0';
  if (at != digits.rend()) {
    ++*at;
  } else {
    digits.insert(digits.begin(), '1');
    ++number.point;
  }
}

/// The digits before and after the decimal sign, filled up with zeros.
struct SplitDigits {
  std::string whole, fraction;
};
SplitDigits split(const DecimalDigits& number) {
  const int count = static_cast<int>(number.digits.size());
  SplitDigits result;
  for (int i = 0; i < number.point; ++i)
    result.whole += i < count ? number.digits[static_cast<std::size_t>(i)] : '0';
  for (int i = number.point; i < count; ++i)
    result.fraction += i < 0 ? '0' : number.digits[static_cast<std::size_t>(i)];
  return result;
}

std::string shortestText(double value, int significant, char decimalSign) {
  DecimalDigits number = decimalDigits(value, significant);
  while (!number.digits.empty() && number.digits.back() == '0') number.digits.pop_back();
  if (number.digits.empty()) return "0";
  const int exponent = number.point - 1;
  const bool withExponent = exponent < -4 || exponent >= significant;
  if (withExponent) number.point = 1;
  const SplitDigits parts = split(number);
  std::string text = number.negative ? "-" : "";
  text += parts.whole.empty() ? "0" : parts.whole;
  if (!parts.fraction.empty()) text += decimalSign + parts.fraction;
  if (withExponent) {
    const std::string power = std::to_string(std::abs(exponent));
    text += exponent < 0 ? "E-" : "E+";
    text += power.size() < 2 ? "0" + power : power;
  }
  return text;
}

}  // namespace

std::optional<double> parseNumber(std::string_view text, char decimalSign) {
  const std::string_view number = trimmed(text);
  if (number.empty() || numberLength(number, decimalSign) != number.size()) return std::nullopt;
  const double value = valueOf(number, decimalSign);
  if (!std::isfinite(value)) return std::nullopt;
  return value;
}

double toNumber(std::string_view text, char decimalSign) {
  const std::optional<double> value = parseNumber(text, decimalSign);
  if (!value) raiseTypeMismatch();
  return *value;
}

std::optional<double> parseStoredNumber(std::string_view text, char decimalSign) {
  const std::optional<double> value = parseNumber(text, decimalSign);
  return value ? value : parseNumber(text, ',');
}

double storedNumber(std::string_view text, char decimalSign) {
  const std::optional<double> value = parseStoredNumber(text, decimalSign);
  if (!value) raiseTypeMismatch();
  return *value;
}

std::int16_t toInteger16(std::string_view text, char decimalSign) {
  return roundTo<std::int16_t>(toNumber(text, decimalSign));
}

std::int32_t toInteger32(std::string_view text, char decimalSign) {
  return roundTo<std::int32_t>(toNumber(text, decimalSign));
}

double leadingNumber(std::string_view text) {
  const std::string_view start = trimmed(text);
  const std::size_t length = numberLength(start, '.');
  if (length == 0) return 0;
  const double value = valueOf(start.substr(0, length), '.');
  if (!std::isfinite(value)) raiseOverflow();
  return value;
}

std::string singleText(double value, char decimalSign) {
  if (!(std::fabs(value) <= static_cast<double>(std::numeric_limits<float>::max())))
    raiseOverflow();
  return shortestText(static_cast<double>(static_cast<float>(value)), 7, decimalSign);
}

std::string doubleText(double value, char decimalSign) {
  return shortestText(value, 15, decimalSign);
}

std::string integerText(std::int64_t value) {
  return std::to_string(value);
}

std::string formatDecimals(double value, int minimumIntegerDigits, int decimals, char decimalSign,
                           char groupSeparator) {
  DecimalDigits number = decimalDigits(value, 15);
  const int wanted = number.point + decimals;
  if (wanted < static_cast<int>(number.digits.size())) roundDigits(number, wanted);
  SplitDigits parts = split(number);
  parts.fraction.resize(static_cast<std::size_t>(decimals), '0');

  std::string& whole = parts.whole;
  whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size()));
  const auto least = static_cast<std::size_t>(minimumIntegerDigits);
  if (whole.size() < least) whole.insert(0, least - whole.size(), '0');
  if (groupSeparator != noGrouping)
    for (std::size_t at = whole.size(); at > 3; at -= 3) whole.insert(at - 3, 1, groupSeparator);

  const std::string digits = whole + parts.fraction;
  const bool nothingLeft = digits.find_first_of("123456789") == std::string::npos;
  std::string text = number.negative && !nothingLeft ? "-" : "";
  text += whole;
  if (decimals > 0) text += decimalSign + parts.fraction;
  return text;
}

bool booleanOfText(std::string_view text) {
  const std::string word = lowerCaseAscii(trimmed(text));
  if (word == "true") return true;
  if (word == "false") return false;
  return storedNumber(text, '.') != 0;
}

std::string textOfBoolean(bool value) {
  return value ? "True" : "False";
}

bool flagIsTrue(std::string_view text) {
  return lowerCaseAscii(text) == "true";
}

std::string lowerCaseAscii(std::string_view text) {
  std::string result(text);
  for (char& c : result)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return result;
}

}  // namespace values
