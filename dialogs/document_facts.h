// What the properties dialog works out without asking the system.
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

/// Pages of a kind of document, named in any case: "UNTITLED" and "DOCUMENT" have a page of
/// figures, "PICTURE" one of the picture; every other kind, "TEMPLATE" among them, has none.
[[nodiscard]] ShownPages pagesOfKind(std::string_view kind);

/// Type of a file as the shell names it, or its extension in upper case and " file" where the
/// shell has no name for it.
[[nodiscard]] std::string fileTypeText(std::string_view shellName, std::string_view fileName,
                                       library::LeadByteTest isLead = library::noLeadBytes);

/// Folder of the file at `path`; the root of a drive with its "\".
[[nodiscard]] std::string locationText(std::string_view path,
                                       library::LeadByteTest isLead = library::noLeadBytes);

/// A page of the report, twips.
struct ReportPage {
  double height = 0;
  double topMargin = 0;
  double bottomMargin = 0;
  double lineHeight = 0;
};

/// Pages that `lines` lines take, no line split between two; at least one. A page too low for
/// a line takes one all the same. Raises an invalid call for a page that is none.
[[nodiscard]] int pageCount(int lines, const ReportPage& page);

}  // namespace dialogs
