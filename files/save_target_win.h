// Where a save really goes.
#pragma once

#include <windows.h>

#include <string>

#include "files/file_calls_win.h"

namespace files {

struct SaveTarget {
  std::string path;  ///< where links lead
  bool exists = false;
  bool made = false;      ///< by looking for it, empty: to be removed when the save fails
  bool reachable = true;  ///< false: `path` may be a link, and where it leads has no plain name
  DWORD attributes = 0;   ///< if it exists
  DWORD links = 0;        ///< the file's names, if it exists
  FILETIME lastWrite{};   ///< if it exists
};

/// Follows links to the file that a save of `path` means. It need not exist, nor need the file
/// at a link's end. Raises where there can be no such file.
[[nodiscard]] SaveTarget findSaveTarget(const std::string& path, FileCalls& calls);

/// The full name of an open file, which has the prefix of long names, without that; empty where
/// it is too long, is on no drive and no share, or has letters that the code page lacks.
[[nodiscard]] std::string plainName(const std::wstring& name);

}  // namespace files
