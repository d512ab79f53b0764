// Paths and addresses that are too long for Wine's shell. Windows' shell refuses them; Wine's
// overruns a buffer, which ends the program.
#pragma once

#include <string>

namespace windowing::wine {

/// Whether ShellExecute may be called with `address`. Always true on Windows.
[[nodiscard]] bool shellTakesAddress(const std::string& address);

/// Whether SHFileOperation may be called with `path`. Always true on Windows.
[[nodiscard]] bool shellTakesPath(const std::string& path);

}  // namespace windowing::wine
