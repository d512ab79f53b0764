// Paths in upper and lower case as on the disk.
#pragma once

#include <string>

namespace library {

/// `path` with each folder and file name spelled as on the disk; the drive or network share stays.
/// A name stays as given where it is not found, has a wildcard, or has letters on the disk that the
/// ANSI code page lacks.
[[nodiscard]] std::string PROPERCASEPATH(const std::string& path);

/// `text` up to its first NUL.
[[nodiscard]] std::string TRIMNULL(const std::string& text);

}  // namespace library
