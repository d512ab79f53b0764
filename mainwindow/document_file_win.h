// Document files on the disk.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "document/bytes.h"
#include "files/file_calls_win.h"

namespace mainwindow {

/// By what a file that somebody else has written to is known.
struct FileStamp {
  std::uint64_t size = 0;       ///< bytes
  std::uint64_t lastWrite = 0;  ///< 100 nanoseconds, from 1601 on
  friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

struct FileContent {
  document::Bytes bytes;
  bool whole = false;  ///< false: the file turned out shorter than it said it was
  FileStamp stamp;     ///< as it was when it was opened
};

/// The whole content of a file, read in one go. Raises what keeps it from being opened or read
/// (file not found, permission denied, ...); a folder or a device is no document.
[[nodiscard]] FileContent readFile(const std::string& path, files::FileCalls& calls);

/// Size and time of the file `path` now; nothing where there is none, or none that answers.
[[nodiscard]] std::optional<FileStamp> stampOf(const std::string& path);

/// Whether two paths lead to one file, however they are written.
[[nodiscard]] bool sameFile(const std::string& one, const std::string& other);

/// Whether `path` is a folder that is there; a device is none, under whatever name it goes.
[[nodiscard]] bool isFolder(const std::string& path);

/// A path as the system understands it: from the drive on, without dots. Empty where it cannot.
[[nodiscard]] std::string fullPathOf(const std::string& path);

}  // namespace mainwindow
