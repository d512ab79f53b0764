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
  void failAt(int call, const Failure& failure = {});
  /// Number of calls since `failAt`.
  [[nodiscard]] int calls() const { return calls_; }

  bool noNewFiles = false;      ///< the folder lets nobody make a file
  LONGLONG pretendedBytes = 0;  ///< added to every file's size

  DWORD attributes(const std::string& path) override;
  bool setAttributes(const std::string& path, DWORD attributes) override;
  HANDLE open(const std::string& path, DWORD access, DWORD disposition) override;
  bool read(HANDLE file, char* data, DWORD size, DWORD& done) override;
  bool write(HANDLE file, const char* data, DWORD size, DWORD& done) override;
  bool size(HANDLE file, LONGLONG& bytes) override;
  bool rewind(HANDLE file) override;
  bool truncate(HANDLE file) override;
  bool flush(HANDLE file) override;
  bool close(HANDLE file) override;
  bool copySecurity(const std::string& from, const std::string& to) override;
  bool replace(const std::string& temporary, const std::string& target) override;
  bool remove(const std::string& path) override;

 private:
  bool fails();

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
