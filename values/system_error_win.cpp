#include "values/system_error_win.h"

#include <string>

namespace values {
namespace {

ErrorNumber numberOf(DWORD code) {
  switch (code) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_INVALID_NAME:
      return ErrorNumber::fileNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_BAD_NETPATH:
    case ERROR_INVALID_DRIVE:
      return ErrorNumber::pathNotFound;
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_WRITE_PROTECT:
      return ErrorNumber::permissionDenied;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
      return ErrorNumber::diskFull;
    case ERROR_NOT_ENOUGH_MEMORY:
    case ERROR_OUTOFMEMORY:
      return ErrorNumber::outOfMemory;
    default:
      return ErrorNumber::ioError;
  }
}

}  // namespace

RuntimeError systemError(DWORD code) {
  if (numberOf(code) == ErrorNumber::outOfMemory)
    return {ErrorNumber::outOfMemory, "Out of memory"};
  char buffer[512] = {};
  DWORD length = FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                code, 0, buffer, sizeof buffer, nullptr);
  while (length > 0 && static_cast<unsigned char>(buffer[length - 1]) <= ' ') --length;
  std::string text(buffer, length);
  if (text.empty()) text = "System error " + std::to_string(code);
  return {numberOf(code), text};
}

void raiseLastError() {
  throw systemError(GetLastError());
}

}  // namespace values
