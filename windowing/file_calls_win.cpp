#include "windowing/file_calls_win.h"

#include <vector>

namespace windowing {

DWORD FileCalls::attributes(const std::string& path) {
  return GetFileAttributesA(path.c_str());
}

bool FileCalls::setAttributes(const std::string& path, DWORD attributes) {
  return SetFileAttributesA(path.c_str(), attributes) != FALSE;
}

HANDLE FileCalls::open(const std::string& path, DWORD access, DWORD disposition) {
  // Readers may look on while a document is read; nobody shares a file being written.
  const DWORD share = (access & GENERIC_WRITE) != 0 ? 0 : FILE_SHARE_READ;
  return CreateFileA(path.c_str(), access, share, nullptr, disposition,
                     FILE_ATTRIBUTE_NORMAL | FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
}

bool FileCalls::read(HANDLE file, char* data, DWORD size, DWORD& done) {
  return ReadFile(file, data, size, &done, nullptr) != FALSE;
}

bool FileCalls::write(HANDLE file, const char* data, DWORD size, DWORD& done) {
  return WriteFile(file, data, size, &done, nullptr) != FALSE;
}

bool FileCalls::size(HANDLE file, LONGLONG& bytes) {
  LARGE_INTEGER answer{};
  if (!GetFileSizeEx(file, &answer)) return false;
  bytes = answer.QuadPart;
  return true;
}

bool FileCalls::rewind(HANDLE file) {
  return SetFilePointer(file, 0, nullptr, FILE_BEGIN) != INVALID_SET_FILE_POINTER;
}

bool FileCalls::truncate(HANDLE file) {
  return SetEndOfFile(file) != FALSE;
}
bool FileCalls::flush(HANDLE file) {
  return FlushFileBuffers(file) != FALSE;
}
bool FileCalls::close(HANDLE file) {
  return CloseHandle(file) != FALSE;
}

bool FileCalls::copySecurity(const std::string& from, const std::string& to) {
  DWORD needed = 0;
  GetFileSecurityA(from.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &needed);
  std::vector<char> descriptor(needed);
  if (needed == 0 || !GetFileSecurityA(from.c_str(), DACL_SECURITY_INFORMATION, descriptor.data(),
                                       needed, &needed))
    return false;
  return SetFileSecurityA(to.c_str(), DACL_SECURITY_INFORMATION, descriptor.data()) != FALSE;
}

bool FileCalls::replace(const std::string& temporary, const std::string& target) {
  return MoveFileExA(temporary.c_str(), target.c_str(),
                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE;
}

bool FileCalls::remove(const std::string& path) {
  return DeleteFileA(path.c_str()) != FALSE;
}

}  // namespace windowing
