// Paths and addresses that the shell of Wine does not survive. The shell of Windows refuses what is
// too long for it; Wine's copies into buffers of fixed size, and ends the program.
#pragma once

#include <string>

namespace windowing::wine {

/// Whether ShellExecute may be given `address`; always on Windows.
[[nodiscard]] bool shellTakesAddress(const std::string& address);

/// Whether SHFileOperation may be given `path`; always on Windows.
[[nodiscard]] bool shellTakesPath(const std::string& path);

}  // namespace windowing::wine
