#include "app/startup_path_win.h"

#include <windows.h>

#include <shellapi.h>

#include <array>

#include "library/path_utilities.h"
#include "library/proper_case_win.h"
#include "values/handles_win.h"
#include "values/user_locale_win.h"
#include "windowing/shell_win.h"

namespace app {
namespace {

std::string fullPathOf(const std::string& requested) {
  std::array<char, MAX_PATH> buffer{};
  const DWORD length = GetFullPathNameA(requested.c_str(), buffer.size(), buffer.data(), nullptr);
  // Where the buffer is too small, the result is the size that it would need.
  return length != 0 && length < buffer.size() ? std::string(buffer.data(), length) : requested;
}

std::string folderOf(const std::string& path) {
  std::string folder = library::folderWithBackslash(path, values::isLeadByte);
  if (folder.empty()) return folder;
  folder = library::PROPERCASEPATH(folder);
  if (library::lastBackslash(folder, values::isLeadByte) != folder.size() - 1) folder += '\\';
  return folder;
}

// The name that the shell shows for a file; empty where the shell does not know the file.
std::string shellDisplayName(const std::string& path) {
  windowing::prepareShell();
  SHFILEINFOA info{};
  static_assert(sizeof info == 352);
  const DWORD_PTR known = SHGetFileInfoA(path.c_str(), 0, &info, sizeof info,
                                         SHGFI_ICON | SHGFI_DISPLAYNAME | SHGFI_TYPENAME);
  const values::IconHandle icon(info.hIcon);
  if (known == 0) return {};
  return library::TRIMNULL(std::string(info.szDisplayName, sizeof info.szDisplayName));
}

bool sameName(const std::string& a, const std::string& b) {
  return lstrcmpiA(a.c_str(), b.c_str()) == 0;
}

// The name that the shell shows, with the extension added that Explorer may be set to hide. The
// disk's name where that differs from it: a translated name, for example, would open no file or
// another one.
std::string completeName(const std::string& shown, const std::string& onDisk) {
  if (sameName(shown, onDisk)) return shown;
  const std::size_t dot = onDisk.find_last_of('.');
  const std::string complete = dot == std::string::npos ? shown : shown + onDisk.substr(dot);
  return sameName(complete, onDisk) ? complete : onDisk;
}

}  // namespace

std::string documentPathOf(const std::string& tail) {
  const std::string path = fullPathOf(tail);
  const std::string folder = folderOf(path);
  const std::string typed = library::fileNameOf(path, values::isLeadByte);
  // A search for a name with wildcards would find another file.
  if (typed.empty() || library::hasWildcards(path)) return folder + typed;
  const std::string onDisk = library::PROPERCASEPATH(folder + typed).substr(folder.size());
  return folder + completeName(shellDisplayName(path), onDisk);
}

}  // namespace app
