// The facts of a file that the system knows.
#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>
#include <string>

#include "dialogs/image_header.h"
#include "values/handles_win.h"

namespace dialogs {

struct FileFacts {
  DWORD attributes = 0;
  std::uint64_t size = 0;  ///< bytes
  FILETIME lastWrite{};
  std::string typeName;     ///< the shell's name for its type; empty where it has none
  values::IconHandle icon;  ///< the shell's icon for it; may be empty
};

/// The full path of `path`. Raises an error of the system.
[[nodiscard]] std::string fullPath(const std::string& path);

/// Facts of the file at the full path `path`. Raises file not found, also for a path with
/// wildcards.
[[nodiscard]] FileFacts fileFacts(const std::string& path);

/// A time of a file in the user's time zone: the long date, a blank and the long time, in the
/// user's formats. Raises an error of the system.
[[nodiscard]] std::string dateTimeText(const FILETIME& time);

/// Sets or removes the read-only attribute of a file. True where that succeeded.
bool setReadOnly(const std::string& path, bool readOnly);

/// The header of a picture file; no value where the file is no picture or cannot be read.
[[nodiscard]] std::optional<ImageHeader> GETIMAGEFILEINFO(const std::string& path);

}  // namespace dialogs
