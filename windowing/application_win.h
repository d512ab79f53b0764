// Who the running program is: its identity as the version resource states it, where it
// runs, and what it was started with.
#pragma once

#include <windows.h>

#include <string>

namespace windowing {

/// Texts of the version resource; empty where the program has none.
[[nodiscard]] std::string companyName();
[[nodiscard]] std::string productName();
[[nodiscard]] std::string legalCopyright();

struct Version {
  int major = 0;
  int minor = 0;
};
[[nodiscard]] Version programVersion();

/// Full path of the program's file, its folder (no final backslash except in a drive's root)
/// and its file name without the extension.
[[nodiscard]] std::string programPath();
[[nodiscard]] std::string programFolder();
[[nodiscard]] std::string programName();

[[nodiscard]] HINSTANCE programInstance();

/// What follows the program's name on the command line. Blanks around it are stripped, quotes are
/// kept.
[[nodiscard]] std::string commandLineTail();

}  // namespace windowing
