// Loads the program's own pictures, alpha included.
#pragma once

#include <windows.h>

#include "windowing/indexed_picture.h"

namespace windowing {

/// The bitmap resource `id` of `module` as a device-independent bitmap of 32 bits a pixel. The
/// caller deletes it. Null where the resource or the memory is missing.
[[nodiscard]] HBITMAP loadPicture(HINSTANCE module, int id, Alpha alpha);

}  // namespace windowing
