// What both ways of writing a document (swapping in a new file, writing in place) are made of.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "files/file_calls_win.h"

namespace files {

/// Receives the next piece of a file's new content.
using FileSink = std::function<void(std::string_view)>;
/// Hands a file's new content to a sink. It may be called again, and hands over the same content.
using FileProducer = std::function<void(const FileSink&)>;

/// An open file. It is closed at the end of its scope, unless it was closed before.
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
  /// Replaces the file's content and flushes it to the disk.
  void overwrite(const FileProducer& produce);
  /// Writes the file's old content again and sets its old time of writing. With a new time, this
  /// program and others would believe that somebody else had changed the file.
  void putBack(const std::string& content, const FILETIME& lastWrite);

 private:
  HANDLE file_;
  FileCalls& calls_;
};

/// Removes a file at the end of its scope, unless `keep` was called.
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

/// Whether `error` may go away by itself: another program, such as a virus scanner, may have the
/// file open for a moment only.
[[nodiscard]] bool mayPass(DWORD error);

/// Repeats `action` until it returns true, for a quarter of a second, as long as its error may go
/// away by itself (`mayPass`).
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

/// Opens an existing file to read and write, patiently. Raises when that fails.
[[nodiscard]] HANDLE openToRewrite(const std::string& path, FileCalls& calls);

/// Moves a file over another one, patiently. Raises when that fails.
void moveOver(const std::string& from, const std::string& to, FileCalls& calls);

}  // namespace files
