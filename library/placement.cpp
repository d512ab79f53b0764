#include "library/placement.h"

#include "values/checked.h"
#include "values/number_text.h"

namespace library {
namespace {

using values::Twips;

// Stored numbers are rounded to seven digits. So a window at the screen's edge may come back beyond
// the edge, but by less than this, which is less than a pixel.
constexpr Twips roundingSlack{0.5};

Twips lengthOf(const std::optional<std::string>& stored, Twips otherwise, char decimalSign) {
  return stored ? Twips{values::storedNumber(*stored, decimalSign)} : otherwise;
}

Twips centre(Twips screen, Twips form) {
  return {static_cast<double>(values::roundTo<std::int16_t>(((screen - form) / 2.0).value))};
}

WindowState stateOf(const std::optional<std::string>& stored, WindowState otherwise,
                    char decimalSign) {
  if (!stored) return otherwise;
  const auto number = values::roundTo<std::int16_t>(values::storedNumber(*stored, decimalSign));
  if (number < 0 || number > static_cast<std::int16_t>(WindowState::maximized))
    throw values::RuntimeError(values::ErrorNumber::invalidCall, "Invalid property value");
  return static_cast<WindowState>(number);
}

/// The stored place on one axis. Where it is missing, or the form would not be on the screen as a
/// whole: the place that centres the form (deliberately not the nearest edge), also for a form
/// larger than the screen.
Twips place(const std::optional<std::string>& stored, Twips middle, Twips size, Twips screen,
            char decimalSign) {
  Twips result = lengthOf(stored, middle, decimalSign);
  if (result < Twips{0}) result = middle;
  if (result + size > screen + roundingSlack) result = middle;
  return result;
}

void loadRectangle(FormPlacement& form, const StoredPlacement& stored, const ScreenSize& screen,
                   bool sizable, char decimalSign) {
  if (sizable) {
    form.height = lengthOf(stored.height, form.height, decimalSign);
    form.width = lengthOf(stored.width, form.width, decimalSign);
  }
  const Twips middleX = centre(screen.width, form.width);
  const Twips middleY = centre(screen.height, form.height);
  form.left = place(stored.left, middleX, form.width, screen.width, decimalSign);
  form.top = place(stored.top, middleY, form.height, screen.height, decimalSign);
}

}  // namespace

FormPlacement loadPlacement(const StoredPlacement& stored, const FormPlacement& design,
                            const ScreenSize& screen, bool sizable, char decimalSign) {
  FormPlacement form = design;
  if (sizable) form.state = stateOf(stored.state, design.state, decimalSign);
  if (form.state == WindowState::normal || !sizable) {
    loadRectangle(form, stored, screen, sizable, decimalSign);
    return form;
  }
  // A maximised form need not be moved, so an error in the rectangle to restore to is ignored.
  try {
    FormPlacement restored = form;
    loadRectangle(restored, stored, screen, sizable, decimalSign);
    return restored;
  } catch (const values::RuntimeError&) {
    return form;
  }
}

std::vector<StoredValue> placementToStore(const FormPlacement& current, bool sizable,
                                          char decimalSign) {
  const auto length = [&](Setting setting, Twips twips) {
    return StoredValue{setting, values::singleText(twips.value, decimalSign)};
  };
  if (current.state == WindowState::minimized) return {};
  if (!sizable)
    return {length(Setting::windowLeft, current.left), length(Setting::windowTop, current.top)};
  const StoredValue state{Setting::windowState,
                          values::integerText(static_cast<std::int16_t>(current.state))};
  if (current.state == WindowState::maximized) return {state};
  return {state, length(Setting::windowLeft, current.left), length(Setting::windowTop, current.top),
          length(Setting::windowWidth, current.width),
          length(Setting::windowHeight, current.height)};
}

Twips closeButtonLeft(Twips innerWidth, Twips buttonWidth) {
  return innerWidth - stripButtonGap - buttonWidth;
}

OkCancelLefts okCancelLefts(Twips innerWidth, Twips cancelWidth) {
  const Twips cancel = closeButtonLeft(innerWidth, cancelWidth);
  return {cancel - stripButtonGap - cancelWidth, cancel};
}

values::Pixels screenPixels(Twips side, double twipsPerPixel) {
  return {values::roundTo<std::int32_t>(side.value / twipsPerPixel)};
}

values::Pixels centred(values::Pixels screen, values::Pixels dialog) {
  return {values::roundTo<std::int32_t>((screen - dialog).value / 2.0)};
}

}  // namespace library
