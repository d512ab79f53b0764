// The hook that puts the next dialog of the system into the middle of the screen.
#include "library/clsLibrary_win.h"
#include "library/placement.h"
#include "windowing/screen_win.h"

namespace library {
namespace {

// One pending dialog for the whole program, on its user-interface thread.
struct CentringHook {
  HHOOK handle = nullptr;  ///< null once the hook has served a dialog
  bool installed = false;  ///< disarming leaves the handle as it was, so it cannot tell
  WNDPROC oldProcedure = nullptr;
  RECT dialog{};
} hook;

// Dialogs of the system are Unicode windows. To set their procedure by the A function would
// turn them into ANSI ones, and names typed in a file dialog would arrive wrong.
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
  // A dialog that is moved before it has set itself up answers with what is not there yet. Wine's
  // file dialogs then fault when they are cancelled; Wine hides it until the 60th ends the program.
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
  // Armed for a dialog that never came, the hook serves the next one.
  if (hook.installed) return;
  hook.handle = SetWindowsHookExA(WH_CALLWNDPROC, hookProcedure, nullptr, GetCurrentThreadId());
  hook.installed = hook.handle != nullptr;
}

void clsLibrary::HOOKFRMUNLOAD() {
  if (hook.handle == nullptr || !hook.installed) return;
  UnhookWindowsHookEx(hook.handle);
  // The handle itself is not cleared, deliberately; it counts for nothing any more.
  hook.installed = false;
}

}  // namespace library
