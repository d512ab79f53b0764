// Document files on the disk.
#pragma once

#include <string>

#include "document/bytes.h"
#include "windowing/file_calls_win.h"

namespace mainwindow {

/// The whole content of a file, read in one go. Raises what keeps it from being opened or read
/// (file not found, permission denied, ...); a folder or a device is no document.
[[nodiscard]] document::Bytes readFile(const std::string& path, windowing::FileCalls& calls);

/// File name of a path, without its folder.
[[nodiscard]] std::string fileNameOf(const std::string& path);

}  // namespace mainwindow
