// A field for a number with one decimal, with an up and a down button.
#pragma once

#include <windows.h>

#include <string>

#include "controls/spin_value.h"
#include "windowing/form_win.h"

namespace controls {

/// The control is a standard text box with the two buttons inside its right edge. Up and Down
/// and the mouse wheel change the number by 0.1, Page Up and Page Down by 1. What is typed is
/// checked as it goes; a text that is no number yet, or lies outside the limits, gives way to
/// the field's value when the focus leaves.
class SPIN : public windowing::Control {
 public:
  /// Code of the WM_COMMAND message, sent as MAKEWPARAM(identifier, code) with the box's handle,
  /// when the user or `setValue` changed the number. Changed limits do not send it. The box's
  /// own notices (EN_CHANGE) come as well, whatever changed the text.
  enum Notice : int { changed = 0x0803 };

  using Control::Control;

  /// Makes the field in `container` at `place` (pixels), showing 1.0. Raises when Windows
  /// refuses.
  static SPIN create(HWND container, int id, const RECT& place);

  /// The number, always within the limits, and the same as text with the user's decimal sign:
  /// also while something else is being typed.
  [[nodiscard]] double value() const;
  [[nodiscard]] std::string text() const;
  /// Sets the number, rounded to one decimal and put within the limits, and shows it.
  void setValue(double number) const;
  /// Limits, rounded to tenths; the number moves within them. The same limits as before leave a
  /// text alone that is being typed.
  void setLimits(double lowest, double highest) const;
  /// Shows the value in place of a text that is being typed.
  void commit() const;
};

inline constexpr windowing::ControlKind spinKind{
    .make = [](windowing::Form&, const windowing::ControlDesign& design, HWND container,
               const RECT& place) { return SPIN::create(container, design.id, place).handle(); },
    .height = windowing::Height::box};

}  // namespace controls
