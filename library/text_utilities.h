// The plain text and number functions behind clsLibrary. None keeps state or changes its arguments;
// the user's decimal sign is an argument.
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

/// The part of `source` before the first `token`, which is one character (a longer one is never
/// found). Empty, not the whole text, where the token is not found.
[[nodiscard]] std::string tokenLeft(std::string_view source, std::string_view token);

/// The number at the start of piece `pieceNumber` (from 1) of `text`; separators divide the pieces.
/// 0 where there is no such piece or no number at its start. Raises overflow where the piece ends
/// beyond character 32,767.
[[nodiscard]] double piece(std::string_view text, char separator, std::int16_t pieceNumber);

/// Number of words. Blanks and line ends (CR LF) divide words, tabs do not. A "-" at the end of a
/// line joins its last word to the first of the next line. Takes time linear in the text's length.
[[nodiscard]] std::int32_t wordCount(std::string_view text);

/// "#" and two hexadecimal digits each of red, green and blue, then the three again in decimal,
/// run together. `color` holds red in its low byte.
[[nodiscard]] std::string hexValue(std::int32_t color);

/// Decimal text of a signed 16-bit value given in hexadecimal digits ("FFFF" gives "-1"); "0" for
/// any other text.
[[nodiscard]] std::string hexToDecimal(std::string_view digits);

/// `caption` without "&". One that is longer than 32 characters, "&" included, is cut there and
/// gets
/// "...".
[[nodiscard]] std::string shortCaption(std::string_view caption);

/// Text for a colour depth, which is given as the text of its bits per pixel; empty for an unknown
/// depth.
[[nodiscard]] std::string colorDepthText(std::string_view depth);

/// Key filter of an amount box holding `text`: the character code to accept, or 0.
[[nodiscard]] int currencyKey(std::string_view text, int character);

/// Height in pixels of a combo box whose open list shows `items` (decimal text) rows of
/// `itemHeight` pixels. Raises type mismatch or overflow.
[[nodiscard]] std::int32_t comboListHeight(std::string_view items, int itemHeight);

/// `address` with a scheme: "http://" goes before every text but the empty one and those that
/// begin with "http://" or "ftp://" in any case.
[[nodiscard]] std::string htmlFormatCheck(std::string_view address);

/// The text to write into a web box that the focus has left: its text with a scheme. No value where
/// the text need not change, since writing it back would count as an edit.
[[nodiscard]] std::optional<std::string> webAddressOnLeave(std::string_view text);

/// `name`, or "Untitled" where it is empty.
[[nodiscard]] std::string fileCheck(std::string_view name);

/// Size of a file: bytes below 1024, then KB, MB or GB with its bytes behind it. There is no
/// blank before the unit and 1000 KB already count as MB, as users of the products know it.
[[nodiscard]] std::string fileSizeText(std::uint64_t bytes, char decimalSign, char groupSeparator);

}  // namespace library
