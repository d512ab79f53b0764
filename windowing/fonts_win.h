// Fonts by face and size, made once and kept as long as the program runs.
#pragma once

#include <windows.h>

namespace windowing {

/// Font of `points` (1/72 inch) at the screen's resolution. The program keeps it.
[[nodiscard]] HFONT font(const char* face, int points, bool bold = false);

/// Font of forms and their controls: Tahoma, 8 points.
[[nodiscard]] HFONT formFont();

/// Height of a line of that font, pixels.
[[nodiscard]] int formLineHeight();

}  // namespace windowing
