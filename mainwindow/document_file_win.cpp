#include "mainwindow/document_file_win.h"

#include <algorithm>
#include <limits>

#include "library/path_utilities.h"
#include "windowing/handles_win.h"
#include "windowing/system_error_win.h"

namespace mainwindow {

document::Bytes readFile(const std::string& path, windowing::FileCalls& calls) {
  const windowing::FileHandle file(calls.open(path, GENERIC_READ, OPEN_EXISTING));
  if (!file) windowing::raiseLastError();
  // A device would be read for ever.
  if (GetFileType(file.get()) != FILE_TYPE_DISK) throw windowing::systemError(ERROR_ACCESS_DENIED);
  LONGLONG size = 0;
  if (!calls.size(file.get(), size)) windowing::raiseLastError();
  if (size > std::numeric_limits<LONG>::max()) throw windowing::systemError(ERROR_OUTOFMEMORY);

  document::Bytes bytes(static_cast<std::size_t>(size));
  std::size_t at = 0;
  while (at < bytes.size()) {
    DWORD done = 0;
    if (!calls.read(file.get(), bytes.data() + at, static_cast<DWORD>(bytes.size() - at), done))
      windowing::raiseLastError();
    if (done == 0) break;  // the file grew shorter meanwhile
    at += done;
  }
  bytes.shrink(at);
  return bytes;
}

std::string fileNameOf(const std::string& path) {
  const std::size_t slash = library::lastBackslash(path);
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

}  // namespace mainwindow
