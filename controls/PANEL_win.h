// A panel: a container whose border and background can be chosen.
#pragma once

#include <windows.h>

#include "windowing/container_win.h"
#include "windowing/form_win.h"

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

/// The kind of a form's strip of buttons.
inline constexpr windowing::ControlKind panelKind{.make = [](windowing::Form&,
                                                             const windowing::ControlDesign& design,
                                                             HWND container, const RECT& place) {
  return PANEL::create(container, design.id, place, PANEL::Border::none).handle();
}};

}  // namespace controls
