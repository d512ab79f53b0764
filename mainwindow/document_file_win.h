// Document files on the disk.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "document/bytes.h"
#include "files/file_calls_win.h"

namespace mainwindow {

/// Size and time of a file; when they change, another program has written to it.
struct FileStamp {
  std::uint64_t size = 0;       ///< bytes
  std::uint64_t lastWrite = 0;  ///< 100 nanoseconds, from 1601 on
  friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

struct FileContent {
  document::Bytes bytes;
  bool whole = false;  ///< false: the file was shorter than its size said
  FileStamp stamp;     ///< as it was when it was opened
};

/// The whole content of a file, read at once. Raises where it cannot be opened or read (file not
/// found, permission denied, ...), and for a folder or a device.
[[nodiscard]] FileContent readFile(const std::string& path, files::FileCalls& calls);

/// Size and time of the file `path` now. No value where there is no file or it does not answer.
[[nodiscard]] std::optional<FileStamp> stampOf(const std::string& path);

/// Whether two paths lead to the same file, even if they are spelled differently.
[[nodiscard]] bool sameFile(const std::string& one, const std::string& other);

/// Whether `path` is a folder that exists. False for a device.
[[nodiscard]] bool isFolder(const std::string& path);

/// The full path of `path`, without "." and "..". Empty where Windows cannot tell it.
[[nodiscard]] std::string fullPathOf(const std::string& path);

}  // namespace mainwindow
