// The signs inside numbers, which Windows tells as wide text and this program shows as one byte.
#pragma once

namespace values {

/// The byte that stands for `sign`: a blank for any space, else `inCodePage`, the one byte that the
/// ANSI code page has for it; `otherwise` where that is NUL.
[[nodiscard]] char numberSign(char16_t sign, char inCodePage, char otherwise);

}  // namespace values
