// A panel: a container without a border.
#pragma once

#include <windows.h>

#include "windowing/container_win.h"
#include "windowing/form_win.h"

namespace controls {

/// Holds other controls and passes what they report on to its parent.
class PANEL : public windowing::Control {
 public:
  using Control::Control;
  /// Makes the panel in `container` at `place` (pixels), with the colour of buttons. Raises when
  /// Windows refuses.
  static PANEL create(HWND container, int id, const RECT& place);
};

/// The kind of a form's strip of buttons.
inline constexpr windowing::ControlKind panelKind{
    .make = [](windowing::Form&, const windowing::ControlDesign& design, HWND container,
               const RECT& place) { return PANEL::create(container, design.id, place).handle(); }};

}  // namespace controls
