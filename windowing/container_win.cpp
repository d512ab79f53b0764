#include "windowing/container_win.h"

#include <vsstyle.h>

#include "values/handles_win.h"
#include "windowing/application_win.h"
#include "windowing/form_win.h"
#include "windowing/theme_win.h"

namespace windowing {
namespace {

// The colour in the middle of a tab strip's body. A theme may draw the body as a picture, so the
// body is drawn once and the colour read from a pixel.
COLORREF themedTabPageColour(HWND window, COLORREF face) {
  if (!themes().isAppThemed()) return face;
  const HTHEME theme = themes().openThemeData(window, L"TAB");
  if (theme == nullptr) return face;
  const values::WindowDc screen(nullptr);
  const values::MemoryDc memory(CreateCompatibleDC(screen.get()));
  constexpr int side = 64;
  const values::BitmapHandle bitmap(CreateCompatibleBitmap(screen.get(), side, side));
  COLORREF colour = CLR_INVALID;
  {
    const values::Selected selected(memory.get(), bitmap.get());
    const RECT area{0, 0, side, side};
    FillRect(memory.get(), &area, GetSysColorBrush(COLOR_BTNFACE));
    if (themes().drawThemeBackground(theme, memory.get(), TABP_BODY, 0, &area, nullptr) == S_OK)
      colour = GetPixel(memory.get(), side / 2, side / 2);
  }
  themes().closeThemeData(theme);
  return colour == CLR_INVALID ? face : colour;
}

COLORREF tabPageColour(HWND window) {
  const COLORREF face = GetSysColor(COLOR_BTNFACE);
  try {
    return themedTabPageColour(window, face);
  } catch (const std::exception&) {
    // The library of themes could not be loaded, so no theme is drawn.
    return face;
  }
}

// The brush of tab pages. It is made again when the theme or the system's colours change.
values::BrushHandle& tabPageBrush() {
  static values::BrushHandle brush;
  return brush;
}

Surface surfaceOf(HWND window) {
  return static_cast<Surface>(GetWindowLongA(window, 0));
}

HBRUSH brushOf(HWND window) {
  switch (surfaceOf(window)) {
    case Surface::window:
      return GetSysColorBrush(COLOR_WINDOW);
    case Surface::tabPage:
      if (!tabPageBrush()) tabPageBrush().reset(CreateSolidBrush(tabPageColour(window)));
      return tabPageBrush().get();
    case Surface::face:
      break;
  }
  return GetSysColorBrush(COLOR_BTNFACE);
}

// Labels, check boxes and group boxes take the colour of their container. A disabled or read-only
// text box is grey in every container.
LRESULT colourStatic(HWND window, HDC dc, HWND control) {
  const bool box = (GetWindowLongA(control, GWL_EXSTYLE) & WS_EX_CLIENTEDGE) != 0;
  if (box) {
    SetBkColor(dc, GetSysColor(COLOR_BTNFACE));
    SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
    return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_BTNFACE));
  }
  const HBRUSH brush = brushOf(window);
  LOGBRUSH facts{};
  GetObjectA(brush, sizeof facts, &facts);
  SetBkColor(dc, facts.lbColor);
  SetTextColor(
      dc, GetSysColor(surfaceOf(window) == Surface::window ? COLOR_WINDOWTEXT : COLOR_BTNTEXT));
  return reinterpret_cast<LRESULT>(brush);
}

LRESULT CALLBACK containerProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
    case WM_NOTIFY:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_HSCROLL:
    case WM_VSCROLL:
      return SendMessageA(GetAncestor(window, GA_ROOT), message, wParam, lParam);
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORBTN: {
      // The form may have a colour of its own for the control.
      const LRESULT answered = SendMessageA(GetAncestor(window, GA_ROOT), message, wParam, lParam);
      if (answered != 0) return answered;
      if (message == WM_CTLCOLOREDIT) break;
      return colourStatic(window, reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam));
    }
    case WM_ERASEBKGND: {
      RECT area{};
      GetClientRect(window, &area);
      FillRect(reinterpret_cast<HDC>(wParam), &area, brushOf(window));
      return 1;
    }
    case WM_THEMECHANGED:
    case WM_SYSCOLORCHANGE:
      tabPageBrush().reset();
      InvalidateRect(window, nullptr, TRUE);
      break;
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

HWND kind::makeContainer(Form&, const ControlDesign& design, HWND holder, const RECT& place) {
  const ChildDesign child{containerClass(), kind::shown | design.style, WS_EX_CONTROLPARENT};
  return createChild(child, holder, design.id, place);
}

void setSurface(HWND container, Surface surface) {
  SetWindowLongA(container, 0, static_cast<LONG>(surface));
  InvalidateRect(container, nullptr, TRUE);
}

}  // namespace windowing
