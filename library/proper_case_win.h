// Paths with the letters that the disk has.
#pragma once

#include <string>

namespace library {

/// `path` with every folder and file name as it stands on the disk; the drive or network
/// prefix stays. A part that is not found, that holds a wildcard, or whose name the ANSI code
/// page cannot express stays as given.
[[nodiscard]] std::string PROPERCASEPATH(const std::string& path);

/// `text` up to its first NUL.
[[nodiscard]] std::string TRIMNULL(const std::string& text);

}  // namespace library
