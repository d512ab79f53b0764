// What a device context was told to draw, read back from an enhanced metafile.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace test_support {

struct DrawnText {
  std::string text;
  int x;  ///< reference point, logical units
  int y;
  int weight;  ///< of its font, 400 or 700
  int width;   ///< sum of the advances given with it
  COLORREF colour;
};

struct DrawnLine {
  POINT from;
  POINT to;
};

struct Drawing {
  std::vector<DrawnText> texts;
  std::vector<DrawnLine> lines;
  /// All texts in order, "|" between them.
  [[nodiscard]] std::string joined() const;
};

/// What `recording` draws.
[[nodiscard]] Drawing drawingOf(HENHMETAFILE recording);

class Recording {
 public:
  /// Records with the coordinates of `reference` (null: the screen).
  explicit Recording(HDC reference = nullptr);
  Recording(const Recording&) = delete;
  Recording& operator=(const Recording&) = delete;
  ~Recording();
  [[nodiscard]] HDC dc() const { return dc_; }
  /// Ends the recording.
  [[nodiscard]] Drawing drawing();

 private:
  HDC dc_;
};

}  // namespace test_support
