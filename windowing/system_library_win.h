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

/// A library of the system's folder whose functions are called through pointers, since Windows
/// would look for it beside the program first if it were imported.
class SystemLibrary {
 public:
  /// Loads it; raises where there is none of this name.
  explicit SystemLibrary(const char* name);

  /// A function that becomes a pointer to whatever type of function it is assigned to.
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
