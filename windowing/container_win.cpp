#include "windowing/container_win.h"

#include "windowing/application_win.h"

namespace windowing {
namespace {

// The background is kept in the window's extra bytes, plus one: zero is "not set".
int colourOf(HWND window) {
  const LONG kept = GetWindowLongA(window, 0);
  return kept == 0 ? COLOR_BTNFACE : static_cast<int>(kept) - 1;
}

LRESULT CALLBACK containerProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
    case WM_NOTIFY:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_HSCROLL:
    case WM_VSCROLL:
      return SendMessageA(GetParent(window), message, wParam, lParam);
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORBTN: {
      const LRESULT answered = SendMessageA(GetParent(window), message, wParam, lParam);
      if (answered != 0 || message != WM_CTLCOLORSTATIC) {
        if (answered != 0) return answered;
        break;
      }
      // Labels lie on the container's own colour.
      const auto dc = reinterpret_cast<HDC>(wParam);
      const bool box =
          (GetWindowLongA(reinterpret_cast<HWND>(lParam), GWL_EXSTYLE) & WS_EX_CLIENTEDGE) != 0;
      const int colour = box ? COLOR_BTNFACE : colourOf(window);
      SetBkColor(dc, GetSysColor(colour));
      SetTextColor(dc, GetSysColor(colour == COLOR_WINDOW ? COLOR_WINDOWTEXT : COLOR_BTNTEXT));
      return reinterpret_cast<LRESULT>(GetSysColorBrush(colour));
    }
    case WM_ERASEBKGND: {
      RECT area{};
      GetClientRect(window, &area);
      FillRect(reinterpret_cast<HDC>(wParam), &area, GetSysColorBrush(colourOf(window)));
      return 1;
    }
    case WM_CLOSE:
      // Boxes of several lines ask their parent to close at Esc; a container never does.
      return 0;
    default:
      break;
  }
  return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace

const char* containerClass() {
  static const char* const name = [] {
    WNDCLASSEXA made{};
    made.cbSize = sizeof made;
    made.lpfnWndProc = containerProcedure;
    made.cbWndExtra = sizeof(LONG);
    made.hInstance = programInstance();
    made.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    made.lpszClassName = "TellaryContainer";
    RegisterClassExA(&made);
    return made.lpszClassName;
  }();
  return name;
}

void setContainerColour(HWND container, int systemColour) {
  SetWindowLongA(container, 0, systemColour + 1);
  InvalidateRect(container, nullptr, TRUE);
}

}  // namespace windowing
