// A panel: a container with a border and a background of choice.
#pragma once

#include <windows.h>

#include "windowing/container_win.h"
#include "windowing/control_win.h"

namespace controls {

/// Holds other controls and passes what they report on to its parent.
class PANEL : public windowing::Control {
 public:
  enum class Border { none, line, sunken };

  using Control::Control;
  /// Makes the panel in `container` at `place` (pixels), with the colour of buttons. Raises when
  /// Windows refuses.
  static PANEL create(HWND container, int id, const RECT& place, Border border);
  void setSurface(windowing::Surface surface) const;
};

}  // namespace controls
