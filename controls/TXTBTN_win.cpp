#include "controls/TXTBTN_win.h"

#include <commctrl.h>
#include <windowsx.h>

#include "controls/drawing_win.h"
#include "controls/subclass_win.h"
#include "values/system_error_win.h"
#include "windowing/application_win.h"
#include "windowing/screen_win.h"
#include "windowing/theme_win.h"

namespace controls {
namespace {

using windowing::scaled;

constexpr UINT_PTR tipId = 1;
constexpr LPARAM repeatedKey = 1 << 30;

// The button of one box. It lies in the box's frame, outside of the area that holds the text,
// so the text never runs under it.
class ButtonOfBox : public Subclass {
 public:
  ~ButtonOfBox() override;

  void setButton(const windowing::ImageList& images, int image, const std::string& tip);
  [[nodiscard]] RECT place() const;
  [[nodiscard]] bool enabled() const;
  void reserve();

 protected:
  LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  [[nodiscard]] int border() const;
  [[nodiscard]] bool contains(LPARAM screenPoint) const;
  [[nodiscard]] bool isPressingKey(UINT message, WPARAM key) const;
  bool handleMouse(UINT message, LPARAM lParam);
  bool handleKey(UINT message, WPARAM wParam, LPARAM lParam);
  void afterStandard(UINT message, WPARAM wParam);
  void setHot(bool hot);
  void setDown(bool down);
  void press();
  void release(bool inside);
  void paint() const;
  void draw(HDC dc, const RECT& button) const;
  void relayToTip() const;
  void moveTip() const;
  void makeTip();
  [[nodiscard]] TTTOOLINFOA tool() const;

  const windowing::ImageList* images_ = nullptr;
  int image_ = -1;
  std::string tipText_;
  HWND tip_ = nullptr;
  bool hot_ = false;       // the pointer is over the button
  bool down_ = false;      // drawn pressed
  bool pressing_ = false;  // the mouse went down on the button and is still down
};

ButtonOfBox::~ButtonOfBox() {
  if (tip_ != nullptr) DestroyWindow(tip_);
}

// Width of the box's edge: one pixel with a theme, else that of a sunken edge.
int ButtonOfBox::border() const {
  return windowing::themes().isAppThemed() != FALSE ? 1 : GetSystemMetrics(SM_CXEDGE);
}

RECT ButtonOfBox::place() const {
  RECT box{};
  GetWindowRect(window(), &box);
  InflateRect(&box, -border(), -border());
  box.left = box.right - heightOf(box);
  return box;
}

bool ButtonOfBox::enabled() const {
  return IsWindowEnabled(window()) && (GetWindowLongA(window(), GWL_STYLE) & ES_READONLY) == 0;
}

bool ButtonOfBox::contains(LPARAM screenPoint) const {
  const RECT button = place();
  return PtInRect(&button, {GET_X_LPARAM(screenPoint), GET_Y_LPARAM(screenPoint)}) != FALSE;
}

// Makes the box compute its frame again, now with room for the button.
void ButtonOfBox::reserve() {
  SetWindowPos(window(), nullptr, 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

void ButtonOfBox::setButton(const windowing::ImageList& images, int image, const std::string& tip) {
  images_ = &images;
  image_ = image;
  tipText_ = tip;
  if (tip_ != nullptr) {
    TTTOOLINFOA changed = tool();
    SendMessageA(tip_, TTM_UPDATETIPTEXTA, 0, reinterpret_cast<LPARAM>(&changed));
  }
  paint();
}

// The tooltip's window is made when the pointer first comes over the button, since most are never
// seen.
void ButtonOfBox::makeTip() {
  if (tip_ != nullptr || tipText_.empty()) return;
  tip_ = CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr,
                         WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, CW_USEDEFAULT, CW_USEDEFAULT,
                         CW_USEDEFAULT, CW_USEDEFAULT, GetAncestor(window(), GA_ROOT), nullptr,
                         windowing::programInstance(), nullptr);
  TTTOOLINFOA added = tool();
  SendMessageA(tip_, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&added));
}

TTTOOLINFOA ButtonOfBox::tool() const {
  TTTOOLINFOA made{};
  made.cbSize = TTTOOLINFOA_V2_SIZE;
  made.hwnd = window();
  made.uId = tipId;
  made.rect = place();
  MapWindowPoints(HWND_DESKTOP, window(), reinterpret_cast<POINT*>(&made.rect), 2);
  made.lpszText = const_cast<char*>(tipText_.c_str());
  return made;
}

void ButtonOfBox::moveTip() const {
  if (tip_ == nullptr) return;
  TTTOOLINFOA moved = tool();
  SendMessageA(tip_, TTM_NEWTOOLRECTA, 0, reinterpret_cast<LPARAM>(&moved));
}

// A tooltip sees only mouse messages of the area that holds the text, so those over the button are
// passed to it.
void ButtonOfBox::relayToTip() const {
  if (tip_ == nullptr) return;
  MSG moved{};
  moved.hwnd = window();
  moved.message = WM_MOUSEMOVE;
  GetCursorPos(&moved.pt);
  POINT point = moved.pt;
  ScreenToClient(window(), &point);
  moved.lParam = MAKELPARAM(point.x, point.y);
  SendMessageA(tip_, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&moved));
}

void ButtonOfBox::setHot(bool hot) {
  if (hot_ == hot) return;
  hot_ = hot;
  if (hot) {
    makeTip();
    TRACKMOUSEEVENT wanted{sizeof wanted, TME_LEAVE | TME_NONCLIENT, window(), 0};
    TrackMouseEvent(&wanted);
  }
  paint();
}

void ButtonOfBox::setDown(bool down) {
  if (down_ == down) return;
  down_ = down;
  paint();
}

void ButtonOfBox::press() {
  if (!enabled()) return;
  // Pressing the button takes the focus from another control first. The form's answer to that may
  // disable the button.
  if (GetFocus() != window()) SetFocus(window());
  if (!enabled()) return;
  if (tip_ != nullptr) SendMessageA(tip_, TTM_POP, 0, 0);
  pressing_ = true;
  SetCapture(window());
  setDown(true);
}

void ButtonOfBox::release(bool inside) {
  const HWND sender = window();
  pressing_ = false;
  setDown(false);
  if (GetCapture() == sender) ReleaseCapture();
  if (inside && enabled()) notify(sender, TXTBTN::clicked);
}

bool ButtonOfBox::handleMouse(UINT message, LPARAM lParam) {
  switch (message) {
    case WM_NCMOUSEMOVE:
      setHot(contains(lParam));
      relayToTip();
      return false;
    case WM_NCMOUSELEAVE:
      setHot(false);
      return false;
    case WM_NCLBUTTONDOWN:
    case WM_NCLBUTTONDBLCLK:
      if (!contains(lParam)) return false;
      press();
      return true;
    case WM_MOUSEMOVE:
    case WM_LBUTTONUP: {
      if (!pressing_) {
        setHot(false);
        return false;
      }
      POINT point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
      ClientToScreen(window(), &point);
      const bool inside = contains(MAKELPARAM(point.x, point.y));
      if (message == WM_MOUSEMOVE) {
        setDown(inside);
      } else {
        release(inside);
      }
      return true;
    }
    case WM_CAPTURECHANGED:
      if (!pressing_) return false;
      pressing_ = false;
      setDown(false);
      return true;
    default:
      return false;
  }
}

bool ButtonOfBox::isPressingKey(UINT message, WPARAM key) const {
  if (message == WM_SYSKEYDOWN) return key == VK_DOWN;
  if (message != WM_KEYDOWN) return false;
  return key == VK_F4 || (key == VK_RETURN && GetKeyState(VK_CONTROL) < 0);
}

bool ButtonOfBox::handleKey(UINT message, WPARAM wParam, LPARAM lParam) {
  constexpr WPARAM charOfCtrlEnter = '\n';
  if (message == WM_CHAR) return wParam == charOfCtrlEnter;
  if (!isPressingKey(message, wParam)) return false;
  // Windows must see this key too: it opens the menu bar when Alt is released without another key.
  if (message == WM_SYSKEYDOWN) standard(message, wParam, lParam);
  // A key held down opens the link only once.
  if ((lParam & repeatedKey) == 0 && enabled()) notify(window(), TXTBTN::clicked);
  return true;
}

// Called after the text box has handled a message.
void ButtonOfBox::afterStandard(UINT message, WPARAM wParam) {
  switch (message) {
    case WM_SIZE:
      moveTip();
      break;
    case WM_ENABLE:
    case EM_SETREADONLY:
      if (!enabled() && pressing_) release(false);
      paint();
      break;
    case WM_NCPAINT:
    case WM_THEMECHANGED:
    case WM_SYSCOLORCHANGE:
      paint();
      break;
    case WM_KILLFOCUS: {
      const auto to = reinterpret_cast<HWND>(wParam);
      const HWND form = GetAncestor(window(), GA_ROOT);
      // The form gets the focus only to pass it on to a control.
      if (to != nullptr && to != window() && to != form && GetAncestor(to, GA_ROOT) == form)
        notify(window(), TXTBTN::left);
      break;
    }
    default:
      break;
  }
}

LRESULT ButtonOfBox::handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_NCCALCSIZE: {
      const LRESULT answer = standard(message, wParam, lParam);
      auto& inner = *reinterpret_cast<RECT*>(lParam);
      // Computed from the size in this message: the window, and so `place`, still has the old size.
      const int side = heightOf(inner) + 2 * (GetSystemMetrics(SM_CYEDGE) - border());
      if (widthOf(inner) > side) inner.right -= side;
      return answer;
    }
    case WM_NCHITTEST:
      if (contains(lParam)) return HTOBJECT;
      break;
    case WM_GETDLGCODE: {
      const LRESULT answer = standard(message, wParam, lParam);
      const auto* key = reinterpret_cast<const MSG*>(lParam);
      const bool ours = key != nullptr && isPressingKey(key->message, key->wParam);
      return ours ? answer | DLGC_WANTMESSAGE : answer;
    }
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_CHAR:
      if (handleKey(message, wParam, lParam)) return 0;
      break;
    default:
      if (handleMouse(message, lParam)) return 0;
      break;
  }
  const LRESULT answer = standard(message, wParam, lParam);
  afterStandard(message, wParam);
  return answer;
}

void ButtonOfBox::paint() const {
  RECT box{};
  GetWindowRect(window(), &box);
  RECT button = place();
  OffsetRect(&button, -box.left, -box.top);
  const HDC dc = GetWindowDC(window());
  if (dc == nullptr) return;
  {
    const Buffered buffer(dc, button);
    draw(buffer.dc(), button);
  }
  ReleaseDC(window(), dc);
}

void ButtonOfBox::draw(HDC dc, const RECT& button) const {
  // The button has the same background as the text, which the form chooses.
  const UINT asked = enabled() ? WM_CTLCOLOREDIT : WM_CTLCOLORSTATIC;
  auto behind = reinterpret_cast<HBRUSH>(SendMessageA(GetParent(window()), asked,
                                                      reinterpret_cast<WPARAM>(dc),
                                                      reinterpret_cast<LPARAM>(window())));
  if (behind == nullptr) behind = GetSysColorBrush(enabled() ? COLOR_WINDOW : COLOR_BTNFACE);
  FillRect(dc, &button, behind);

  if (enabled() && (hot_ || down_)) {
    fill(dc, button, mixedColour(COLOR_WINDOW, COLOR_HIGHLIGHT, down_ ? 35 : 15));
    frame(dc, button, mixedColour(COLOR_WINDOW, COLOR_HIGHLIGHT, down_ ? 100 : 60), scaled(1));
  } else {
    RECT line = button;
    line.right = line.left + scaled(1);
    InflateRect(&line, 0, -scaled(2));
    fill(dc, line, mixedColour(enabled() ? COLOR_WINDOW : COLOR_BTNFACE, COLOR_BTNSHADOW, 50));
  }
  if (images_ == nullptr) return;
  const int shift = down_ ? scaled(1) : 0;
  const int x = button.left + (widthOf(button) - images_->size() + 1) / 2 + shift;
  const int y = button.top + (heightOf(button) - images_->size() + 1) / 2 + shift;
  images_->draw(dc, x, y, image_, enabled());
}

ButtonOfBox* buttonOf(HWND box) {
  return dynamic_cast<ButtonOfBox*>(Subclass::of(box));
}

}  // namespace

TXTBTN TXTBTN::create(HWND container, int id, const RECT& place) {
  const windowing::ControlKind& like = windowing::kind::textBox;
  const HWND box =
      windowing::createChild({like.windowClass, like.style, like.exStyle}, container, id, place);
  TXTBTN made(box);
  made.setLimit(0);
  Subclass::attach(box, std::make_unique<ButtonOfBox>());
  if (auto* button = buttonOf(box)) button->reserve();
  return made;
}

void TXTBTN::setButton(const windowing::ImageList& images, int image,
                       const std::string& tip) const {
  if (auto* button = buttonOf(handle())) button->setButton(images, image, tip);
}

}  // namespace controls
