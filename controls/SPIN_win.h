// A field for a number with one decimal, with an up and a down button.
#pragma once

#include <windows.h>

#include <string>

#include "controls/spin_value.h"
#include "windowing/form_win.h"

namespace controls {

/// The control is a standard text box with the two buttons inside its right edge. Up and Down and
/// the mouse wheel change the number by 0.1, Page Up and Page Down by 1. Typing is checked letter
/// by letter. When the focus leaves, the field's value replaces a text that is no number or lies
/// outside the limits.
class SPIN : public windowing::Control {
 public:
  /// Code of the WM_COMMAND message that tells the form that the user or `setValue` changed the
  /// number; a change by `setLimits` does not send it. The text box also sends its own notices
  /// (EN_CHANGE) for every change of its text.
  enum Notice : int { changed = 0x0803 };

  using Control::Control;

  /// Makes the field in `container` at `place` (pixels), showing 1.0. Raises when Windows
  /// refuses.
  static SPIN create(HWND container, int id, const RECT& place);

  /// The number, and the number as text with the user's decimal sign. It is always within the
  /// limits, also while the user is typing something else.
  [[nodiscard]] double value() const;
  [[nodiscard]] std::string text() const;
  /// Sets the number, rounded to one decimal and put within the limits, and shows it.
  void setValue(double number) const;
  /// Sets the limits, rounded to tenths, and moves the number into them. Setting the same limits
  /// again does not disturb a text that is being typed.
  void setLimits(double lowest, double highest) const;
};

inline constexpr windowing::ControlKind spinKind{
    .make = [](windowing::Form&, const windowing::ControlDesign& design, HWND container,
               const RECT& place) { return SPIN::create(container, design.id, place).handle(); },
    .height = windowing::Height::box};

}  // namespace controls
