// What the system knows of a file.
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
  std::string typeName;     ///< of the shell; empty where it has none
  values::IconHandle icon;  ///< of the shell; may be none
};

/// `path` from its drive or share on. Raises an error of the system.
[[nodiscard]] std::string fullPath(const std::string& path);

/// Facts of the file at the full path `path`. Raises file not found; a path with wildcards
/// names no file.
[[nodiscard]] FileFacts fileFacts(const std::string& path);

/// A time of a file in the user's time zone, as the user writes long dates and long times, with a
/// blank between the two. Raises an error of the system.
[[nodiscard]] std::string dateTimeText(const FILETIME& time);

/// Gives the file the read-only attribute, or takes it away; whether that was done.
bool setReadOnly(const std::string& path, bool readOnly);

/// What the header of a picture file says; nothing where it is none or cannot be read.
[[nodiscard]] std::optional<ImageHeader> GETIMAGEFILEINFO(const std::string& path);

}  // namespace dialogs
