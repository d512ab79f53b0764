#include "files/file_writing_win.h"

#include "values/system_error_win.h"

namespace files {

void OpenFile::write(std::string_view data) {
  const auto size = static_cast<DWORD>(data.size());
  DWORD done = 0;
  if (size != 0 && !calls_.write(file_, data.data(), size, done)) values::raiseLastError();
  // On a full disk, Wine reports success but writes fewer bytes.
  if (done != size) throw values::systemError(ERROR_DISK_FULL);
}

void OpenFile::flush() {
  if (!calls_.flush(file_)) values::raiseLastError();
}

void OpenFile::close() {
  if (!calls_.close(std::exchange(file_, INVALID_HANDLE_VALUE))) values::raiseLastError();
}

std::string OpenFile::readAll() {
  LONGLONG size = 0;
  if (!calls_.size(file_, size)) values::raiseLastError();
  std::string content(static_cast<std::size_t>(size), '\0');
  std::size_t at = 0;
  while (at < content.size()) {
    DWORD done = 0;
    if (!calls_.read(file_, content.data() + at, static_cast<DWORD>(content.size() - at), done))
      values::raiseLastError();
    if (done == 0) throw values::systemError(ERROR_HANDLE_EOF);
    at += done;
  }
  return content;
}

void OpenFile::overwrite(const FileProducer& produce) {
  if (!calls_.rewind(file_)) values::raiseLastError();
  produce([this](std::string_view piece) { write(piece); });
  if (!calls_.truncate(file_)) values::raiseLastError();
  flush();
}

void OpenFile::putBack(const std::string& content, const FILETIME& lastWrite) {
  overwrite([&](const FileSink& sink) { sink(content); });
  calls_.setLastWrite(file_, lastWrite);
}

bool mayPass(DWORD error) {
  // Windows reports the second when a file is moved over one that is open.
  return error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED ||
         error == ERROR_LOCK_VIOLATION;
}

HANDLE openToRewrite(const std::string& path, FileCalls& calls) {
  HANDLE file = INVALID_HANDLE_VALUE;
  const bool opened = patiently(calls, [&] {
    file = calls.open(path, GENERIC_READ | GENERIC_WRITE, OPEN_EXISTING);
    return file != INVALID_HANDLE_VALUE;
  });
  if (!opened) values::raiseLastError();
  return file;
}

void moveOver(const std::string& from, const std::string& to, FileCalls& calls) {
  if (!patiently(calls, [&] { return calls.replace(from, to); })) values::raiseLastError();
}

}  // namespace files
