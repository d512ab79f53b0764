#include "controls/TXTSEP_win.h"

#include "controls/drawing_win.h"
#include "windowing/application_win.h"
#include "windowing/screen_win.h"

namespace controls {
namespace {

using windowing::scaled;

void draw(HWND window, HDC dc, const RECT& area) {
  // The background is the one that the container paints behind labels.
  auto behind = reinterpret_cast<HBRUSH>(SendMessageA(GetParent(window), WM_CTLCOLORSTATIC,
                                                      reinterpret_cast<WPARAM>(dc),
                                                      reinterpret_cast<LPARAM>(window)));
  if (behind == nullptr) behind = GetSysColorBrush(COLOR_BTNFACE);
  FillRect(dc, &area, behind);

  const int thickness = scaled(1);
  RECT dark = area;
  RECT light = area;
  if (widthOf(area) > heightOf(area)) {
    dark.top += (heightOf(area) - 2 * thickness) / 2;
    dark.bottom = light.top = dark.top + thickness;
    light.bottom = light.top + thickness;
  } else {
    dark.left += (widthOf(area) - 2 * thickness) / 2;
    dark.right = light.left = dark.left + thickness;
    light.right = light.left + thickness;
  }
  fill(dc, dark, GetSysColor(COLOR_BTNSHADOW));
  fill(dc, light, GetSysColor(COLOR_BTNHIGHLIGHT));
}

LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_PAINT: {
      const values::PaintDc paint(window);
      RECT area{};
      GetClientRect(window, &area);
      draw(window, paint.get(), area);
      return 0;
    }
    case WM_ERASEBKGND:
      return 1;
    case WM_NCHITTEST:
      return HTTRANSPARENT;
    case WM_SIZE:
      InvalidateRect(window, nullptr, FALSE);
      return 0;
    default:
      return DefWindowProcA(window, message, wParam, lParam);
  }
}

const char* lineClass() {
  static const char* const name = [] {
    WNDCLASSEXA made{};
    made.cbSize = sizeof made;
    made.lpfnWndProc = procedure;
    made.hInstance = windowing::programInstance();
    made.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    made.lpszClassName = "TXTSEP";
    RegisterClassExA(&made);
    return made.lpszClassName;
  }();
  return name;
}

}  // namespace

TXTSEP TXTSEP::create(HWND container, int id, const RECT& place) {
  return TXTSEP(windowing::createChild({lineClass(), WS_VISIBLE}, container, id, place));
}

}  // namespace controls
