// A separator line between groups of controls.
#pragma once

#include <windows.h>

#include "windowing/form_win.h"

namespace controls {

/// An etched line through the middle of the control's place: horizontal where the place is wider
/// than high, else vertical. It takes neither the focus nor the mouse.
class TXTSEP : public windowing::Control {
 public:
  using Control::Control;
  /// Makes the line in `container` at `place` (pixels). Raises when Windows refuses.
  static TXTSEP create(HWND container, int id, const RECT& place);
};

inline constexpr windowing::ControlKind separatorKind{
    .make = [](windowing::Form&, const windowing::ControlDesign& design, HWND container,
               const RECT& place) { return TXTSEP::create(container, design.id, place).handle(); }};

}  // namespace controls
