// How the user of this Windows writes numbers, and which bytes of the ANSI code page begin a
// two-byte character. Asked anew each time: the user may change it while the program runs.
#pragma once

namespace values {

/// Sign between whole and decimal digits, and between groups of thousands. A space of any width
/// is a blank. Where the code page lacks the sign, the decimal one is "." and the group one NUL,
/// as where the user has none.
[[nodiscard]] char userDecimalSign();
[[nodiscard]] char userGroupSeparator();

/// Whether a byte begins a two-byte character of the ANSI code page.
[[nodiscard]] bool isLeadByte(unsigned char byte);

}  // namespace values
