#include "dialogs/file_facts_win.h"

#include <shellapi.h>

#include "library/path_utilities.h"
#include "values/runtime_error.h"
#include "values/system_error_win.h"
#include "windowing/shell_win.h"

namespace dialogs {
namespace {

[[noreturn]] void raiseNotFound(const std::string& path) {
  throw values::RuntimeError(values::ErrorNumber::fileNotFound, "File not found: " + path);
}

// Calls a function that formats a date or a time into a buffer, and returns its text.
template <typename Format>
std::string formatted(Format format) {
  const int size = format(nullptr, 0);
  std::string text(static_cast<std::size_t>(size), '\0');
  if (size == 0 || format(text.data(), size) == 0) values::raiseLastError();
  return library::trimNull(text);
}

}  // namespace

std::string fullPath(const std::string& path) {
  const DWORD size = GetFullPathNameA(path.c_str(), 0, nullptr, nullptr);
  std::string full(size, '\0');
  const DWORD length = GetFullPathNameA(path.c_str(), size, full.data(), nullptr);
  if (length == 0 || length >= size) values::raiseLastError();
  full.resize(length);
  return full;
}

FileFacts fileFacts(const std::string& path) {
  WIN32_FIND_DATAA found{};
  if (library::hasWildcards(path)) raiseNotFound(path);
  const values::FindHandle search(FindFirstFileA(path.c_str(), &found));
  if (!search) raiseNotFound(path);

  FileFacts facts;
  facts.attributes = found.dwFileAttributes;
  constexpr int halfBits = 32;
  facts.size = static_cast<std::uint64_t>(found.nFileSizeHigh) << halfBits | found.nFileSizeLow;
  facts.lastWrite = found.ftLastWriteTime;
  windowing::prepareShell();
  SHFILEINFOA shell{};
  if (SHGetFileInfoA(path.c_str(), 0, &shell, sizeof shell,
                     SHGFI_TYPENAME | SHGFI_ICON | SHGFI_LARGEICON) != 0) {
    facts.typeName = shell.szTypeName;
    facts.icon.reset(shell.hIcon);
  }
  return facts;
}

std::string dateTimeText(const FILETIME& time) {
  FILETIME local{};
  SYSTEMTIME parts{};
  if (!FileTimeToLocalFileTime(&time, &local) || !FileTimeToSystemTime(&local, &parts))
    values::raiseLastError();
  return formatted([&](char* text, int size) {
           return GetDateFormatA(LOCALE_USER_DEFAULT, DATE_LONGDATE, &parts, nullptr, text, size);
         }) +
         " " + formatted([&](char* text, int size) {
           return GetTimeFormatA(LOCALE_USER_DEFAULT, 0, &parts, nullptr, text, size);
         });
}

bool setReadOnly(const std::string& path, bool readOnly) {
  const DWORD before = GetFileAttributesA(path.c_str());
  if (before == INVALID_FILE_ATTRIBUTES) return false;
  const DWORD others = before & ~static_cast<DWORD>(FILE_ATTRIBUTE_READONLY);
  const DWORD wanted = readOnly ? others | FILE_ATTRIBUTE_READONLY : others;
  return SetFileAttributesA(path.c_str(), wanted != 0 ? wanted : FILE_ATTRIBUTE_NORMAL) != FALSE;
}

std::optional<ImageHeader> GETIMAGEFILEINFO(const std::string& path) {
  const values::FileHandle file(CreateFileA(path.c_str(), GENERIC_READ,
                                            FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                            OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file) return std::nullopt;
  std::string bytes(imageHeaderBytes, '\0');
  DWORD read = 0;
  if (!ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr))
    return std::nullopt;
  bytes.resize(read);
  return readImageHeader(bytes);
}

}  // namespace dialogs
