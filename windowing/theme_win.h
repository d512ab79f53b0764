// The theme engine. Its library is none of those that Windows takes from its own folder unasked.
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
