#include "tests/support/failing_files_win.h"

namespace support {

void FailingFiles::failAt(int call, const Failure& failure) {
  failAt_ = call;
  failure_ = failure;
  calls_ = 0;
}

bool FailingFiles::fails() {
  ++calls_;
  if (failAt_ == 0 || calls_ < failAt_ || (calls_ > failAt_ && !failure_.onwards)) return false;
  SetLastError(failure_.error);
  return true;
}

DWORD FailingFiles::attributes(const std::string& path) {
  return fails() ? INVALID_FILE_ATTRIBUTES : FileCalls::attributes(path);
}

bool FailingFiles::setAttributes(const std::string& path, DWORD attributes) {
  return !fails() && FileCalls::setAttributes(path, attributes);
}

HANDLE FailingFiles::open(const std::string& path, DWORD access, DWORD disposition) {
  if (fails()) return INVALID_HANDLE_VALUE;
  const DWORD there = GetFileAttributesA(path.c_str());
  const bool isNew = there == INVALID_FILE_ATTRIBUTES;
  // Windows makes no hidden file anew; not every system that runs its programs knows that.
  if (disposition == CREATE_ALWAYS &&
      (isNew ? noNewFiles : (there & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) != 0)) {
    SetLastError(ERROR_ACCESS_DENIED);
    return INVALID_HANDLE_VALUE;
  }
  return FileCalls::open(path, access, disposition);
}

bool FailingFiles::read(HANDLE file, char* data, DWORD size, DWORD& done) {
  return !fails() && FileCalls::read(file, data, size, done);
}

bool FailingFiles::write(HANDLE file, const char* data, DWORD size, DWORD& done) {
  if (!fails()) return FileCalls::write(file, data, size, done);
  FileCalls::write(file, data, size / 2, done);
  SetLastError(failure_.error);
  return failure_.shortCount;
}

bool FailingFiles::size(HANDLE file, LONGLONG& bytes) {
  if (fails() || !FileCalls::size(file, bytes)) return false;
  bytes += pretendedBytes;
  return true;
}

bool FailingFiles::rewind(HANDLE file) {
  return !fails() && FileCalls::rewind(file);
}
bool FailingFiles::truncate(HANDLE file) {
  return !fails() && FileCalls::truncate(file);
}
bool FailingFiles::flush(HANDLE file) {
  return !fails() && FileCalls::flush(file);
}

bool FailingFiles::close(HANDLE file) {
  const bool failed = fails();
  // A handle is gone even where closing it reports that the last bytes got lost.
  const bool closed = FileCalls::close(file);
  if (failed) SetLastError(failure_.error);
  return closed && !failed;
}

bool FailingFiles::copySecurity(const std::string& from, const std::string& to) {
  return !fails() && FileCalls::copySecurity(from, to);
}
bool FailingFiles::replace(const std::string& temporary, const std::string& target) {
  return !fails() && FileCalls::replace(temporary, target);
}
bool FailingFiles::remove(const std::string& path) {
  return !fails() && FileCalls::remove(path);
}

}  // namespace support
