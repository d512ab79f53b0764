#pragma once

#include <string>

#include "library/clsLibrary_win.h"
#include "values/runtime_error.h"

namespace library {

/// Puts a form where the user left it. Where the stored place is invalid, the form stays where its
/// design put it.
inline void restorePlace(const std::string& name, windowing::Form& form, bool sizable) {
  values::ignoringErrors([&] { LIBRARY().FORMLOAD(name, form, sizable); });
}

}  // namespace library
