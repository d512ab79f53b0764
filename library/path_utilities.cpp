#include "library/path_utilities.h"

#include <algorithm>
#include <cstdint>

#include "values/checked.h"

namespace library {
namespace {

bool endsInBackslash(std::string_view path, LeadByteTest isLead) {
  return !path.empty() && lastBackslash(path, isLead) == path.size() - 1;
}

bool isLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

// Whether a path begins with a drive and "\", or with "\\" (a network share).
bool isFullPath(std::string_view path) {
  if (path.starts_with("\\\\")) return path.size() > 2;
  return path.size() > 2 && isLetter(path[0]) && path[1] == ':' && path[2] == '\\';
}

}  // namespace

std::size_t lastBackslash(std::string_view path, LeadByteTest isLead) {
  std::size_t last = std::string_view::npos;
  for (std::size_t i = 0; i < path.size(); ++i) {
    if (isLead(static_cast<unsigned char>(path[i])))
      ++i;
    else if (path[i] == '\\')
      last = i;
  }
  return last;
}

std::string folderPath(std::string_view path, LeadByteTest isLead) {
  const std::size_t at = lastBackslash(path, isLead);
  const bool found = at != std::string_view::npos;
  // The search counts characters from the end, in 16 bits.
  (void)values::checkedCast<std::int16_t>(
      static_cast<std::int64_t>(found ? path.size() - at : path.size()));
  return std::string(path.substr(0, found ? at : 0));
}

std::string folderWithBackslash(std::string_view path, LeadByteTest isLead) {
  const std::size_t at = lastBackslash(path, isLead);
  return std::string(path.substr(0, at == std::string_view::npos ? 0 : at + 1));
}

std::string fileNameOf(std::string_view path, LeadByteTest isLead) {
  return std::string(path.substr(folderWithBackslash(path, isLead).size()));
}

std::string fileNameLengthCheck(std::string_view path, LeadByteTest isLead) {
  std::string result(path);
  if (path.size() > 3 && !endsInBackslash(path, isLead)) result += '\\';
  return result;
}

std::string composePath(std::string_view folder, std::string_view file, LeadByteTest isLead) {
  if (folder.empty()) return std::string(file);
  while (endsInBackslash(folder, isLead)) folder.remove_suffix(1);
  while (file.starts_with('\\')) file.remove_prefix(1);
  return std::string(folder) + '\\' + std::string(file);
}

std::string trimNull(std::string_view text) {
  return std::string(text.substr(0, text.find('\0')));
}

bool hasWildcards(std::string_view path) {
  return path.find_first_of("?*") != std::string_view::npos;
}

std::string bareDriveToRoot(std::string_view folder) {
  std::string result(folder);
  if (folder.size() == 2 && isLetter(folder[0]) && folder[1] == ':') result += '\\';
  return result;
}

std::string withDefaultExtension(std::string_view path, std::string_view extension,
                                 LeadByteTest isLead) {
  const std::size_t start = folderWithBackslash(path, isLead).size();
  const std::string_view name = path.substr(start);
  std::string result(path);
  if (!name.empty() && name.find('.') == std::string_view::npos) result += extension;
  return result;
}

bool isSafeToDelete(std::string_view path) {
  // A path of three characters ("C:\") is a whole drive.
  return path.size() > 3 && isFullPath(path) && !hasWildcards(path) &&
         path.find('\0') == std::string_view::npos;
}

std::string doubleNulList(std::string_view path) {
  return std::string(path) + std::string(2, '\0');
}

}  // namespace library
