// What stands on the pages of a print job, read from its PostScript.
#pragma once

#include <string>
#include <vector>

namespace test_support {

/// The lines "Line 1" to "Line " and `last`.
[[nodiscard]] std::string lines(int last);

/// Characters drawn after one move; places are device pixels from the printable corner, y the
/// base line.
struct JobText {
  int x = 0;
  int y = 0;
  std::string text;
  bool bold = false;
};

/// A line across the page.
struct JobRule {
  int x = 0;
  int y = 0;
  int toX = 0;
};

struct JobPage {
  std::vector<JobText> texts;
  std::vector<JobRule> rules;
  /// All texts in the order in which they were drawn, "|" between them.
  [[nodiscard]] std::string joined() const;
  /// The first text that begins with `start`; one at (-1, -1) when there is none.
  [[nodiscard]] JobText find(const std::string& start) const;
};

[[nodiscard]] std::vector<JobPage> pagesOf(const std::string& postScript);

}  // namespace test_support
