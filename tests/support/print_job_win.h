// What stands on the pages of a print job, read from its PostScript.
#pragma once

#include <string>
#include <vector>

namespace test_support {

/// Characters drawn after one move; places are device pixels from the printable corner, y the
/// base line.
struct JobText {
  int x = 0;
  int y = 0;
  std::string text;
};

struct JobPage {
  std::vector<JobText> texts;
  /// All texts in the order in which they were drawn, "|" between them.
  [[nodiscard]] std::string joined() const;
  /// The first text that begins with `start`; one at (-1, -1) when there is none.
  [[nodiscard]] JobText find(const std::string& start) const;
};

[[nodiscard]] std::vector<JobPage> pagesOf(const std::string& postScript);

}  // namespace test_support
