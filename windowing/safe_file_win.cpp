#include "windowing/safe_file_win.h"

#include <cstdint>
#include <cstdio>
#include <vector>

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
    const auto size = static_cast<DWORD>(data.size());
    DWORD done = 0;
    if (size != 0 && !calls_.write(file_, data.data(), size, done)) raiseLastError();
    // A full disk may report success and a short count.
    if (done != size) throw systemError(ERROR_DISK_FULL);
  }

  void flush() {
    if (!calls_.flush(file_)) raiseLastError();
  }

  void close() {
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

void overwrite(Output& output, FileCalls& calls, const std::string& content, std::size_t length) {
  if (!calls.rewind(output.handle())) raiseLastError();
  output.write(content);
  if (content.size() < length && !calls.truncate(output.handle())) raiseLastError();
  output.flush();
}

// The new content is complete before the file is touched, and goes out in one call; the old one
// waits in memory and goes back where that fails.
void writeInPlace(const std::string& path, const std::function<void(const FileSink&)>& produce,
                  FileCalls& calls) {
  std::string content;
  produce([&](std::string_view piece) { content += piece; });
  const HANDLE file = calls.open(path, GENERIC_READ | GENERIC_WRITE, OPEN_EXISTING);
  if (file == INVALID_HANDLE_VALUE) raiseLastError();
  Output output(file, calls);
  const std::string old = readAll(file, calls);
  try {
    overwrite(output, calls, content, old.size());
  } catch (...) {
    overwrite(output, calls, old, std::string::npos);
    throw;
  }
}

// A temporary file that a crash left behind may be hidden, as its document is; Windows refuses
// to write such a file anew.
HANDLE openTemporary(const std::string& temporary, FileCalls& calls) {
  const HANDLE file = calls.open(temporary, GENERIC_WRITE, CREATE_ALWAYS);
  if (file != INVALID_HANDLE_VALUE || GetLastError() != ERROR_ACCESS_DENIED) return file;
  if (calls.setAttributes(temporary, FILE_ATTRIBUTE_NORMAL))
    return calls.open(temporary, GENERIC_WRITE, CREATE_ALWAYS);
  SetLastError(ERROR_ACCESS_DENIED);
  return INVALID_HANDLE_VALUE;
}

// What one may set of `attributes`; the others say how a file is stored.
DWORD settable(DWORD attributes) {
  constexpr DWORD mask = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE |
                         FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
  const DWORD wanted = attributes & mask;
  return wanted == 0 ? FILE_ATTRIBUTE_NORMAL : wanted;
}

bool isDirectory(DWORD attributes) {
  return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

}  // namespace

std::string temporaryName(const std::string& path) {
  // In full, for "C:name" and "folder/name" too have to lead to the folder of the document.
  std::vector<char> full(GetFullPathNameA(path.c_str(), 0, nullptr, nullptr) + 1);
  char* name = nullptr;
  const DWORD length =
      GetFullPathNameA(path.c_str(), static_cast<DWORD>(full.size()), full.data(), &name);
  if (length == 0 || length >= full.size()) raiseLastError();
  if (name == nullptr) throw systemError(ERROR_ACCESS_DENIED);  // a folder
  // Short, so that the longest path there can be still takes it; different for every name.
  std::uint32_t hash = 2166136261U;
  for (const char* at = name; *at != '\0'; ++at) {
    const auto letter =
        static_cast<unsigned char>(*at >= 'A' && *at <= 'Z' ? *at + ('a' - 'A') : *at);
    hash = (hash ^ letter) * 16777619U;
  }
  char text[16] = {};
  static_cast<void>(
      std::snprintf(text, sizeof text, "~%07x.tmp", static_cast<unsigned>(hash >> 4)));
  return std::string(full.data(), name) + text;
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
  const HANDLE file = openTemporary(temporary, calls);
  if (file == INVALID_HANDLE_VALUE) {
    if (!exists || GetLastError() != ERROR_ACCESS_DENIED) raiseLastError();
    writeInPlace(path, produce, calls);
    return;
  }
  Temporary undo(temporary, calls);
  Output output(file, calls);
  produce([&](std::string_view piece) { output.write(piece); });
  output.flush();
  output.close();
  if (exists) {
    // Where a file system knows no owners there is nothing to take over.
    calls.copySecurity(path, temporary);
    if (!calls.setAttributes(temporary, settable(old))) raiseLastError();
  }
  if (!calls.replace(temporary, path)) raiseLastError();
  undo.keep();
}

}  // namespace windowing
