// A text box with a button that looks like part of the box: a link to be typed and opened.
#pragma once

#include <windows.h>

#include <string>

#include "windowing/form_win.h"
#include "windowing/image_list_win.h"

namespace controls {

/// The control is a standard text box, so that the label before it names it for screen readers, and
/// other programs can read and fill it. It sends the notices of a text box (EN_CHANGE and so on).
/// The button is inside its right edge. It is pressed with the mouse or, from the box, with F4,
/// Alt+Down or Ctrl+Enter. It is disabled while the box is disabled or read-only.
class TXTBTN : public windowing::TextBox {
 public:
  /// Codes of the WM_COMMAND messages that the box sends besides a text box's own, as
  /// MAKEWPARAM(identifier, code) and the box's handle.
  enum Notice : int {
    clicked = 0x0800,  ///< the button was pressed and released
    left = 0x0801,     ///< the focus went to another control of the same window; not sent when it
                       ///< went to a message box, a dialog or another program
  };

  using TextBox::TextBox;

  /// Makes the control in `container` at `place` (pixels). Raises when Windows refuses.
  static TXTBTN create(HWND container, int id, const RECT& place);

  /// Picture of the button, one of `images` (which must outlive the control), and its tooltip.
  void setButton(const windowing::ImageList& images, int image, const std::string& tip) const;
};

inline constexpr windowing::ControlKind linkBoxKind{
    .make = [](windowing::Form&, const windowing::ControlDesign& design, HWND container,
               const RECT& place) { return TXTBTN::create(container, design.id, place).handle(); },
    .height = windowing::Height::box};

}  // namespace controls
