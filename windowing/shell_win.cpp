#include "windowing/shell_win.h"

#include <windows.h>

#include <objbase.h>

namespace windowing {

void prepareShell() {
  thread_local const HRESULT ready =
      CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);
  (void)ready;
}

}  // namespace windowing
