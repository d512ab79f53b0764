// Loading Windows' libraries from the system's folder only. A file of the same name that lies
// beside the program, as may happen in a folder of downloads, must not be loaded.
#pragma once

#include <windows.h>

namespace windowing {

/// From this call on Windows looks for libraries in the system's folder. On every Windows this
/// holds for libraries that the program loads; for those that Windows' own libraries load, only
/// on Windows 8 and later and on 7 with its updates.
void loadLibrariesFromSystemOnly();

/// Loads a library of the system's folder; null where it has none of this name.
[[nodiscard]] HMODULE loadSystemLibrary(const char* name);

/// A library of the system's folder whose functions are called through pointers. If it were
/// imported, Windows would look for it in the program's folder first.
class SystemLibrary {
 public:
  /// Loads it; raises where there is none of this name.
  explicit SystemLibrary(const char* name);

  /// A function of the library; converts to any type of function pointer that it is assigned to.
  class Function {
   public:
    explicit Function(FARPROC found) : found_(found) {}
    template <typename Type>
    operator Type*() const {  // NOLINT(google-explicit-constructor): that is what it is for
      return reinterpret_cast<Type*>(reinterpret_cast<void*>(found_));
    }

   private:
    FARPROC found_;
  };
  /// Finds a function; raises where the library has none of this name.
  [[nodiscard]] Function function(const char* name) const;

 private:
  HMODULE module_;
};

}  // namespace windowing
