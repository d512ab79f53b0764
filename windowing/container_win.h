// A window that only holds other controls and passes what they report on to the form.
#pragma once

#include <windows.h>

namespace windowing {

/// Window class of containers; registered at first use.
[[nodiscard]] const char* containerClass();

/// What a container looks like.
enum class Surface {
  face,     ///< the button face; as a container is made
  window,   ///< the background of windows
  tabPage,  ///< the inside of a tab strip, which themes paint in a colour of its own
};
void setSurface(HWND container, Surface surface);

}  // namespace windowing
