// The report of one contact: its texts and their order, before they become rich text.
#pragma once

#include <string>
#include <vector>

#include "document/ContactRecord.h"

namespace printing {

/// One insertion into the report: a line break, or a piece of text in bold or regular type.
struct ReportStep {
  enum class Kind { lineBreak, boldText, text };
  Kind kind = Kind::lineBreak;
  std::string text;

  friend bool operator==(const ReportStep&, const ReportStep&) = default;
};

/// The steps of the report of `values`, the 28 texts on screen. Each value that is not empty gets a
/// line with a label. Nothing is trimmed.
[[nodiscard]] std::vector<ReportStep> reportOf(const document::ContactRecord& values);

}  // namespace printing
