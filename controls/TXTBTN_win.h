// A text box with a button that looks like part of the box: a link to be typed and opened.
#pragma once

#include <windows.h>

#include <string>

#include "windowing/form_win.h"
#include "windowing/image_list_win.h"

namespace controls {

/// The control is a standard text box, so that the label before it names it and everything
/// that reads or fills text boxes works; its own notices (EN_CHANGE and the rest) stay as they
/// are. The button stands inside its right edge. It is pressed with the mouse, or from the box
/// with F4, Alt+Down or Ctrl+Enter. While the box is greyed or locked the button is too.
class TXTBTN : public windowing::TextBox {
 public:
  /// Codes of the WM_COMMAND messages that the box sends besides a text box's own, as
  /// MAKEWPARAM(identifier, code) and the box's handle.
  enum Notice : int {
    clicked = 0x0800,  ///< the button was pressed and released
    left = 0x0801,     ///< the focus went to another control of the same window; a box, a dialog
                       ///< or another program coming up is no leaving
  };

  using TextBox::TextBox;

  /// Makes the control in `container` at `place` (pixels). Raises when Windows refuses.
  static TXTBTN create(HWND container, int id, const RECT& place);

  /// Picture of the button, one of `images` (which must outlive the control), and its tooltip.
  void setButton(const windowing::ImageList& images, int image, const std::string& tip) const;

  /// The button's place on the screen, pixels.
  [[nodiscard]] RECT buttonPlace() const;
  /// Whether the button can be pressed.
  [[nodiscard]] bool buttonEnabled() const;
};

inline constexpr windowing::ControlKind linkBoxKind{
    .make = [](windowing::Form&, const windowing::ControlDesign& design, HWND container,
               const RECT& place) { return TXTBTN::create(container, design.id, place).handle(); },
    .height = windowing::Height::box};

}  // namespace controls
