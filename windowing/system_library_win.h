// Libraries of Windows, from the folder of Windows: one of the same name that lies beside the
// program, as in a folder of downloads, must not run in it.
#pragma once

#include <windows.h>

namespace windowing {

/// Has all libraries that are loaded from now on come from the system's folder. Those that the
/// program itself loads do so on every Windows; those that the system's libraries load in turn,
/// where Windows knows how to (8 and later, 7 with its updates).
void loadLibrariesFromSystemOnly();

/// Loads a library of the system's folder; null where there is none of this name.
[[nodiscard]] HMODULE loadSystemLibrary(const char* name);

}  // namespace windowing
