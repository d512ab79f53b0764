// The hook that centres the next dialog of the system on the screen.
#include "library/clsLibrary_win.h"
#include "library/placement.h"
#include "windowing/screen_win.h"

namespace library {
namespace {

// One pending dialog for the whole program, on its user-interface thread.
struct CentringHook {
  HHOOK handle = nullptr;  ///< null after the hook has centred a dialog
  bool installed = false;  ///< not told by `handle`, which disarming does not clear
  WNDPROC oldProcedure = nullptr;
  RECT dialog{};
} hook;

// Dialogs of the system are Unicode windows. The A function would turn them into ANSI windows, and
// names typed in a file dialog would arrive wrong.
WNDPROC replaceProcedure(HWND window, WNDPROC procedure) {
  const auto value = reinterpret_cast<LONG_PTR>(procedure);
  return reinterpret_cast<WNDPROC>(IsWindowUnicode(window)
                                       ? SetWindowLongPtrW(window, GWLP_WNDPROC, value)
                                       : SetWindowLongPtrA(window, GWLP_WNDPROC, value));
}

LRESULT callProcedure(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return IsWindowUnicode(window) ? CallWindowProcW(procedure, window, message, wParam, lParam)
                                 : CallWindowProcA(procedure, window, message, wParam, lParam);
}

int centredOn(values::Twips screenSide, int dialogSide) {
  const double twipsPerPixel = windowing::screenTwips(1);
  return centred(screenPixels(screenSide, twipsPerPixel), values::Pixels{dialogSide}).value;
}

void centre(HWND dialog) {
  GetWindowRect(dialog, &hook.dialog);
  const int x = centredOn(windowing::screenWidth(), hook.dialog.right - hook.dialog.left);
  const int y = centredOn(windowing::screenHeight(), hook.dialog.bottom - hook.dialog.top);
  SetWindowPos(dialog, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
}

LRESULT CALLBACK centringProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  const WNDPROC old = hook.oldProcedure;
  if (message != WM_INITDIALOG) return callProcedure(old, window, message, wParam, lParam);
  replaceProcedure(window, old);
  // The dialog handles the message first, because a move makes it use what it sets up in there. On
  // Wine, a file dialog that is moved first faults when it is cancelled; Wine hides the fault,
  // until the 60th ends the program.
  const LRESULT answer = callProcedure(old, window, message, wParam, lParam);
  centre(window);
  return answer;
}

LRESULT CALLBACK hookProcedure(int code, WPARAM wParam, LPARAM lParam) {
  const HHOOK own = hook.handle;
  if (code < 0) return CallNextHookEx(own, code, wParam, lParam);
  const CWPSTRUCT message = *reinterpret_cast<const CWPSTRUCT*>(lParam);
  if (message.message != WM_INITDIALOG) return CallNextHookEx(own, code, wParam, lParam);

  hook.oldProcedure = replaceProcedure(message.hwnd, centringProcedure);
  const LRESULT result = CallNextHookEx(own, code, wParam, lParam);
  UnhookWindowsHookEx(own);
  hook.handle = nullptr;
  hook.installed = false;
  return result;
}

}  // namespace

void clsLibrary::HOOKFRMLOAD() {
  // A hook that is still armed, because no dialog opened, is used again.
  if (hook.installed) return;
  hook.handle = SetWindowsHookExA(WH_CALLWNDPROC, hookProcedure, nullptr, GetCurrentThreadId());
  hook.installed = hook.handle != nullptr;
}

void clsLibrary::HOOKFRMUNLOAD() {
  if (hook.handle == nullptr || !hook.installed) return;
  UnhookWindowsHookEx(hook.handle);
  // The handle is deliberately not cleared; nobody uses it any more.
  hook.installed = false;
}

}  // namespace library
