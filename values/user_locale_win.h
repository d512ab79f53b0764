// How the user writes numbers, and which bytes of the ANSI code page begin a two-byte character.
// Windows is asked at each call, since the user may change these settings while the program runs.
#pragma once

namespace values {

/// The sign before the decimals, and the one between groups of thousands. For a space of any width,
/// a blank. Where the user has no sign or the code page lacks it: "." before the decimals, NUL
/// between groups.
[[nodiscard]] char userDecimalSign();
[[nodiscard]] char userGroupSeparator();

/// Whether a byte begins a two-byte character of the ANSI code page.
[[nodiscard]] bool isLeadByte(unsigned char byte);

}  // namespace values
