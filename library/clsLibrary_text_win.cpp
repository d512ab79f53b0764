// The text and number helpers under the names that the maker's products share. Plain functions do
// the work.
#include "library/clsLibrary_win.h"
#include "library/modLibrary_win.h"
#include "library/text_utilities.h"
#include "values/number_text.h"
#include "values/user_locale_win.h"
#include "windowing/handle_text_win.h"

namespace library {
namespace {

// Finds the child of the combo box's parent that has the same place, which is the combo box.
HWND childAtSamePlace(HWND combo) {
  RECT wanted{};
  GetWindowRect(combo, &wanted);
  for (HWND child = GetWindow(GetParent(combo), GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    RECT place{};
    GetWindowRect(child, &place);
    if (place.left == wanted.left && place.top == wanted.top) return child;
  }
  return nullptr;
}

}  // namespace

bool clsLibrary::CHARCHECK(const std::string& TEXT, char CHAR) {
  return charCheck(TEXT, CHAR);
}

std::string clsLibrary::CURRENCYFMT(const std::string& TEXT) {
  return currencyFormat(TEXT, values::userDecimalSign());
}
std::string clsLibrary::TEXTJUSTIFY(const std::string& TEXT) {
  return textJustify(TEXT, values::userDecimalSign());
}
std::string clsLibrary::TEXTJUSTIFYCURRENCY(const std::string& TEXT) {
  return textJustifyCurrency(TEXT, values::userDecimalSign());
}

std::string clsLibrary::TOKENLEFT(const std::string& SOURCE, const std::string& TOKEN) {
  return tokenLeft(SOURCE, TOKEN);
}
double clsLibrary::PIECE(const std::string& TEXT, char SEPARATOR, std::int16_t PIECENO) {
  return piece(TEXT, SEPARATOR, PIECENO);
}
std::int32_t clsLibrary::WORDCOUNT(const std::string& TEXT) {
  return wordCount(TEXT);
}

std::string clsLibrary::GETHEXVAL(std::int32_t COLOR) {
  return hexValue(COLOR);
}
std::string clsLibrary::HEX2STR(const std::string& INHEX) {
  return hexToDecimal(INHEX);
}
std::string clsLibrary::GETCAPTION(const std::string& CAPTION) {
  return shortCaption(CAPTION);
}
std::string clsLibrary::GETCOLORDEPTH(const std::string& DEPTH) {
  return colorDepthText(DEPTH);
}

int clsLibrary::TXTCURRENCYLOCK(windowing::TextBox TXTBOX, int KEYASCIIVAL) {
  return currencyKey(TXTBOX.text(), KEYASCIIVAL);
}

void clsLibrary::COMBOINIT(const std::string& HWNDTEXT, const std::string& ITEMCOUNT,
                           windowing::ComboBox CBONAME, bool FLAT) {
  ProgramVariables& variables = modLibrary();
  ++variables.preparedCombos;
  if (FLAT) {
    variables.flatCombos.resize(static_cast<std::size_t>(variables.preparedCombos));
    variables.flatCombos.back() = std::make_unique<FlatCombo>(CBONAME.handle());
  }

  const windowing::ComboBox combo(windowing::handleOfText(HWNDTEXT));
  const int width = static_cast<int>(combo.send(CB_GETDROPPEDWIDTH));
  const int height = comboListHeight(ITEMCOUNT, static_cast<int>(combo.send(CB_GETITEMHEIGHT)));
  const HWND found = childAtSamePlace(combo.handle());
  if (found == nullptr) return;
  SetWindowPos(found, nullptr, 0, 0, width, height,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOREDRAW | SWP_NOACTIVATE);
  combo.send(WM_NULL, static_cast<WPARAM>(-1));
  // Controls of version 6 size their lists by this number of rows; their default is 30.
  constexpr UINT setMinimumVisible = 0x1701;  // CB_SETMINVISIBLE
  combo.send(setMinimumVisible, static_cast<WPARAM>(values::toInteger32(ITEMCOUNT, '.')));
}

}  // namespace library
