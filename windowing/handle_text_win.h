// Window handles as texts: the operations of the common library take them as decimal numbers.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "values/number_text.h"

namespace windowing {

/// The decimal text of a window's handle.
[[nodiscard]] inline std::string handleText(HWND window) {
  return values::integerText(reinterpret_cast<LONG_PTR>(window));
}

/// The handle in `text`. Raises type mismatch where `text` is no number, overflow where it is too
/// large.
[[nodiscard]] inline HWND handleOfText(std::string_view text) {
  return reinterpret_cast<HWND>(static_cast<LONG_PTR>(values::toInteger32(text, '.')));
}

}  // namespace windowing
