// The smallest program with a window; its start is the floor for the start of Tellary.
#include <windows.h>

namespace {

LRESULT CALLBACK handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_DESTROY) PostQuitMessage(0);
  return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace

int main() {
  WNDCLASSA type{};
  type.lpfnWndProc = handle;
  type.hInstance = GetModuleHandleA(nullptr);
  type.hCursor = LoadCursorA(nullptr, IDC_ARROW);
  type.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  type.lpszClassName = "EmptyWindow";
  RegisterClassA(&type);
  const HWND window = CreateWindowA("EmptyWindow", "Empty", WS_OVERLAPPEDWINDOW, 100, 100, 600, 480,
                                    nullptr, nullptr, type.hInstance, nullptr);
  ShowWindow(window, SW_SHOW);
  MSG message{};
  while (GetMessageA(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageA(&message);
  }
  return 0;
}
