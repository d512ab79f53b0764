#include "library/proper_case_win.h"

#include <windows.h>

#include <algorithm>

#include "library/path_utilities.h"
#include "values/handles_win.h"
#include "values/user_locale_win.h"

namespace library {
namespace {

// In a path, Windows treats "/" like "\".
bool isSeparator(char c) {
  return c == '\\' || c == '/';
}

std::size_t nextSeparator(const std::string& path, std::size_t from) {
  for (std::size_t i = from; i < path.size(); ++i) {
    if (values::isLeadByte(static_cast<unsigned char>(path[i])))
      ++i;
    else if (isSeparator(path[i]))
      return i;
  }
  return path.size();
}

// Length of the start of a path that is not looked for on the disk: "C:\" or "\\server\share\"; for
// "C:windows", which lies in the drive's current folder, "C:".
std::size_t prefixLength(const std::string& path) {
  if (path.size() >= 2 && path[1] == ':') return path.size() >= 3 && isSeparator(path[2]) ? 3 : 2;
  if (path.size() < 2 || !isSeparator(path[0]) || !isSeparator(path[1])) return 0;
  std::size_t end = 2;
  for (int part = 0; part < 2; ++part) end = std::min(nextSeparator(path, end) + 1, path.size());
  return end;
}

std::string foundName(const std::string& folder, const std::string& part) {
  const bool plain =
      !hasWildcards(part) && part.find('\0') == std::string::npos && part != "." && part != "..";
  if (!plain) return part;
  WIN32_FIND_DATAA found{};
  const values::FindHandle search(FindFirstFileA((folder + part).c_str(), &found));
  // A found name with "?" has a character that the code page lacks; no file could be opened by it.
  if (!search || hasWildcards(found.cFileName)) return part;
  return found.cFileName;
}

}  // namespace

std::string PROPERCASEPATH(const std::string& path) {
  std::size_t at = prefixLength(path);
  std::string result = path.substr(0, at);
  while (at < path.size()) {
    const std::size_t end = nextSeparator(path, at);
    if (end > at) result += foundName(result, path.substr(at, end - at));
    if (end < path.size()) result += path[end];
    at = end + 1;
  }
  return result;
}

std::string TRIMNULL(const std::string& text) {
  return trimNull(text);
}

}  // namespace library
