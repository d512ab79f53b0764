// Pieces that every manner of writing a document is made of.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "files/file_calls_win.h"

namespace files {

/// Takes the next piece of a file's new content.
using FileSink = std::function<void(std::string_view)>;
/// Hands a file's new content to a sink, the same each time.
using FileProducer = std::function<void(const FileSink&)>;

/// An open file; closed at the end of its scope where nothing closed it before.
class OpenFile {
 public:
  OpenFile(HANDLE file, FileCalls& calls) : file_(file), calls_(calls) {}
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() {
    if (valid()) calls_.close(file_);
  }

  [[nodiscard]] bool valid() const { return file_ != INVALID_HANDLE_VALUE; }
  [[nodiscard]] HANDLE handle() const { return file_; }
  void write(std::string_view data);
  void flush();
  void close();
  [[nodiscard]] std::string readAll();
  /// Gives the file this content, on the disk, whatever it held.
  void overwrite(const FileProducer& produce);
  /// Gives the file its old content back, and the time that goes with it: whoever knows the file
  /// by its time would take it for somebody else's writing.
  void putBack(const std::string& content, const FILETIME& lastWrite);

 private:
  HANDLE file_;
  FileCalls& calls_;
};

/// Removes a file at the end of its scope, unless it was kept.
class Temporary {
 public:
  Temporary(std::string path, FileCalls& calls) : path_(std::move(path)), calls_(calls) {}
  Temporary(const Temporary&) = delete;
  Temporary& operator=(const Temporary&) = delete;
  ~Temporary() {
    if (!path_.empty()) calls_.remove(path_);
  }
  void keep() { path_.clear(); }

 private:
  std::string path_;
  FileCalls& calls_;
};

/// Whether another program may only have the file open for a moment, as scanners and
/// synchronisers do.
[[nodiscard]] bool mayPass(DWORD error);

/// Does `action`, which tells whether it succeeded, again for a quarter of a second as long as
/// another program may stand in its way.
template <typename Action>
bool patiently(FileCalls& calls, Action action) {
  constexpr DWORD longest = 128;  // milliseconds; 248 in all
  for (DWORD pause = 8; !action(); pause *= 2) {
    const DWORD reason = GetLastError();
    if (pause > longest || !mayPass(reason)) {
      SetLastError(reason);
      return false;
    }
    calls.wait(pause);
  }
  return true;
}

/// Opens an existing file to read and write; waits for it a moment. Raises.
[[nodiscard]] HANDLE openToRewrite(const std::string& path, FileCalls& calls);

/// Moves a file over another one; waits for it a moment. Raises.
void moveOver(const std::string& from, const std::string& to, FileCalls& calls);

}  // namespace files
