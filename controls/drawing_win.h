// Small helpers for painting in the system's colours.
#pragma once

#include <windows.h>

#include "values/handles_win.h"

namespace controls {

/// Two system colours mixed: `percent` of `over` on `under`. In high contrast no colours are mixed:
/// the result is `over` from 50 percent up, else `under`.
[[nodiscard]] COLORREF mixedColour(int under, int over, int percent);
[[nodiscard]] bool highContrast();

void fill(HDC dc, const RECT& area, COLORREF colour);
/// Draws a frame of the given thickness (pixels) inside `area`.
void frame(HDC dc, const RECT& area, COLORREF colour, int thickness);

[[nodiscard]] constexpr int widthOf(const RECT& area) {
  return area.right - area.left;
}
[[nodiscard]] constexpr int heightOf(const RECT& area) {
  return area.bottom - area.top;
}

/// A bitmap to paint into; the end of the scope copies it to the target all at once. Its
/// coordinates are those of the target.
class Buffered {
 public:
  Buffered(HDC target, const RECT& area);
  Buffered(const Buffered&) = delete;
  Buffered& operator=(const Buffered&) = delete;
  ~Buffered();
  [[nodiscard]] HDC dc() const { return memory_.get(); }

 private:
  HDC target_;
  RECT area_;
  values::MemoryDc memory_;
  values::BitmapHandle bitmap_;
  HGDIOBJ old_ = nullptr;
};

}  // namespace controls
