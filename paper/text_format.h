// The default format of the program's rich text.
#pragma once

#include <string>

namespace paper {

/// Typeface of the report, its header and its footer. It is scalable, so that a page looks the same
/// on every printer and in the preview.
constexpr const char* documentTypeface = "Arial";
constexpr int documentPoints = 10;

struct TextFormat {
  std::string face = documentTypeface;
  int points = documentPoints;
  bool bold = false;
};

}  // namespace paper
