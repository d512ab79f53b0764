// How a message of the thread reaches its form.
#include "values/runtime_error.h"
#include "windowing/application_win.h"
#include "windowing/form_win.h"

namespace windowing {
namespace {

bool isPushButton(HWND window) {
  return isClass(window, "Button") && (SendMessageA(window, WM_GETDLGCODE, 0, 0) &
                                       (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
}

// Keys that IsDialogMessage does not handle well in windows that are no dialogs of the system. True
// when the key was used.
bool handleDialogKey(Form& form, const MSG& message) {
  if (message.wParam == VK_TAB && GetKeyState(VK_CONTROL) >= 0) {
    form.focusNext(GetKeyState(VK_SHIFT) < 0);
    return true;
  }
  if (message.wParam == VK_RETURN && isPushButton(message.hwnd)) {
    SendMessageA(message.hwnd, BM_CLICK, 0, 0);
    return true;
  }
  return false;
}

}  // namespace

void dispatchMessage(MSG& message) {
  Form* form = formOf(message.hwnd);
  // Keys that another program posts to a form that a dialog has disabled run no commands.
  if (form != nullptr && !IsWindowEnabled(form->handle())) form = nullptr;
  if (form != nullptr && (message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN)) {
    try {
      if (form->handleKey(message)) return;
      if (message.message == WM_KEYDOWN && handleDialogKey(*form, message)) return;
    } catch (const std::exception& error) {
      reportError(error);
      return;
    }
    // In a box of several lines Enter begins a new line.
    if (message.wParam == VK_RETURN && isMultilineBox(message.hwnd)) form = nullptr;
  }
  if (form != nullptr && form->loaded() && IsDialogMessageW(form->handle(), &message)) return;
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

int runMessageLoop(const Form& main) {
  MSG message{};
  while (main.loaded()) {
    if (GetMessageW(&message, nullptr, 0, 0) <= 0) return static_cast<int>(message.wParam);
    dispatchMessage(message);
  }
  return 0;
}

}  // namespace windowing
