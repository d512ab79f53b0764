// How the program's rich text looks unless something else is asked for.
#pragma once

#include <string>

namespace paper {

/// Typeface of the report, of its header and footer, and so of the printer's text output. It is
/// a scalable face, so that one page looks alike on every printer and in the preview.
constexpr const char* documentTypeface = "Arial";
constexpr int documentPoints = 10;

struct TextFormat {
  std::string face = documentTypeface;
  int points = documentPoints;
  bool bold = false;
};

}  // namespace paper
