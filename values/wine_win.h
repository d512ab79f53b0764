// Whether this is Wine: the few repairs that only Wine needs ask here.
#pragma once

#include <windows.h>

namespace values {

/// Wine's ntdll has a function of its own, by which programs can tell.
[[nodiscard]] inline bool onWine() {
  static const bool wine =
      GetProcAddress(GetModuleHandleA("ntdll.dll"), "wine_get_version") != nullptr;
  return wine;
}

}  // namespace values
