// Where windows and the standard buttons of dialogs go. Lengths are twips unless named pixels.
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

/// Texts of a stored placement; each may be missing.
struct StoredPlacement {
  std::optional<std::string> state, left, top, width, height;
};

/// Placement of a form whose design is `design`: as stored, at the centre of the screen where
/// nothing is stored or the stored place leaves it. A form larger than the screen gets a
/// negative place. A form that is not sizable keeps its size and state. For a state other than
/// normal the rectangle is the one to restore to. Raises type mismatch for a stored text that
/// is no number, overflow where the centre leaves 16 bits, and an invalid call for an unknown
/// state; the form then stays where its design put it.
[[nodiscard]] FormPlacement loadPlacement(const StoredPlacement& stored,
                                          const FormPlacement& design, const ScreenSize& screen,
                                          bool sizable, char decimalSign);

struct StoredValue {
  Setting setting;
  std::string text;
};

/// What to store of a form that closes, in the order of writing: nothing while minimised, the
/// state alone while maximised, place and (of a sizable form) state and size otherwise.
[[nodiscard]] std::vector<StoredValue> placementToStore(const FormPlacement& current, bool sizable,
                                                        char decimalSign);

/// Top of the standard buttons in the strip at the foot of their form.
constexpr values::Twips stripButtonTop{165};
/// Space to the right of each of them.
constexpr values::Twips stripButtonGap{135};

/// Left of the Close button in a form of the given inner width.
[[nodiscard]] values::Twips closeButtonLeft(values::Twips innerWidth, values::Twips buttonWidth);

/// Lefts of the OK and Cancel buttons. Both follow from Cancel's width: the two are meant to
/// be equally wide.
struct OkCancelLefts {
  values::Twips ok, cancel;
};
[[nodiscard]] OkCancelLefts okCancelLefts(values::Twips innerWidth, values::Twips cancelWidth);

/// Pixels of a screen side measured in twips.
[[nodiscard]] values::Pixels screenPixels(values::Twips side, double twipsPerPixel);

/// Position that centres a dialog's side on the screen's; negative where it is longer.
[[nodiscard]] values::Pixels centred(values::Pixels screen, values::Pixels dialog);

}  // namespace library
