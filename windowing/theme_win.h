// The theme engine. Called through pointers, because an imported uxtheme.dll could come from the
// program's own folder.
#pragma once

#include <windows.h>

#include <uxtheme.h>

#include "windowing/system_library_win.h"

namespace windowing {

struct ThemeEngine {
  SystemLibrary library{"uxtheme.dll"};
  decltype(&IsAppThemed) isAppThemed = library.function("IsAppThemed");
  decltype(&IsThemeActive) isThemeActive = library.function("IsThemeActive");
  decltype(&OpenThemeData) openThemeData = library.function("OpenThemeData");
  decltype(&DrawThemeBackground) drawThemeBackground = library.function("DrawThemeBackground");
  decltype(&CloseThemeData) closeThemeData = library.function("CloseThemeData");
};

/// Loaded at the first call.
inline const ThemeEngine& themes() {
  static const ThemeEngine engine;
  return engine;
}

}  // namespace windowing
