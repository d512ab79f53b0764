// A window that only holds other controls and passes what they report on to its parent.
#pragma once

#include <windows.h>

namespace windowing {

/// Window class of containers; registered at first use.
[[nodiscard]] const char* containerClass();

/// Sets the background of a container: a system colour, by default the button face.
void setContainerColour(HWND container, int systemColour);

}  // namespace windowing
