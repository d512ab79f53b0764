// The parts of the properties dialog that need no question to the system.
#pragma once

#include <string>
#include <string_view>

#include "library/path_utilities.h"

namespace dialogs {

/// Which pages the dialog shows beside the general one.
struct ShownPages {
  bool document = false;
  bool picture = false;
  friend bool operator==(const ShownPages&, const ShownPages&) = default;
};

/// The pages for a kind of document: for "UNTITLED" and "DOCUMENT" the page of figures, for
/// "PICTURE" the one of the picture, for any other kind ("TEMPLATE") neither. Case does not matter.
[[nodiscard]] ShownPages pagesOfKind(std::string_view kind);

/// The shell's name for the type of a file; where it has none, the extension in upper case and
/// " file".
[[nodiscard]] std::string fileTypeText(std::string_view shellName, std::string_view fileName,
                                       library::LeadByteTest isLead = library::noLeadBytes);

/// Folder of the file at `path`. Only the root of a drive has a "\" at its end.
[[nodiscard]] std::string locationText(std::string_view path,
                                       library::LeadByteTest isLead = library::noLeadBytes);

/// A page of the report, twips.
struct ReportPage {
  double height = 0;
  double topMargin = 0;
  double bottomMargin = 0;
  double lineHeight = 0;
};

/// How many pages `lines` lines need, at least one. No line is split between two pages, and each
/// page takes at least one line. Raises an invalid call for a page without a height.
[[nodiscard]] int pageCount(int lines, const ReportPage& page);

}  // namespace dialogs
