// Texts and heights that the main window works out from its state.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "values/units.h"

namespace mainwindow {

/// Place of contact `current` (from 0) among `count`, with its full stop; empty for no contacts.
[[nodiscard]] std::string statusText(int count, int current);

/// Title of the header band: the product and the document's full path, or "Untitled".
[[nodiscard]] std::string titleText(std::string_view product, std::string_view path);

/// Heights of the parts of the window, and which of the two bars are shown.
struct LayoutHeights {
  values::Twips toolbar, header, tabs, statusBar;
  bool toolbarShown = true;
  bool statusBarShown = true;
};

/// Space left below the tab strip.
constexpr int layoutMargin = 90;
/// Height added for caption, menu bar and borders.
constexpr int frameAllowance = 700;
/// Sum of the heights of the parts that are shown, rounded half to even to 16-bit twips; raises
/// overflow.
[[nodiscard]] std::int16_t innerHeight(const LayoutHeights& heights);

/// Height of the window in twips; raises overflow beyond 16 bits.
[[nodiscard]] std::int16_t windowHeight(const LayoutHeights& heights);

}  // namespace mainwindow
