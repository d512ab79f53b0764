// The file calls of a save, of which any can be made to fail; and what a test looks at
// afterwards.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

#include "files/file_calls_win.h"
#include "tests/support/scratch_folder_win.h"

namespace support {

/// How a call fails. A write that fails has written half of its bytes.
struct Failure {
  DWORD error = ERROR_GEN_FAILURE;
  bool shortCount = false;  ///< writes report success and the half that was written
  bool onwards = false;     ///< all later calls fail as well
};

/// Passes everything to the system but what is told to fail.
class FailingFiles : public files::FileCalls {
 public:
  /// Lets the call number `call` (1, 2, ...) from here fail; 0 lets none.
  void failAt(int call, const Failure& failure = {}) {
    failAt_ = call;
    failure_ = failure;
    calls_ = 0;
    bytesAtRisk_ = unflushed_ = false;
  }
  /// Number of calls since `failAt`.
  [[nodiscard]] int calls() const { return calls_; }
  /// Whether what failed, or was not done, was needed for the new bytes to be safe on the disk.
  [[nodiscard]] bool bytesAtRisk() const { return bytesAtRisk_; }

  bool noNewFiles = false;       ///< the folder lets nobody make a file
  bool noWritesOver = false;     ///< no write succeeds after a file was rewound
  bool noLinks = false;          ///< a file can have one name only
  bool wholeSecurity = false;    ///< the descriptor tells all, as on Windows
  bool streams = false;          ///< every file has a second stream
  DWORD storedAs = 0;            ///< attributes that every file has besides its own
  std::wstring leadsTo;          ///< where every file really is, as the system says it
  std::string dangling;          ///< where every name leads, though nothing is there yet
  std::string keepFolder;        ///< in place of the user's temporary files
  std::function<void()> onWait;  ///< instead of waiting
  DWORD moveError = 0;           ///< why no file can take another's place
  LONGLONG pretendedBytes = 0;   ///< added to every file's size

  DWORD attributes(const std::string& path) override {
    return fails() ? INVALID_FILE_ATTRIBUTES : FileCalls::attributes(path);
  }
  bool setAttributes(const std::string& path, DWORD attributes) override {
    return !fails() && FileCalls::setAttributes(path, attributes);
  }
  HANDLE open(const std::string& path, DWORD access, DWORD disposition) override {
    const bool follows = disposition == OPEN_ALWAYS && !dangling.empty();
    if (fails()) return INVALID_HANDLE_VALUE;
    return FileCalls::open(follows ? dangling : path, access, disposition);
  }
  HANDLE create(const std::string& path, DWORD attributes) override {
    created = attributes;
    rewound_ = false;
    if (fails() || !takes(path)) return INVALID_HANDLE_VALUE;
    return FileCalls::create(path, attributes);
  }
  HANDLE probe(const std::string& path) override {
    if (fails() || !takes(path)) return INVALID_HANDLE_VALUE;
    SetLastError(ERROR_FILE_EXISTS);
    return dangling.empty() ? FileCalls::probe(path) : INVALID_HANDLE_VALUE;
  }
  bool information(HANDLE file, BY_HANDLE_FILE_INFORMATION& facts) override {
    if (fails() || !FileCalls::information(file, facts)) return false;
    facts.dwFileAttributes |= storedAs;
    return true;
  }
  bool finalName(HANDLE file, std::wstring& name) override {
    if (fails() || !FileCalls::finalName(file, name)) return false;
    if (!leadsTo.empty()) name = leadsTo;
    return true;
  }
  bool read(HANDLE file, char* data, DWORD size, DWORD& done) override {
    return !fails() && FileCalls::read(file, data, size, done);
  }
  bool write(HANDLE file, const char* data, DWORD size, DWORD& done) override {
    written_ = file;
    unflushed_ = true;
    if (!fails() && !(noWritesOver && rewound_)) return FileCalls::write(file, data, size, done);
    bytesAtRisk_ = true;
    FileCalls::write(file, data, size / 2, done);
    SetLastError(failure_.error);
    return failure_.shortCount;
  }
  bool size(HANDLE file, LONGLONG& bytes) override {
    if (fails() || !FileCalls::size(file, bytes)) return false;
    bytes += pretendedBytes;
    return true;
  }
  bool rewind(HANDLE file) override {
    rewound_ = true;
    bytesAtRisk_ = bytesAtRisk_ || unflushed_;
    return !fails() && FileCalls::rewind(file);
  }
  bool truncate(HANDLE file) override { return !fails() && FileCalls::truncate(file); }
  bool flush(HANDLE file) override {
    unflushed_ = false;
    if (!fails()) return FileCalls::flush(file);
    bytesAtRisk_ = true;
    return false;
  }
  bool setLastWrite(HANDLE file, const FILETIME& time) override {
    return !fails() && FileCalls::setLastWrite(file, time);
  }
  bool close(HANDLE file) override {
    const bool failed = fails();
    // A handle is gone even where closing it reports that the last bytes got lost.
    const bool closed = FileCalls::close(file);
    if (failed) {
      bytesAtRisk_ = bytesAtRisk_ || file == written_;
      SetLastError(failure_.error);
    }
    written_ = file == written_ ? INVALID_HANDLE_VALUE : written_;
    return closed && !failed;
  }
  std::string security(const std::string& path) override {
    return fails() ? std::string() : FileCalls::security(path);
  }
  bool securityIsWhole() override { return wholeSecurity || FileCalls::securityIsWhole(); }
  bool hasStreams(const std::string& path) override {
    return !fails() && (streams || FileCalls::hasStreams(path));
  }
  bool link(const std::string& path, const std::string& name) override {
    return !fails() && !noLinks && FileCalls::link(path, name);
  }
  bool copySecurity(const std::string& from, const std::string& to) override {
    ++securityCopies;
    return !fails() && FileCalls::copySecurity(from, to);
  }
  bool replace(const std::string& temporary, const std::string& target) override {
    bytesAtRisk_ = bytesAtRisk_ || unflushed_;
    SetLastError(moveError);
    if (moveError != ERROR_SUCCESS) return false;
    return !fails() && FileCalls::replace(temporary, target);
  }
  bool remove(const std::string& path) override { return !fails() && FileCalls::remove(path); }
  std::string temporaryFolder() override {
    return keepFolder.empty() ? FileCalls::temporaryFolder() : keepFolder + "\\";
  }
  void wait(DWORD milliseconds) override {
    waited += milliseconds;
    if (onWait) onWait();
  }
  DWORD created = 0;       ///< attributes of the file made last
  DWORD waited = 0;        ///< milliseconds in all
  int securityCopies = 0;  ///< in all

 private:
  [[nodiscard]] bool takes(const std::string& path) const {
    if (!noNewFiles || (!keepFolder.empty() && path.starts_with(keepFolder))) return true;
    SetLastError(ERROR_ACCESS_DENIED);
    return false;
  }
  bool fails() {
    ++calls_;
    if (failAt_ == 0 || calls_ < failAt_ || (calls_ > failAt_ && !failure_.onwards)) return false;
    SetLastError(failure_.error);
    return true;
  }

  Failure failure_;
  int failAt_ = 0;
  int calls_ = 0;
  HANDLE written_ = INVALID_HANDLE_VALUE;
  bool unflushed_ = false;
  bool rewound_ = false;
  bool bytesAtRisk_ = false;
};

/// The file's bytes; "(none)" where there is no such file.
[[nodiscard]] inline std::string bytesOf(const std::string& path) {
  return test_support::readFile(path).value_or("(none)");
}
inline bool putFile(const std::string& path, const std::string& bytes) {
  return test_support::writeFile(path, bytes);
}

}  // namespace support
