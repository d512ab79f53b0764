#include "controls/PANEL_win.h"

#include "controls/drawing_win.h"
#include "values/system_error_win.h"
#include "windowing/application_win.h"

namespace controls {

PANEL PANEL::create(HWND container, int id, const RECT& place, Border border) {
  const DWORD line = border == Border::line ? WS_BORDER : 0;
  const DWORD edge = border == Border::sunken ? WS_EX_STATICEDGE : 0;
  const HWND panel = CreateWindowExA(WS_EX_CONTROLPARENT | edge, windowing::containerClass(), "",
                                     WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | line, place.left,
                                     place.top, widthOf(place), heightOf(place), container,
                                     reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                                     windowing::programInstance(), nullptr);
  if (panel == nullptr) values::raiseLastError();
  return PANEL(panel);
}

void PANEL::setSurface(windowing::Surface surface) const {
  windowing::setSurface(handle(), surface);
}

}  // namespace controls
