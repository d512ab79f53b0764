#include "controls/PANEL_win.h"

namespace controls {

PANEL PANEL::create(HWND container, int id, const RECT& place, Border border) {
  const DWORD line = border == Border::line ? WS_BORDER : 0;
  const DWORD edge = border == Border::sunken ? WS_EX_STATICEDGE : 0;
  return PANEL(
      windowing::createChild({windowing::containerClass(), WS_VISIBLE | WS_CLIPCHILDREN | line,
                              WS_EX_CONTROLPARENT | edge},
                             container, id, place));
}

void PANEL::setSurface(windowing::Surface surface) const {
  windowing::setSurface(handle(), surface);
}

}  // namespace controls
