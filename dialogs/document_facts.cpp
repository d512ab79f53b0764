#include "dialogs/document_facts.h"

#include <algorithm>
#include <cmath>

#include "values/runtime_error.h"

namespace dialogs {
namespace {

// Changes the letters a to z only, and no second byte of a double-byte character, which may have
// the value of a letter.
std::string upperCase(std::string_view text, library::LeadByteTest isLead) {
  std::string upper(text);
  for (std::size_t i = 0; i < upper.size(); ++i) {
    if (isLead(static_cast<unsigned char>(upper[i])))
      ++i;
    else if (upper[i] >= 'a' && upper[i] <= 'z')
      upper[i] = static_cast<char>(upper[i] - 'a' + 'A');
  }
  return upper;
}

}  // namespace

ShownPages pagesOfKind(std::string_view kind) {
  const std::string name = upperCase(kind, library::noLeadBytes);
  return {name == "UNTITLED" || name == "DOCUMENT", name == "PICTURE"};
}

std::string fileTypeText(std::string_view shellName, std::string_view fileName,
                         library::LeadByteTest isLead) {
  if (!shellName.empty()) return std::string(shellName);
  const std::size_t point = fileName.rfind('.');
  const std::string_view extension =
      point == std::string_view::npos ? std::string_view() : fileName.substr(point + 1);
  return upperCase(extension, isLead) + " file";
}

std::string locationText(std::string_view path, library::LeadByteTest isLead) {
  return library::bareDriveToRoot(library::folderPath(path, isLead));
}

int pageCount(int lines, const ReportPage& page) {
  if (!(page.height > 0) || !(page.lineHeight > 0))
    throw values::RuntimeError(values::ErrorNumber::invalidCall, "A page without a size");
  const double room = page.height - page.topMargin - page.bottomMargin;
  const double fitting = std::max(1.0, std::floor(room / page.lineHeight));
  return static_cast<int>(std::max(1.0, std::ceil(lines / fitting)));
}

}  // namespace dialogs
