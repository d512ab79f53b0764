#include "windowing/window_win.h"

#include "values/runtime_error.h"
#include "values/system_error_win.h"
#include "windowing/application_win.h"
#include "windowing/modal_win.h"
#include "windowing/seams_win.h"

namespace windowing {
namespace {

std::string numbered(values::ErrorNumber number, const std::string& text) {
  return "Run-time error " + std::to_string(static_cast<int>(number)) + ":\r\n\r\n" + text;
}

std::string reportOf(const std::exception& error) {
  if (const auto* known = dynamic_cast<const values::RuntimeError*>(&error))
    return numbered(known->number(), known->what());
  return values::isOutOfMemory(error) ? numbered(values::ErrorNumber::outOfMemory, "Out of memory")
                                      : error.what();
}

}  // namespace

Window::~Window() {
  if (handle_ == nullptr) return;
  // The derived object is already destroyed, so its overrides must not be called any more.
  SetWindowLongPtrA(handle_, GWLP_USERDATA, 0);
  DestroyWindow(handle_);
}

void Window::create(const Creation& creation) {
  WNDCLASSEXA known{};
  known.cbSize = sizeof known;
  if (!GetClassInfoExA(programInstance(), creation.className, &known)) {
    WNDCLASSEXA made{};
    made.cbSize = sizeof made;
    made.lpfnWndProc = &Window::procedure;
    made.hInstance = programInstance();
    made.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    // All windows show the program's first icon in their caption.
    made.hIcon = LoadIconA(programInstance(), MAKEINTRESOURCEA(1));
    made.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    made.lpszClassName = creation.className;
    if (!RegisterClassExA(&made)) values::raiseLastError();
  }
  const RECT& place = creation.place;
  CreateWindowExA(creation.exStyle, creation.className, creation.caption.c_str(), creation.style,
                  place.left, place.top, place.right - place.left, place.bottom - place.top,
                  creation.parent, creation.menu, programInstance(), this);
  if (handle_ == nullptr) values::raiseLastError();
}

LRESULT Window::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  return DefWindowProcA(handle_, message, wParam, lParam);
}

LRESULT CALLBACK Window::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    const auto* creation = reinterpret_cast<const CREATESTRUCTA*>(lParam);
    auto* self = static_cast<Window*>(creation->lpCreateParams);
    self->handle_ = window;
    SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
  }
  auto* self = reinterpret_cast<Window*>(GetWindowLongPtrA(window, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcA(window, message, wParam, lParam);
  if (message == WM_NCDESTROY) {
    SetWindowLongPtrA(window, GWLP_USERDATA, 0);
    self->handle_ = nullptr;
    return DefWindowProcA(window, message, wParam, lParam);
  }
  try {
    return self->handleMessage(message, wParam, lParam);
  } catch (const std::exception& error) {
    reportError(error);
  }
  return 0;
}

void reportError(const std::exception& error) {
  // A paint handler that fails is called again under the box, and would report its error again.
  static bool reporting = false;
  if (reporting) return;
  reporting = true;
  try {
    seams().messageBox(dialogOwner(), reportOf(error), productName(), MB_ICONSTOP | MB_OK);
  } catch (const std::exception&) {
    // Nobody is left to be told.
    MessageBeep(MB_ICONSTOP);
  }
  reporting = false;
}

}  // namespace windowing
