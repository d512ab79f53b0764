#include "windowing/fonts_win.h"

#include <map>
#include <string>
#include <tuple>

#include "values/handles_win.h"
#include "windowing/screen_win.h"

namespace windowing {

HFONT font(const char* face, int points, bool bold) {
  static std::map<std::tuple<std::string, int, bool>, values::FontHandle> made;
  values::FontHandle& found = made[{face, points, bold}];
  if (!found) {
    constexpr int pointsPerInch = 72;
    found.reset(CreateFontA(-MulDiv(points, screenDpi(), pointsPerInch), 0, 0, 0,
                            bold ? FW_BOLD : FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                            OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                            DEFAULT_PITCH | FF_DONTCARE, face));
  }
  return found.get();
}

HFONT formFont() {
  return font("Tahoma", 8);
}

int formLineHeight() {
  static const int height = [] {
    const values::WindowDc screen(nullptr);
    const values::Selected selected(screen.get(), formFont());
    TEXTMETRICA metrics{};
    GetTextMetricsA(screen.get(), &metrics);
    return static_cast<int>(metrics.tmHeight);
  }();
  return height;
}

}  // namespace windowing
