// Storing and restoring where forms are, and placing the standard buttons.
#include <string_view>

#include "library/clsLibrary_win.h"
#include "library/placement.h"
#include "library/stored_settings_win.h"
#include "values/runtime_error.h"
#include "values/user_locale_win.h"
#include "windowing/application_win.h"
#include "windowing/screen_win.h"

namespace library {
namespace {

using values::Twips;
using windowing::screenPixels;
using windowing::screenTwips;

FormPlacement placementOf(const windowing::Form& form) {
  const RECT outer = form.outerPixels();
  return {static_cast<WindowState>(form.windowState()), Twips{screenTwips(outer.left)},
          Twips{screenTwips(outer.top)}, Twips{screenTwips(outer.right - outer.left)},
          Twips{screenTwips(outer.bottom - outer.top)}};
}

StoredPlacement storedPlacement(const std::string& formName) {
  // No stored text can be this one, so it tells that a value is missing.
  const std::string missing(1, '\0');
  const auto read = [&](Setting setting) -> std::optional<std::string> {
    std::string text = readText(setting, missing, formName);
    if (text == missing) return std::nullopt;
    return text;
  };
  return {read(Setting::windowState), read(Setting::windowLeft), read(Setting::windowTop),
          read(Setting::windowWidth), read(Setting::windowHeight)};
}

void placeForm(windowing::Form& form, const FormPlacement& placed) {
  const int left = screenPixels(placed.left.value);
  const int top = screenPixels(placed.top.value);
  form.moveOuter({left, top, left + screenPixels(placed.width.value),
                  top + screenPixels(placed.height.value)});
}

void placeTop(const windowing::Control& button) {
  button.place(button.left(), stripButtonTop.value, button.width(), button.height());
}

void placeLeft(const windowing::Control& button, Twips left) {
  button.place(left.value, button.top(), button.width(), button.height());
}

}  // namespace

void clsLibrary::FORMLOAD(const std::string& FORMNAME, windowing::Form& CURRENTFORM, bool RESIZE) {
  StoredPlacement stored = storedPlacement(FORMNAME);
  const auto load = [&] {
    return loadPlacement(stored, placementOf(CURRENTFORM),
                         {windowing::screenWidth(), windowing::screenHeight()}, RESIZE,
                         values::userDecimalSign());
  };
  FormPlacement placed = load();
  placeForm(CURRENTFORM, placed);
  if (RESIZE) {
    // Windows makes no form larger than the screen. So the place is computed again from the size
    // that the form got; with a stored size that is too large, its caption could lie off the
    // screen.
    stored.width.reset();
    stored.height.reset();
    placed = load();
    placeForm(CURRENTFORM, placed);
  }
  // A stored "minimised" is ignored: the program never stores it, and the user would not find a
  // form that starts minimised.
  if (placed.state == WindowState::maximized) CURRENTFORM.maximiseWhenShown();
}

void clsLibrary::FORMSAVE(const std::string& FORMNAME, windowing::Form& CURRENTFORM, bool RESIZE) {
  for (const StoredValue& value :
       placementToStore(placementOf(CURRENTFORM), RESIZE, values::userDecimalSign()))
    writeText(value.setting, value.text, FORMNAME);
}

void clsLibrary::RESIZEBTNCLOSE(windowing::Form& CURRENTFORM) {
  const windowing::Control close = CURRENTFORM.control("BTNCLOSE");
  placeTop(close);
  placeLeft(close, closeButtonLeft(Twips{CURRENTFORM.innerWidth()}, Twips{close.width()}));
}

void clsLibrary::RESIZEBTNSOKCANCEL(windowing::Form& CURRENTFORM) {
  const windowing::Control ok = CURRENTFORM.control("BTNOK");
  placeTop(ok);
  try {
    const windowing::Control cancel = CURRENTFORM.control("BTNCANCEL");
    placeTop(cancel);
    const OkCancelLefts lefts =
        okCancelLefts(Twips{CURRENTFORM.innerWidth()}, Twips{cancel.width()});
    placeLeft(cancel, lefts.cancel);
    placeLeft(ok, lefts.ok);
  } catch (const values::RuntimeError&) {
    // Deliberate: on a form without a Cancel button, OK stays where its design put it.
  }
}

}  // namespace library
