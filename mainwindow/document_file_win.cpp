#include "mainwindow/document_file_win.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "library/path_utilities.h"
#include "values/handles_win.h"
#include "values/system_error_win.h"
#include "values/user_locale_win.h"

namespace mainwindow {

namespace {

// Reads the facts of a file, also of one that other programs have open. Opens it without access to
// its content, which no other program can prevent.
bool identify(const std::string& path, BY_HANDLE_FILE_INFORMATION& facts) {
  const values::FileHandle file(
      CreateFileA(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  return file && GetFileInformationByHandle(file.get(), &facts) != FALSE;
}

std::uint64_t joined(DWORD high, DWORD low) {
  constexpr int halfBits = 32;
  return static_cast<std::uint64_t>(high) << halfBits | low;
}

FileStamp stampOf(const BY_HANDLE_FILE_INFORMATION& facts) {
  return {joined(facts.nFileSizeHigh, facts.nFileSizeLow),
          joined(facts.ftLastWriteTime.dwHighDateTime, facts.ftLastWriteTime.dwLowDateTime)};
}

}  // namespace

FileContent readFile(const std::string& path, files::FileCalls& calls) {
  const values::FileHandle file(calls.open(path, GENERIC_READ, OPEN_EXISTING));
  if (!file) values::raiseLastError();
  // Reading a device might never end.
  if (GetFileType(file.get()) != FILE_TYPE_DISK) throw values::systemError(ERROR_ACCESS_DENIED);
  BY_HANDLE_FILE_INFORMATION facts{};
  if (!calls.information(file.get(), facts)) values::raiseLastError();
  LONGLONG size = 0;
  if (!calls.size(file.get(), size)) values::raiseLastError();
  if (size > std::numeric_limits<LONG>::max()) throw values::systemError(ERROR_OUTOFMEMORY);

  document::Bytes bytes(static_cast<std::size_t>(size));
  std::size_t at = 0;
  while (at < bytes.size()) {
    DWORD done = 0;
    if (!calls.read(file.get(), bytes.data() + at, static_cast<DWORD>(bytes.size() - at), done))
      values::raiseLastError();
    if (done == 0) break;  // the file has become shorter
    at += done;
  }
  const bool whole = at == bytes.size();
  bytes.shrink(at);
  return {std::move(bytes), whole, stampOf(facts)};
}

std::optional<FileStamp> stampOf(const std::string& path) {
  BY_HANDLE_FILE_INFORMATION facts{};
  if (!identify(path, facts)) return std::nullopt;
  return stampOf(facts);
}

bool sameFile(const std::string& one, const std::string& other) {
  if (lstrcmpiA(one.c_str(), other.c_str()) == 0) return true;
  BY_HANDLE_FILE_INFORMATION first{};
  BY_HANDLE_FILE_INFORMATION second{};
  return identify(one, first) && identify(other, second) &&
         first.dwVolumeSerialNumber == second.dwVolumeSerialNumber &&
         first.nFileIndexHigh == second.nFileIndexHigh &&
         first.nFileIndexLow == second.nFileIndexLow;
}

bool isFolder(const std::string& path) {
  // The full path tells when Windows takes a name for a device ("con", "C:\\nul"). A device is not
  // asked for its attributes, since it may never answer.
  const std::string full = fullPathOf(path);
  if (full.empty() || full.starts_with(R"(\\.\)") || full.starts_with(R"(\\?\)")) return false;
  const DWORD attributes = GetFileAttributesA(full.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::string fullPathOf(const std::string& path) {
  std::string full(GetFullPathNameA(path.c_str(), 0, nullptr, nullptr), '\0');
  full.resize(
      GetFullPathNameA(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
  return full;
}

}  // namespace mainwindow
