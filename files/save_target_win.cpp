#include "files/save_target_win.h"

#include "files/file_writing_win.h"
#include "values/system_error_win.h"

namespace files {
namespace {

// Empty where the code page lacks a letter of `wide`.
std::string inCodePage(const std::wstring& wide) {
  const auto size = static_cast<int>(wide.size());
  std::string text(4 * wide.size() + 1, '\0');
  text.resize(static_cast<std::size_t>(WideCharToMultiByte(
      CP_ACP, 0, wide.data(), size, text.data(), static_cast<int>(text.size()), nullptr, nullptr)));
  std::wstring back(wide.size() + 1, L'\0');
  back.resize(static_cast<std::size_t>(
      MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()), back.data(),
                          static_cast<int>(back.size()))));
  return back == wide ? text : std::string();
}

bool isLink(const std::string& path, FileCalls& calls) {
  const DWORD own = calls.attributes(path);
  return own != INVALID_FILE_ATTRIBUTES && (own & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

void followLinks(HANDLE file, SaveTarget& target, FileCalls& calls) {
  std::wstring name;
  if (calls.finalName(file, name)) {
    const std::string plain = plainName(name);
    target.reachable = !plain.empty();
    if (target.reachable) target.path = plain;
  } else {
    // Some drives do not tell the final name. There, a path that is no link leads where it says.
    target.reachable = !isLink(target.path, calls);
  }
}

void describe(HANDLE file, SaveTarget& target, FileCalls& calls) {
  BY_HANDLE_FILE_INFORMATION facts{};
  if (!calls.information(file, facts)) values::raiseLastError();
  target.exists = true;
  target.attributes = facts.dwFileAttributes;
  target.links = facts.nNumberOfLinks;
  target.lastWrite = facts.ftLastWriteTime;
}

// For a link that leads to no file: Wine reports that the link is not there, but refuses to make a
// new file of its name. It does follow the link when a file may be made or opened, so that makes
// the file at the end of the link.
void findBehindLinkOnWine(SaveTarget& target, FileCalls& calls) {
  OpenFile file(calls.open(target.path, GENERIC_WRITE, OPEN_ALWAYS), calls);
  if (!file.valid()) values::raiseLastError();
  const bool made = GetLastError() != ERROR_ALREADY_EXISTS;
  const std::string link = target.path;
  followLinks(file.handle(), target, calls);
  target.made = made && target.path != link;
  Temporary undo(target.made ? target.path : std::string(), calls);
  describe(file.handle(), target, calls);
  file.close();
  undo.keep();
}

// For a path where no file is found. It may be a link that leads to no file; a new file, deleted
// at once, tells where it leads.
void findMissing(SaveTarget& target, FileCalls& calls) {
  const OpenFile probe(calls.probe(target.path), calls);
  if (probe.valid()) {
    followLinks(probe.handle(), target, calls);
    // The folder's full name may have letters that the code page lacks; `path` itself will do then,
    // unless it is a link.
    target.reachable = target.reachable || !isLink(target.path, calls);
    return;
  }
  if (GetLastError() == ERROR_FILE_EXISTS) findBehindLinkOnWine(target, calls);
}

}  // namespace

std::string plainName(const std::wstring& name) {
  constexpr std::wstring_view share = L"\\\\?\\UNC\\";
  constexpr std::wstring_view drive = L"\\\\?\\";
  std::string plain;
  if (name.starts_with(share))
    plain = inCodePage(L"\\\\" + name.substr(share.size()));
  else if (name.starts_with(drive) && name.find(L':') == drive.size() + 1)
    plain = inCodePage(name.substr(drive.size()));
  return plain.size() < MAX_PATH ? plain : std::string();
}

SaveTarget findSaveTarget(const std::string& path, FileCalls& calls) {
  SaveTarget target{path};
  const OpenFile file(calls.open(path, FILE_READ_ATTRIBUTES, OPEN_EXISTING), calls);
  if (file.valid()) {
    describe(file.handle(), target, calls);
    followLinks(file.handle(), target, calls);
  } else if (GetLastError() == ERROR_FILE_NOT_FOUND) {
    findMissing(target, calls);
  } else {
    values::raiseLastError();
  }
  return target;
}

}  // namespace files
