// Pictures of the screen. A screen that shows nothing (Wine without a display) has none.
#pragma once

#include <windows.h>

#include <string>

namespace drive {

/// Saves what the screen shows of `window`, and of what lies over it, as a bitmap `file`. False
/// when there is nothing to be seen, or the file cannot be written.
bool takePicture(HWND window, const std::string& file);

}  // namespace drive
