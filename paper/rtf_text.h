// Plain text as rich text. A rich edit control guesses from the first characters whether a text is
// plain or rich. Written this way, plain text is never taken for rich text.
#pragma once

#include <string>
#include <string_view>

#include "paper/text_format.h"

namespace paper {

/// A complete rich-text document whose text is exactly `text` in one format, in black. CR LF,
/// CR and LF each become one paragraph break. `charset` is the font's character set.
[[nodiscard]] std::string rtfOfText(std::u16string_view text, const TextFormat& format,
                                    int charset);

}  // namespace paper
