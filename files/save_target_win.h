// Where a save really goes.
#pragma once

#include <windows.h>

#include <string>

#include "files/file_calls_win.h"

namespace files {

struct SaveTarget {
  std::string path;  ///< where links lead
  bool exists = false;
  bool made = false;      ///< the search itself made the file, empty; a failed save removes it
  bool reachable = true;  ///< false: `path` may be a link to a file that has no plain name
  DWORD attributes = 0;   ///< if it exists
  DWORD links = 0;        ///< the file's names, if it exists
  FILETIME lastWrite{};   ///< if it exists
};

/// Finds the file that a save of `path` has to write, following links. The file need not exist.
/// Raises where no file can be there.
[[nodiscard]] SaveTarget findSaveTarget(const std::string& path, FileCalls& calls);

/// A full name without the prefix of long names ("\\?\"). Empty where it is too long, lies on
/// neither a drive nor a share, or has letters that the code page lacks.
[[nodiscard]] std::string plainName(const std::wstring& name);

}  // namespace files
