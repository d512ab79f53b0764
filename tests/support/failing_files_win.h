// The file calls of a save, of which any can be made to fail; and what a test looks at
// afterwards.
#pragma once

#include <windows.h>

#include <string>

#include "tests/support/scratch_folder_win.h"
#include "windowing/file_calls_win.h"

namespace support {

/// How a call fails. A write that fails has written half of its bytes.
struct Failure {
  DWORD error = ERROR_GEN_FAILURE;
  bool shortCount = false;  ///< writes report success and the half that was written
  bool onwards = false;     ///< all later calls fail as well
};

/// Passes everything to the system but what is told to fail.
class FailingFiles : public windowing::FileCalls {
 public:
  /// Lets the call number `call` (1, 2, ...) from here fail; 0 lets none.
  void failAt(int call, const Failure& failure = {}) {
    failAt_ = call;
    failure_ = failure;
    calls_ = 0;
  }
  /// Number of calls since `failAt`.
  [[nodiscard]] int calls() const { return calls_; }

  bool noNewFiles = false;      ///< the folder lets nobody make a file
  LONGLONG pretendedBytes = 0;  ///< added to every file's size

  DWORD attributes(const std::string& path) override {
    return fails() ? INVALID_FILE_ATTRIBUTES : FileCalls::attributes(path);
  }
  bool setAttributes(const std::string& path, DWORD attributes) override {
    return !fails() && FileCalls::setAttributes(path, attributes);
  }
  HANDLE open(const std::string& path, DWORD access, DWORD disposition) override {
    if (fails()) return INVALID_HANDLE_VALUE;
    const DWORD there = GetFileAttributesA(path.c_str());
    const bool isNew = there == INVALID_FILE_ATTRIBUTES;
    // Windows makes no hidden file anew; not every system that runs its programs knows that.
    const bool refused =
        isNew ? noNewFiles : (there & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) != 0;
    if (disposition != CREATE_ALWAYS || !refused) return FileCalls::open(path, access, disposition);
    SetLastError(ERROR_ACCESS_DENIED);
    return INVALID_HANDLE_VALUE;
  }
  bool read(HANDLE file, char* data, DWORD size, DWORD& done) override {
    return !fails() && FileCalls::read(file, data, size, done);
  }
  bool write(HANDLE file, const char* data, DWORD size, DWORD& done) override {
    if (!fails()) return FileCalls::write(file, data, size, done);
    FileCalls::write(file, data, size / 2, done);
    SetLastError(failure_.error);
    return failure_.shortCount;
  }
  bool size(HANDLE file, LONGLONG& bytes) override {
    if (fails() || !FileCalls::size(file, bytes)) return false;
    bytes += pretendedBytes;
    return true;
  }
  bool rewind(HANDLE file) override { return !fails() && FileCalls::rewind(file); }
  bool truncate(HANDLE file) override { return !fails() && FileCalls::truncate(file); }
  bool flush(HANDLE file) override { return !fails() && FileCalls::flush(file); }
  bool close(HANDLE file) override {
    const bool failed = fails();
    // A handle is gone even where closing it reports that the last bytes got lost.
    const bool closed = FileCalls::close(file);
    if (failed) SetLastError(failure_.error);
    return closed && !failed;
  }
  bool copySecurity(const std::string& from, const std::string& to) override {
    return !fails() && FileCalls::copySecurity(from, to);
  }
  bool replace(const std::string& temporary, const std::string& target) override {
    return !fails() && FileCalls::replace(temporary, target);
  }
  bool remove(const std::string& path) override { return !fails() && FileCalls::remove(path); }

 private:
  bool fails() {
    ++calls_;
    if (failAt_ == 0 || calls_ < failAt_ || (calls_ > failAt_ && !failure_.onwards)) return false;
    SetLastError(failure_.error);
    return true;
  }

  Failure failure_;
  int failAt_ = 0;
  int calls_ = 0;
};

/// The file's bytes; "(none)" where there is no such file.
[[nodiscard]] inline std::string bytesOf(const std::string& path) {
  return test_support::readFile(path).value_or("(none)");
}
inline bool putFile(const std::string& path, const std::string& bytes) {
  return test_support::writeFile(path, bytes);
}

}  // namespace support
