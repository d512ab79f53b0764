// The program's own answer to EM_FORMATRANGE, for a host whose rich edit control knows the
// message but does nothing about it.
#pragma once

#include <windows.h>

namespace paper {

/// Has `control`, a rich edit control, answer EM_FORMATRANGE: by itself where it can, else by
/// the same rules: rectangles in twips, measured on hdcTarget and drawn on hdc when wParam is
/// not 0, the first character that did not fit as result, rc.bottom moved up to the end of the
/// text; a null range releases what was kept between the pages. Lasts as long as the control.
void installPageFormatter(HWND control);

}  // namespace paper
