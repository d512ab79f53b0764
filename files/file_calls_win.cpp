#include "files/file_calls_win.h"

#include <vector>

#include "files/wine/unix_permissions_win.h"
#include "values/handles_win.h"
#include "values/wine_win.h"

namespace files {
namespace {

std::vector<char> descriptorOf(const std::string& path, SECURITY_INFORMATION parts) {
  DWORD needed = 0;
  GetFileSecurityA(path.c_str(), parts, nullptr, 0, &needed);
  std::vector<char> descriptor(needed);
  if (needed == 0 || !GetFileSecurityA(path.c_str(), parts, descriptor.data(), needed, &needed))
    descriptor.clear();
  return descriptor;
}

}  // namespace

DWORD FileCalls::attributes(const std::string& path) {
  return GetFileAttributesA(path.c_str());
}

bool FileCalls::setAttributes(const std::string& path, DWORD attributes) {
  return SetFileAttributesA(path.c_str(), attributes) != FALSE;
}

HANDLE FileCalls::open(const std::string& path, DWORD access, DWORD disposition) {
  // Others may read a document that is being read. Nobody may open a file that is being written.
  // Asking only for a file's facts keeps nobody from anything.
  const DWORD share = (access & GENERIC_WRITE) != 0 ? 0
                      : access == FILE_READ_ATTRIBUTES
                          ? FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE
                          : FILE_SHARE_READ;
  return CreateFileA(path.c_str(), access, share, nullptr, disposition,
                     FILE_ATTRIBUTE_NORMAL | FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
}

HANDLE FileCalls::create(const std::string& path, DWORD attributes) {
  return CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                     attributes | FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
}

HANDLE FileCalls::probe(const std::string& path) {
  return CreateFileA(path.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_NEW,
                     FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
}

bool FileCalls::information(HANDLE file, BY_HANDLE_FILE_INFORMATION& facts) {
  return GetFileInformationByHandle(file, &facts) != FALSE;
}

bool FileCalls::finalName(HANDLE file, std::wstring& name) {
  name.resize(GetFinalPathNameByHandleW(file, nullptr, 0, FILE_NAME_NORMALIZED));
  const auto size = static_cast<DWORD>(name.size());
  const DWORD length = GetFinalPathNameByHandleW(file, name.data(), size, FILE_NAME_NORMALIZED);
  if (length == 0 || length >= size) return false;
  name.resize(length);
  return true;
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
bool FileCalls::setLastWrite(HANDLE file, const FILETIME& time) {
  return SetFileTime(file, nullptr, nullptr, &time) != FALSE;
}
bool FileCalls::close(HANDLE file) {
  return CloseHandle(file) != FALSE;
}

std::string FileCalls::security(const std::string& path) {
  std::vector<char> descriptor =
      descriptorOf(path, OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION);
  if (descriptor.empty()) return {};
  PSID owner = nullptr;
  PACL list = nullptr;
  BOOL present = FALSE;
  BOOL defaulted = FALSE;
  GetSecurityDescriptorOwner(descriptor.data(), &owner, &defaulted);
  GetSecurityDescriptorDacl(descriptor.data(), &present, &list, &defaulted);
  std::string answer;
  if (owner != nullptr) answer.append(static_cast<char*>(owner), GetLengthSid(owner));
  if (list != nullptr) answer.append(reinterpret_cast<char*>(list), list->AclSize);
  return answer;
}

bool FileCalls::copySecurity(const std::string& from, const std::string& to) {
  std::vector<char> descriptor = descriptorOf(from, DACL_SECURITY_INFORMATION);
  if (descriptor.empty()) return false;
  if (!values::onWine())
    return SetFileSecurityA(to.c_str(), DACL_SECURITY_INFORMATION, descriptor.data()) != FALSE;
  return wine::setAccessControl(to, descriptor.data());
}

bool FileCalls::securityIsWhole() {
  return !values::onWine();
}

bool FileCalls::hasStreams(const std::string& path) {
  std::vector<wchar_t> name(path.size() + 1);
  MultiByteToWideChar(CP_ACP, 0, path.c_str(), -1, name.data(), static_cast<int>(name.size()));
  // The first stream is the content.
  WIN32_FIND_STREAM_DATA stream{};
  const values::FindHandle search(
      FindFirstStreamW(name.data(), FindStreamInfoStandard, &stream, 0));
  return search && FindNextStreamW(search.get(), &stream);
}

bool FileCalls::link(const std::string& path, const std::string& name) {
  return CreateHardLinkA(name.c_str(), path.c_str(), nullptr) != FALSE;
}

bool FileCalls::replace(const std::string& temporary, const std::string& target) {
  return MoveFileExA(temporary.c_str(), target.c_str(),
                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE;
}

bool FileCalls::remove(const std::string& path) {
  return DeleteFileA(path.c_str()) != FALSE;
}

std::string FileCalls::temporaryFolder() {
  char folder[MAX_PATH + 1] = {};
  GetTempPathA(sizeof folder, folder);
  return folder;
}

void FileCalls::wait(DWORD milliseconds) {
  Sleep(milliseconds);
}

}  // namespace files
