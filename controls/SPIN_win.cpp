#include "controls/SPIN_win.h"

#include <commctrl.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "controls/drawing_win.h"
#include "controls/subclass_win.h"
#include "values/system_error_win.h"
#include "values/user_locale_win.h"
#include "windowing/application_win.h"
#include "windowing/seams_win.h"

namespace controls {
namespace {

constexpr int smallStep = 1;
constexpr int largeStep = 10;
constexpr int tenthsInOne = 10;
constexpr int initialTenths = 10;

int tenthsOf(double number) {
  constexpr double most = 1e6;
  // Half is rounded away from zero, as `formatDecimals` does.
  return static_cast<int>(std::lround(std::clamp(number, 0.0, most) * tenthsInOne));
}

// Text of the clipboard without blanks around it; empty when there is none.
std::string clipboardText(HWND owner) {
  if (!OpenClipboard(owner)) return {};
  std::string text;
  const HANDLE data = GetClipboardData(CF_TEXT);
  if (const auto* bytes = data != nullptr ? static_cast<const char*>(GlobalLock(data)) : nullptr) {
    text = bytes;
    GlobalUnlock(data);
  }
  CloseClipboard();
  const auto first = text.find_first_not_of(" \t\r\n");
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

class NumberInBox : public Subclass {
 public:
  void prepare();
  [[nodiscard]] int value() const { return value_; }
  [[nodiscard]] std::string valueText() const { return tenthsText(value_, sign_); }
  void setValue(int tenths);
  void setLimits(const SpinLimits& limits);
  void show();

 protected:
  LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  [[nodiscard]] windowing::TextBox box() const { return windowing::TextBox(window()); }
  [[nodiscard]] bool editable() const;
  [[nodiscard]] bool acceptsInPlace(const std::string& typed) const;
  bool filterCharacter(WPARAM& character) const;
  void paste() const;
  bool handleKey(WPARAM key);
  void turnWheel(WPARAM wParam);
  void step(int steps);
  bool readTyped();
  void placeArrows() const;

  HWND arrows_ = nullptr;  // a child of the box; goes with it
  char sign_ = values::userDecimalSign();
  SpinLimits limits_;
  int value_ = initialTenths;
  int wheel_ = 0;
  bool showing_ = false;
};

void NumberInBox::prepare() {
  arrows_ = windowing::createChild({UPDOWN_CLASSA, WS_VISIBLE}, window(), 0, {});
  SendMessageA(arrows_, UDM_SETRANGE32, 0, 2);
  SendMessageA(arrows_, UDM_SETPOS32, 0, 1);
  placeArrows();
  show();
}

bool NumberInBox::editable() const {
  return IsWindowEnabled(window()) && (GetWindowLongA(window(), GWL_STYLE) & ES_READONLY) == 0;
}

void NumberInBox::placeArrows() const {
  RECT inner{};
  GetClientRect(window(), &inner);
  const int width = std::min(GetSystemMetrics(SM_CXVSCROLL), widthOf(inner) / 2);
  SetWindowPos(arrows_, nullptr, inner.right - width, 0, width, heightOf(inner),
               SWP_NOZORDER | SWP_NOACTIVATE);
  SendMessageA(window(), EM_SETMARGINS, EC_RIGHTMARGIN, MAKELPARAM(0, width));
}

void NumberInBox::show() {
  const std::string text = valueText();
  if (box().text() == text) return;
  const bool selected = GetFocus() == window();
  showing_ = true;
  box().setText(text);
  showing_ = false;
  if (selected) box().selectAll();
}

void NumberInBox::setValue(int tenths) {
  const int wanted = withinLimits(tenths, limits_);
  const bool changes = wanted != value_;
  value_ = wanted;
  show();
  if (changes) notify(window(), SPIN::changed);
}

void NumberInBox::setLimits(const SpinLimits& limits) {
  // Setting the same limits again must not replace a text that is being typed.
  if (limits == limits_) return;
  limits_ = limits;
  value_ = withinLimits(value_, limits_);
  show();
}

void NumberInBox::step(int steps) {
  if (editable()) setValue(stepped(value_, steps, limits_));
}

// Takes the number that the user is typing, if the text is a number. True where the value changed.
bool NumberInBox::readTyped() {
  const auto typed = parseTenths(box().text(), sign_);
  if (!typed) return false;
  const int before = std::exchange(value_, withinLimits(*typed, limits_));
  return value_ != before;
}

bool NumberInBox::acceptsInPlace(const std::string& typed) const {
  std::string text = box().text();
  DWORD start = 0;
  DWORD end = 0;
  box().send(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  text.replace(start, end - start, typed);
  return acceptedWhileTyping(text, sign_);
}

// Whether the box accepts a typed character. Replaces "." by the user's decimal sign.
bool NumberInBox::filterCharacter(WPARAM& character) const {
  constexpr WPARAM firstPrintable = ' ';
  if (character < firstPrintable) return true;
  if (character == '.') character = static_cast<unsigned char>(sign_);
  const bool byte = character <= 0xFF;
  if (byte && acceptsInPlace(std::string(1, static_cast<char>(character)))) return true;
  windowing::seams().beep();
  return false;
}

void NumberInBox::paste() const {
  std::string text = clipboardText(window());
  std::replace(text.begin(), text.end(), '.', sign_);
  if (!text.empty() && acceptsInPlace(text)) {
    box().send(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
  } else {
    windowing::seams().beep();
  }
}

bool NumberInBox::handleKey(WPARAM key) {
  switch (key) {
    case VK_UP:
      step(smallStep);
      return true;
    case VK_DOWN:
      step(-smallStep);
      return true;
    case VK_PRIOR:
      step(largeStep);
      return true;
    case VK_NEXT:
      step(-largeStep);
      return true;
    default:
      return false;
  }
}

void NumberInBox::turnWheel(WPARAM wParam) {
  wheel_ += GET_WHEEL_DELTA_WPARAM(wParam);
  const int notches = wheel_ / WHEEL_DELTA;
  wheel_ -= notches * WHEEL_DELTA;
  if (notches != 0) step(notches * smallStep);
}

LRESULT NumberInBox::handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_PAINT: {
      // A text box paints over its children, even with WS_CLIPCHILDREN.
      const RECT covered = windowing::Control(arrows_).pixels();
      ValidateRect(window(), &covered);
      break;
    }
    case WM_CHAR:
      if (!filterCharacter(wParam)) return 0;
      break;
    case WM_PASTE:
      if (editable()) paste();
      return 0;
    case WM_KEYDOWN:
      if (handleKey(wParam)) return 0;
      break;
    case WM_MOUSEWHEEL:
      turnWheel(wParam);
      return 0;
    case WM_NOTIFY: {
      const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
      if (header.hwndFrom != arrows_ || header.code != static_cast<UINT>(UDN_DELTAPOS)) break;
      if (GetFocus() != window()) SetFocus(window());
      step(reinterpret_cast<const NMUPDOWN*>(lParam)->iDelta > 0 ? smallStep : -smallStep);
      return TRUE;  // the up-down control keeps no position of its own
    }
    default:
      break;
  }
  const LRESULT answer = standard(message, wParam, lParam);
  switch (message) {
    case WM_SIZE:
    case WM_SETFONT:
      placeArrows();
      break;
    case WM_ENABLE:
    case EM_SETREADONLY:
      EnableWindow(arrows_, editable());
      break;
    case WM_KILLFOCUS:
      show();
      break;
    case WM_SETTEXT: {
      if (showing_) break;
      const bool changes = readTyped();
      show();
      if (changes) notify(window(), SPIN::changed);
      break;
    }
    case WM_CHAR:
    case WM_KEYDOWN:
    case WM_CUT:
    case WM_CLEAR:
    case WM_UNDO:
    case EM_UNDO:
    case EM_REPLACESEL:
      if (readTyped()) notify(window(), SPIN::changed);
      break;
    default:
      break;
  }
  return answer;
}

NumberInBox* numberOf(HWND box) {
  return dynamic_cast<NumberInBox*>(Subclass::of(box));
}

}  // namespace

SPIN SPIN::create(HWND container, int id, const RECT& place) {
  constexpr WPARAM longestText = 8;
  const windowing::ControlKind& like = windowing::kind::textBox;
  const HWND box = windowing::createChild(
      {like.windowClass, like.style | WS_CLIPCHILDREN, like.exStyle}, container, id, place);
  SendMessageA(box, EM_SETLIMITTEXT, longestText, 0);
  Subclass::attach(box, std::make_unique<NumberInBox>());
  if (auto* number = numberOf(box)) number->prepare();
  return SPIN(box);
}

double SPIN::value() const {
  const auto* number = numberOf(handle());
  return number != nullptr ? static_cast<double>(number->value()) / tenthsInOne : 0;
}

std::string SPIN::text() const {
  const auto* number = numberOf(handle());
  return number != nullptr ? number->valueText() : std::string();
}

void SPIN::setValue(double wanted) const {
  if (auto* number = numberOf(handle())) number->setValue(tenthsOf(wanted));
}

void SPIN::setLimits(double lowest, double highest) const {
  if (auto* number = numberOf(handle())) number->setLimits({tenthsOf(lowest), tenthsOf(highest)});
}

}  // namespace controls
