// The decimal and group signs of numbers. Windows gives them as wide text; the program uses one
// byte for each.
#pragma once

namespace values {

/// The byte to use for `sign`: a blank for any space, else `inCodePage`, its byte in the ANSI code
/// page. Where that is NUL because the code page lacks the sign, `otherwise`.
[[nodiscard]] char numberSign(char16_t sign, char inCodePage, char otherwise);

}  // namespace values
