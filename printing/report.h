// The one-contact report: what is written, in which order, before it becomes rich text.
#pragma once

#include <string>
#include <vector>

#include "document/ContactRecord.h"

namespace printing {

/// One step of composing: a line break, or a piece of text in bold or regular type. Every step
/// is an insertion of its own.
struct ReportStep {
  enum class Kind { lineBreak, boldText, text };
  Kind kind = Kind::lineBreak;
  std::string text;

  friend bool operator==(const ReportStep&, const ReportStep&) = default;
};

/// Steps of the report of `values`, the 28 texts as they stand on screen. Nothing is trimmed; a
/// value that is not empty gets a labelled line.
[[nodiscard]] std::vector<ReportStep> reportOf(const document::ContactRecord& values);

}  // namespace printing
