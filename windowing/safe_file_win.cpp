#include "windowing/safe_file_win.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>

#include "windowing/runtime_error.h"
#include "windowing/system_error_win.h"

namespace windowing {
namespace {

// A file being written; closed at the end of its scope where nothing closed it before.
class Output {
 public:
  Output(HANDLE file, FileCalls& calls) : file_(file), calls_(calls) {}
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;
  ~Output() {
    if (file_ != INVALID_HANDLE_VALUE) calls_.close(file_);
  }

  void write(std::string_view data) {
    while (!data.empty()) {
      const auto size = static_cast<DWORD>(data.size());
      DWORD done = 0;
      if (!calls_.write(file_, data.data(), size, done)) raiseLastError();
      // A full disk may report success and a short count.
      if (done != size) throw systemError(ERROR_DISK_FULL);
      data.remove_prefix(done);
    }
  }

  void finish() {
    if (!calls_.flush(file_)) raiseLastError();
    const HANDLE file = file_;
    file_ = INVALID_HANDLE_VALUE;
    if (!calls_.close(file)) raiseLastError();
  }

  [[nodiscard]] HANDLE handle() const { return file_; }

 private:
  HANDLE file_;
  FileCalls& calls_;
};

// Undoes the writing of a temporary file unless it was kept.
class Temporary {
 public:
  Temporary(std::string path, FileCalls& calls) : path_(std::move(path)), calls_(calls) {}
  Temporary(const Temporary&) = delete;
  Temporary& operator=(const Temporary&) = delete;
  ~Temporary() {
    if (kept_) return;
    calls_.setAttributes(path_, FILE_ATTRIBUTE_NORMAL);
    calls_.remove(path_);
  }
  void keep() { kept_ = true; }

 private:
  std::string path_;
  FileCalls& calls_;
  bool kept_ = false;
};

std::string readAll(HANDLE file, FileCalls& calls) {
  LONGLONG size = 0;
  if (!calls.size(file, size)) raiseLastError();
  std::string content(static_cast<std::size_t>(size), '\0');
  std::size_t at = 0;
  while (at < content.size()) {
    DWORD done = 0;
    if (!calls.read(file, content.data() + at, static_cast<DWORD>(content.size() - at), done))
      raiseLastError();
    if (done == 0) throw systemError(ERROR_HANDLE_EOF);
    at += done;
  }
  return content;
}

void overwrite(Output& output, FileCalls& calls,
               const std::function<void(const FileSink&)>& produce) {
  if (!calls.rewind(output.handle())) raiseLastError();
  produce([&](std::string_view piece) { output.write(piece); });
  if (!calls.truncate(output.handle())) raiseLastError();
}

// The old content waits in memory and goes back where the new one cannot be written.
void writeInPlace(const std::string& path, const std::function<void(const FileSink&)>& produce,
                  FileCalls& calls) {
  const HANDLE file = calls.open(path, GENERIC_READ | GENERIC_WRITE, OPEN_EXISTING);
  if (file == INVALID_HANDLE_VALUE) raiseLastError();
  Output output(file, calls);
  const std::string old = readAll(file, calls);
  try {
    overwrite(output, calls, produce);
    output.finish();
  } catch (...) {
    if (output.handle() != INVALID_HANDLE_VALUE) {
      overwrite(output, calls, [&](const FileSink& sink) { sink(old); });
      output.finish();
    }
    throw;
  }
}

bool isDirectory(DWORD attributes) {
  return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

}  // namespace

std::string temporaryName(const std::string& path) {
  const std::size_t slash = path.find_last_of('\\');
  const std::size_t name = slash == std::string::npos ? 0 : slash + 1;
  // Short, so that the longest path there can be still takes it; different for every name.
  std::uint32_t hash = 2166136261U;
  for (std::size_t i = name; i < path.size(); ++i) {
    const auto letter = static_cast<std::uint32_t>(
        static_cast<unsigned char>(path[i] >= 'A' && path[i] <= 'Z' ? path[i] + 32 : path[i]));
    hash = (hash ^ letter) * 16777619U;
  }
  char text[16] = {};
  static_cast<void>(
      std::snprintf(text, sizeof text, "~%07x.tmp", static_cast<unsigned>(hash >> 4)));
  return path.substr(0, name) + text;
}

void replaceFile(const std::string& path, const std::function<void(const FileSink&)>& produce,
                 FileCalls& calls) {
  const DWORD old = calls.attributes(path);
  const bool exists = old != INVALID_FILE_ATTRIBUTES;
  if (!exists) {
    const DWORD reason = GetLastError();
    if (reason != ERROR_FILE_NOT_FOUND) throw systemError(reason);
  }
  // A move would step over the attribute that keeps the file from being changed.
  if (exists && (isDirectory(old) || (old & FILE_ATTRIBUTE_READONLY) != 0))
    throw systemError(ERROR_ACCESS_DENIED);

  const std::string temporary = temporaryName(path);
  const HANDLE file = calls.open(temporary, GENERIC_WRITE, CREATE_ALWAYS);
  if (file == INVALID_HANDLE_VALUE) {
    if (!exists || GetLastError() != ERROR_ACCESS_DENIED) raiseLastError();
    writeInPlace(path, produce, calls);
    return;
  }
  Temporary undo(temporary, calls);
  Output output(file, calls);
  produce([&](std::string_view piece) { output.write(piece); });
  output.finish();
  if (exists) {
    // Where a file system knows no owners there is nothing to take over.
    calls.copySecurity(path, temporary);
    if (!calls.setAttributes(temporary, old)) raiseLastError();
  }
  if (!calls.replace(temporary, path)) raiseLastError();
  undo.keep();
}

}  // namespace windowing
