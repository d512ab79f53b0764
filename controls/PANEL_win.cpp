#include "controls/PANEL_win.h"

namespace controls {

PANEL PANEL::create(HWND container, int id, const RECT& place) {
  return PANEL(windowing::createChild(
      {windowing::containerClass(), WS_VISIBLE | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT}, container,
      id, place));
}

}  // namespace controls
