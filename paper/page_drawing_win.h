// Texts and rules that the program itself draws on a page, printed or as a picture. Places are
// twips from the top-left corner of the device context; they need not be whole device pixels.
#pragma once

#include <windows.h>

#include <string>

#include "paper/text_format.h"

namespace paper {

/// Writes `text` in black, without a background; (x, y) is the top-left corner of its line. Leaves
/// the current position at the end of the text.
void drawPageText(HDC page, const TextFormat& format, double x, double y, const std::string& text);

/// Draws a thin black rule from (x, y) to (toX, y).
void drawPageRule(HDC page, double x, double y, double toX);

}  // namespace paper
