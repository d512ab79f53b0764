// Document files on the disk.
#pragma once

#include <string>

#include "document/bytes.h"
#include "windowing/file_calls_win.h"

namespace mainwindow {

struct FileContent {
  document::Bytes bytes;
  bool whole = false;  ///< false: the file turned out shorter than it said it was
};

/// The whole content of a file, read in one go. Raises what keeps it from being opened or read
/// (file not found, permission denied, ...); a folder or a device is no document.
[[nodiscard]] FileContent readFile(const std::string& path, windowing::FileCalls& calls);

/// Whether two paths lead to one file, however they are written.
[[nodiscard]] bool sameFile(const std::string& one, const std::string& other);

/// File name of a path, without its folder.
[[nodiscard]] std::string fileNameOf(const std::string& path);

}  // namespace mainwindow
