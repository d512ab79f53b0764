// Where Windows starts the program.
#include <windows.h>

#include <cstdlib>
#include <exception>

#include "app/modMain_win.h"
#include "windowing/system_library_win.h"

// The library's own would name the exception on a console, which this program has none of, and
// bring 50 KB of name decoding along.
void __gnu_cxx::__verbose_terminate_handler() {
  std::abort();
}

namespace {

// Before all else: the compiler's library asks Windows for a random number before `WinMain`, to
// guard the stack with, and Windows loads libraries for it.
[[gnu::constructor(101)]] void beginSafely() {
  windowing::loadLibrariesFromSystemOnly();
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  return app::Main();
}
