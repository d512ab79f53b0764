// The first panel of a form's status bar, and whether the pointer is in a rectangle of a form.
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
  (void)FLAG;  // other products of the maker pass it; it has no effect
  const windowing::StatusBar bar(SBFORM.control("SBMAIN").handle());
  // Some texts end with a full stop already (record positions, "...").
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
  // The bars of a frame with several documents lie in its client area, as in any form.
  return pointerIn(FORM, {CONTROLLEFT, CONTROLTOP, CONTROLRIGHT, CONTROLBOTTOM});
}

}  // namespace library
