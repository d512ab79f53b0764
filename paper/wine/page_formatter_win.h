// The program's own answer to EM_FORMATRANGE. On Wine, the rich edit control ignores this message.
// On Windows, the control answers it, and this code takes no part.
#pragma once

#include <windows.h>

namespace paper::wine {

/// Makes `control`, a rich edit control, answer EM_FORMATRANGE as long as it lives. Where the
/// control can answer itself, as on Windows, it does. Else this code answers by the same rules:
/// rectangles are twips; text is measured on hdcTarget and, when wParam is not 0, drawn on hdc; the
/// result is the first character that did not fit; rc.bottom becomes the end of the text; a null
/// range releases what is kept between pages.
void installPageFormatter(HWND control);

}  // namespace paper::wine
