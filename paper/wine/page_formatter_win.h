// The program's own answer to EM_FORMATRANGE, for Wine, whose rich edit control knows the message
// but does nothing about it. The control of Windows answers, and is left to.
#pragma once

#include <windows.h>

namespace paper::wine {

/// Has `control`, a rich edit control, answer EM_FORMATRANGE: by itself where it can, as it does
/// on Windows, else by the same rules: rectangles in twips, measured on hdcTarget and drawn on hdc
/// when wParam is not 0, the first character that did not fit as result, rc.bottom moved up to the
/// end of the text; a null range releases what was kept between the pages. Lasts as long as the
/// control.
void installPageFormatter(HWND control);

}  // namespace paper::wine
