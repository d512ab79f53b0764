// The plain text and number functions behind clsLibrary. None keeps state or changes what it
// is given; decimal signs of the user are arguments.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace library {

/// False where `character` occurs anywhere in `text`; true otherwise, for an empty text too.
[[nodiscard]] bool charCheck(std::string_view text, char character);

/// The number in `text` with two decimals; empty for an empty text and for any that is no number.
[[nodiscard]] std::string currencyFormat(std::string_view text, char decimalSign);
/// The number in `text` with one decimal; empty where it is no number.
[[nodiscard]] std::string textJustify(std::string_view text, char decimalSign);
/// The number in `text` with two decimals; empty where it is no number.
[[nodiscard]] std::string textJustifyCurrency(std::string_view text, char decimalSign);

/// What stands before the first `token` (one character; a longer one never matches). Empty,
/// not the whole text, where there is none.
[[nodiscard]] std::string tokenLeft(std::string_view source, std::string_view token);

/// Number that piece `pieceNumber` (from 1) of `text` begins with, the pieces lying between
/// `separator`s; 0 where there is no such piece or it begins with no number. Raises overflow
/// where the piece ends beyond character 32,767.
[[nodiscard]] double piece(std::string_view text, char separator, std::int16_t pieceNumber);

/// Number of words between blanks and line ends (CR LF); a "-" at a line's end joins the word
/// to the next line's. Tabs separate nothing. Linear in the length of the text.
[[nodiscard]] std::int32_t wordCount(std::string_view text);

/// "#" and two hexadecimal digits each of red, green and blue, then the three again in decimal,
/// run together. `color` holds red in its low byte.
[[nodiscard]] std::string hexValue(std::int32_t color);

/// Decimal text of a signed 16-bit value given in hexadecimal digits ("FFFF" is "-1"); "0" for
/// what is no such value.
[[nodiscard]] std::string hexToDecimal(std::string_view digits);

/// `caption` without "&", cut to 32 characters (counted with them) and "..." where it is longer.
[[nodiscard]] std::string shortCaption(std::string_view caption);

/// Wording of a colour depth given as the text of its bits per pixel; empty for one without.
[[nodiscard]] std::string colorDepthText(std::string_view depth);

/// Key filter of an amount box holding `text`: the character code to accept, or 0.
[[nodiscard]] int currencyKey(std::string_view text, int character);

/// Height in pixels that lets a combo box open `items` (decimal text) rows of `itemHeight`
/// pixels. Raises type mismatch or overflow.
[[nodiscard]] std::int32_t comboListHeight(std::string_view items, int itemHeight);

/// `address` with a scheme: "http://" goes before every text but the empty one and those that
/// begin with "http://" or "ftp://" in any case.
[[nodiscard]] std::string htmlFormatCheck(std::string_view address);

/// What a web box holds after it was left: nothing where its text stays as it is (a text written
/// back would count as an edit), else the text with its scheme.
[[nodiscard]] std::optional<std::string> webAddressOnLeave(std::string_view text);

/// `name`, or "Untitled" where it is empty.
[[nodiscard]] std::string fileCheck(std::string_view name);

/// Size of a file: bytes below 1024, then KB, MB or GB with its bytes behind it. There is no
/// blank before the unit and 1000 KB already count as MB, as users of the products know it.
[[nodiscard]] std::string fileSizeText(std::uint64_t bytes, char decimalSign, char groupSeparator);

}  // namespace library
