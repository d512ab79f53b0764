// The first panel of a form's status bar, and where the pointer is.
#include "library/clsLibrary_win.h"
#include "library/command_descriptions.h"

namespace library {
namespace {

bool pointerIn(const windowing::Form& form, const RECT& area) {
  POINT pointer{};
  return GetCursorPos(&pointer) && ScreenToClient(form.handle(), &pointer) &&
         PtInRect(&area, pointer);
}

}  // namespace

void clsLibrary::STATUSBARCAPTION(windowing::Form& SBFORM, const std::string& STATUSTEXT,
                                  bool FLAG) {
  (void)FLAG;  // accepted for the callers of the family, without an effect
  const windowing::StatusBar bar(SBFORM.control("SBMAIN").handle());
  // Position texts and "..." bring their own full stop.
  const bool complete = STATUSTEXT.empty() || STATUSTEXT.back() == '.';
  bar.setPanel(complete ? STATUSTEXT : STATUSTEXT + ".");
}

void clsLibrary::describeSystemCommand(windowing::Form& SBFORM, std::uint32_t CODE) {
  STATUSBARCAPTION(SBFORM, systemCommandDescription(CODE), false);
}

bool clsLibrary::MOUSEMOVE(windowing::Form& FORM, int CONTROLLEFT, int CONTROLRIGHT, int CONTROLTOP,
                           int CONTROLBOTTOM) {
  return pointerIn(FORM, {CONTROLLEFT, CONTROLTOP, CONTROLRIGHT, CONTROLBOTTOM});
}

bool clsLibrary::MOUSEMOVEMDI(windowing::Form& FORM, int CONTROLLEFT, int CONTROLRIGHT,
                              int CONTROLTOP, int CONTROLBOTTOM) {
  // A frame of several documents has its bars in its client area like any form.
  return pointerIn(FORM, {CONTROLLEFT, CONTROLTOP, CONTROLRIGHT, CONTROLBOTTOM});
}

}  // namespace library
