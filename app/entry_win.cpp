// Where Windows starts the program.
#include <windows.h>

#include "app/modMain_win.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  return app::Main();
}
