// The places of windows and of the standard buttons of dialogs. Lengths are twips, unless the type
// is Pixels.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "library/settings.h"
#include "values/units.h"

namespace library {

/// States of a form, as they are stored.
enum class WindowState : std::int16_t { normal = 0, minimized = 1, maximized = 2 };

/// State and outer rectangle of a form.
struct FormPlacement {
  WindowState state = WindowState::normal;
  values::Twips left, top, width, height;
};

struct ScreenSize {
  values::Twips width, height;
};

/// The texts of a stored placement; each may be missing.
struct StoredPlacement {
  std::optional<std::string> state, left, top, width, height;
};

/// The placement of a form whose design is `design`: the stored one. Where no place is stored, or
/// the form would not be on the screen as a whole, it is centred; a form larger than the screen
/// gets a negative place. A form that is not sizable keeps its size and state. For a state other
/// than normal, the rectangle is the one to restore to. Raises type mismatch for a stored text that
/// is no number, overflow where the centre does not fit in 16 bits, and an invalid call for an
/// unknown state; the form then stays where its design put it.
[[nodiscard]] FormPlacement loadPlacement(const StoredPlacement& stored,
                                          const FormPlacement& design, const ScreenSize& screen,
                                          bool sizable, char decimalSign);

struct StoredValue {
  Setting setting;
  std::string text;
};

/// The values to store when a form closes, in the order of writing. A minimised form stores
/// nothing, a maximised one its state only; any other its place and, if it is sizable, state and
/// size.
[[nodiscard]] std::vector<StoredValue> placementToStore(const FormPlacement& current, bool sizable,
                                                        char decimalSign);

/// Top of the standard buttons in the strip at the foot of their form.
constexpr values::Twips stripButtonTop{165};
/// Space to the right of each of these buttons.
constexpr values::Twips stripButtonGap{135};

/// Left of the Close button in a form of the given inner width.
[[nodiscard]] values::Twips closeButtonLeft(values::Twips innerWidth, values::Twips buttonWidth);

/// Left edges of the OK and Cancel buttons. Both are computed from Cancel's width, since the two
/// are meant to be equally wide.
struct OkCancelLefts {
  values::Twips ok, cancel;
};
[[nodiscard]] OkCancelLefts okCancelLefts(values::Twips innerWidth, values::Twips cancelWidth);

/// Pixels of a screen side measured in twips.
[[nodiscard]] values::Pixels screenPixels(values::Twips side, double twipsPerPixel);

/// Position of a dialog that is centred on the screen, on one axis; negative where the dialog is
/// larger.
[[nodiscard]] values::Pixels centred(values::Pixels screen, values::Pixels dialog);

}  // namespace library
