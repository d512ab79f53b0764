// Where Windows starts the program.
#include <windows.h>

#include <cstdlib>
#include <exception>

#include "app/modMain_win.h"
#include "windowing/system_library_win.h"

// Replaces the C++ library's handler, which prints the exception's name on a console. This program
// has no console, and the code that decodes names would add 50 KB.
void __gnu_cxx::__verbose_terminate_handler() {
  std::abort();
}

namespace {

// Runs before everything else. The compiler's library asks Windows for a random number for its
// stack guard before `WinMain`, and Windows loads libraries for that.
[[gnu::constructor(101)]] void beginSafely() {
  windowing::loadLibrariesFromSystemOnly();
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  return app::Main();
}
