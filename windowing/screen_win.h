// The primary screen: its resolution and size. The program is marked as aware of the system's
// resolution, which does not change while the program runs.
#pragma once

#include <windows.h>

#include "values/units.h"

namespace windowing {

/// Dots per inch of the screen.
[[nodiscard]] int screenDpi();

/// Size of the primary screen, the taskbar's strip included.
[[nodiscard]] values::Twips screenWidth();
[[nodiscard]] values::Twips screenHeight();

/// Nearest screen pixel of a length, and the exact length of pixels.
[[nodiscard]] int screenPixels(double twips);
[[nodiscard]] double screenTwips(int pixels);

/// Pixels of a length that a design gives at 96 dots per inch.
[[nodiscard]] int scaled(int pixelsAt96);

}  // namespace windowing
