#include "library/text_utilities.h"

#include <algorithm>
#include <charconv>

#include "values/checked.h"
#include "values/number_text.h"

namespace library {
namespace {

std::string formatted(std::string_view text, int decimals, char decimalSign) {
  const std::optional<double> value = values::parseNumber(text, decimalSign);
  return value ? values::formatDecimals(*value, 1, decimals, decimalSign) : std::string();
}

std::string removed(std::string_view text, std::string_view part) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t from = 0;;) {
    const std::size_t at = text.find(part, from);
    result += text.substr(from, at - from);
    if (at == std::string_view::npos) return result;
    from = at + part.size();
  }
}

}  // namespace

bool charCheck(std::string_view text, char character) {
  return text.find(character) == std::string_view::npos;
}

std::string currencyFormat(std::string_view text, char decimalSign) {
  return formatted(text, 2, decimalSign);
}
std::string textJustify(std::string_view text, char decimalSign) {
  return formatted(text, 1, decimalSign);
}
std::string textJustifyCurrency(std::string_view text, char decimalSign) {
  return formatted(text, 2, decimalSign);
}

std::string tokenLeft(std::string_view source, std::string_view token) {
  if (token.size() != 1) return {};
  const std::size_t at = source.find(token);
  return std::string(at == std::string_view::npos ? std::string_view() : source.substr(0, at));
}

double piece(std::string_view text, char separator, std::int16_t pieceNumber) {
  std::size_t start = 0;
  for (std::int16_t number = 1; number <= pieceNumber; ++number) {
    const std::size_t end = std::min(text.find(separator, start), text.size());
    // Positions are counted in 16 bits. A text too long for that raises an error, instead of giving
    // a wrong piece.
    (void)values::checkedCast<std::int16_t>(static_cast<std::int64_t>(end));
    if (number == pieceNumber) return values::leadingNumber(text.substr(start, end - start));
    if (end == text.size()) return 0;
    start = end + 1;
  }
  return 0;
}

std::int32_t wordCount(std::string_view text) {
  const std::string joined = removed(text, "-\r\n");
  std::int32_t words = 0;
  bool inWord = false;
  for (std::size_t i = 0; i < joined.size(); ++i) {
    const bool lineEnd = joined.compare(i, 2, "\r\n") == 0;
    const bool separates = lineEnd || joined[i] == ' ';
    if (!separates && !inWord) ++words;
    inWord = !separates;
    if (lineEnd) ++i;
  }
  return words;
}

std::string hexValue(std::int32_t color) {
  // Blue is the value divided by 65536, deliberately without a mask.
  const std::int32_t parts[] = {color & 0xFF, (color >> 8) & 0xFF, color / 65536};
  std::string hexadecimal = "#";
  std::string decimal;
  for (const std::int32_t part : parts) {
    char buffer[16] = {};
    const char* end =
        std::to_chars(buffer, buffer + sizeof buffer, static_cast<std::uint32_t>(part), 16).ptr;
    if (end - buffer < 2) hexadecimal += '0';
    for (const char* at = buffer; at != end; ++at)
      hexadecimal += static_cast<char>(*at >= 'a' ? *at - 'a' + 'A' : *at);
    decimal += values::integerText(part);
  }
  // The decimal numbers at the end are deliberate: other products of the maker read them.
  return hexadecimal + decimal;
}

std::string hexToDecimal(std::string_view digits) {
  std::uint16_t value = 0;
  const char* end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, value, 16);
  if (error != std::errc() || stop != end) return "0";
  return values::integerText(static_cast<std::int16_t>(value));
}

std::string shortCaption(std::string_view caption) {
  constexpr std::size_t longest = 32;
  std::string result(caption.substr(0, longest));
  if (caption.size() > longest) result += "...";
  return removed(result, "&");
}

std::string colorDepthText(std::string_view depth) {
  // There are deliberately no texts for 16 and 32 bits.
  static constexpr struct {
    std::string_view depth, text;
  } wordings[] = {{"1", "2 colors (1 bit)"},
                  {"4", "16 colors (4 bit)"},
                  {"8", "256 colors (8 bit)"},
                  {"24", "16 million colors (24 bit)"}};
  for (const auto& row : wordings)
    if (row.depth == depth) return std::string(row.text);
  return {};
}

int currencyKey(std::string_view text, int character) {
  constexpr int backspace = 8;
  if ((character >= '0' && character <= '9') || character == backspace) return character;
  // Deliberately ".", whatever the user's decimal sign is.
  return character == '.' && charCheck(text, '.') ? character : 0;
}

std::int32_t comboListHeight(std::string_view items, int itemHeight) {
  // Two more rows: one for the edit field, one for the border of the list.
  return values::roundTo<std::int32_t>((values::toNumber(items, '.') + 2) * itemHeight);
}

std::string htmlFormatCheck(std::string_view address) {
  if (address.empty()) return {};
  // Addresses that begin with "www." get the prefix like any other, deliberately.
  const std::string lower = values::lowerCaseAscii(address);
  const bool hasScheme = lower.starts_with("http://") || lower.starts_with("ftp://");
  return (hasScheme ? "" : "http://") + std::string(address);
}

std::optional<std::string> webAddressOnLeave(std::string_view text) {
  // "http://" before "https://" would spoil the address, and the user would not be told.
  if (values::lowerCaseAscii(text).starts_with("https://")) return std::nullopt;
  std::string checked = htmlFormatCheck(text);
  if (checked == text) return std::nullopt;
  return checked;
}

std::string fileCheck(std::string_view name) {
  return std::string(name.empty() ? "Untitled" : name);
}

std::string fileSizeText(std::uint64_t bytes, char decimalSign, char groupSeparator) {
  static constexpr struct {
    std::uint64_t belowKilobytes;
    double unit;
    int decimals;
    std::string_view name;
  } ranges[] = {{10, 1024.0, 2, "KB"},
                {100, 1024.0, 1, "KB"},
                {1000, 1024.0, 0, "KB"},
                {10000, 1048576.0, 2, "MB"},
                {100000, 1048576.0, 1, "MB"},
                {1000000, 1048576.0, 0, "MB"},
                {UINT64_MAX, 1073741824.0, 2, "GB"}};
  const auto size = static_cast<double>(bytes);
  std::string whole = values::formatDecimals(size, 1, 0, decimalSign, groupSeparator) + " Bytes";
  if (bytes < 1024) return whole;
  const auto* range = std::find_if(std::begin(ranges), std::end(ranges), [&](const auto& row) {
    return bytes / 1024 < row.belowKilobytes;
  });
  return values::formatDecimals(size / range->unit, 1, range->decimals, decimalSign) +
         std::string(range->name) + " (" + whole + ")";
}

}  // namespace library
