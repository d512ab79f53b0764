// Loads the program's own pictures, alpha included.
#pragma once

#include <windows.h>

#include "windowing/indexed_picture.h"

namespace windowing {

/// The bitmap resource `id` of `module` as a 32-bit device-independent bitmap with
/// alpha, for an image list (straight) or for AlphaBlend (premultiplied). The caller
/// deletes it. Null where there is no such resource or no memory.
[[nodiscard]] HBITMAP loadPicture(HINSTANCE module, int id, Alpha alpha);

}  // namespace windowing
