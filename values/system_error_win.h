// Errors of the operating system as run-time errors.
#pragma once

#include <windows.h>

#include "values/runtime_error.h"

namespace values {

/// The run-time error of a system error code (GetLastError), its sentence in the user's
/// language.
[[nodiscard]] RuntimeError systemError(DWORD code);

/// Raises the error of the calling thread's last failed system call.
[[noreturn]] void raiseLastError();

}  // namespace values
