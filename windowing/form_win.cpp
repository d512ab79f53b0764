#include "windowing/form_win.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

#include "values/system_error_win.h"
#include "windowing/application_win.h"
#include "windowing/container_win.h"
#include "windowing/fonts_win.h"
#include "windowing/modal_win.h"
#include "windowing/screen_win.h"

namespace windowing {

namespace {

constexpr char formClass[] = "TellaryForm";
constexpr char formProperty[] = "TellaryForm";

// Height in a design of a drop-down list while it is closed, twips.
constexpr int closedListHeight = 315;

// A text box leaves one pixel between its edge and its text; below the text it gets one too.
int boxHeight() {
  return formLineHeight() + 2 * (GetSystemMetrics(SM_CYEDGE) + 1);
}

// Gives a control the height that the form's font needs.
void fitHeight(const Control& control, const ControlDesign& design) {
  RECT place = control.pixels();
  int height = place.bottom - place.top;
  switch (design.kind.height) {
    case Height::design:
      return;
    case Height::text:
      height = formLineHeight();
      break;
    case Height::box:
      height = boxHeight();
      break;
    case Height::list:  // Windows gave the list its height
      break;
  }
  const int top = screenPixels(design.top);
  // The height in a list's design may be that of the open list.
  const bool list = design.kind.height == Height::list;
  const int room = screenPixels(design.top + (list ? closedListHeight : design.height)) - top;
  place.top = top + (room - height) / 2;
  place.bottom = place.top + (list ? screenPixels(design.height) : height);
  control.placePixels(place);
}

// Windows sends the message to top-level windows only, so they pass it on.
BOOL CALLBACK passColourChange(HWND control, LPARAM) {
  SendMessageA(control, WM_SYSCOLORCHANGE, 0, 0);
  return TRUE;
}

}  // namespace

Form::~Form() {
  lastFocus_ = nullptr;
}

void Form::load() {
  if (loaded()) return;
  static const bool controlsReady = [] {
    INITCOMMONCONTROLSEX wanted{sizeof wanted, ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
    return InitCommonControlsEx(&wanted) != FALSE;
  }();
  (void)controlsReady;

  Creation creation;
  appearMaximised_ = false;
  creation.className = formClass;
  creation.caption = design_.caption;
  creation.style = design_.style | WS_CLIPCHILDREN;
  creation.exStyle = design_.exStyle | WS_EX_CONTROLPARENT;
  creation.menu = createMenu();
  creation.place = {0, 0, screenPixels(design_.innerWidth), screenPixels(design_.innerHeight)};
  AdjustWindowRectEx(&creation.place, creation.style, creation.menu != nullptr, creation.exStyle);
  OffsetRect(&creation.place, -creation.place.left, -creation.place.top);
  create(creation);
  SetPropA(handle(), formProperty, this);
  try {
    createControls(0);
    onLoad();
  } catch (...) {
    // A form that was made only in part is destroyed. The next `load` tries again, and raises the
    // error again if it is still there.
    DestroyWindow(handle());
    throw;
  }
}

// The page that a control lies on; 0 where it is on none.
int Form::pageOf(const ControlDesign& design) const {
  const auto holds = [&](const ControlDesign& row) {
    return row.kind.isPage && row.id == design.container;
  };
  return std::ranges::any_of(design_.controls, holds) ? design.container : 0;
}

void Form::createControls(int page) {
  for (const ControlDesign& design : design_.controls) {
    if (pageOf(design) != page || controls_.contains(design.id)) continue;
    const HWND container = design.container == 0 ? handle() : control(design.container).handle();
    const HWND made = createControl(design, container);
    controls_[design.id] = made;
    SendMessageA(made, WM_SETFONT, reinterpret_cast<WPARAM>(formFont()), FALSE);
    fitHeight(Control(made), design);
    // A kind with its own function to make a control also limits the text itself.
    if (design.kind.make == nullptr && isClass(made, "Edit")) TextBox(made).setLimit(0);
  }
}

HWND Form::createControl(const ControlDesign& design, HWND container) {
  const RECT place{screenPixels(design.left), screenPixels(design.top),
                   screenPixels(design.left + design.width),
                   screenPixels(design.top + design.height)};
  const ControlKind& kind = design.kind;
  if (kind.make != nullptr) return kind.make(*this, design, container, place);
  const ChildDesign child{kind.windowClass, kind.style | design.style, kind.exStyle,
                          design.caption};
  return createChild(child, container, design.id, place);
}

void Form::show() {
  load();
  appear();
  UpdateWindow(handle());
}

void Form::appear() {
  const bool maximised = std::exchange(appearMaximised_, false);
  ShowWindow(handle(), maximised ? SW_SHOWMAXIMIZED : SW_SHOW);
}

void Form::maximiseWhenShown() {
  appearMaximised_ = true;
}

void Form::showModal() {
  load();
  modalOwner_ = dialogOwner();
  if (modalOwner_ == handle()) modalOwner_ = nullptr;
  SetWindowLongPtrA(handle(), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(modalOwner_));
  disabled_ = std::make_unique<DisabledOthers>(handle());
  modal_ = true;
  appear();
  runModalLoop();
}

void Form::runModalLoop() {
  MSG message{};
  while (loaded() && modal_) {
    const BOOL got = GetMessageW(&message, nullptr, 0, 0);
    if (got == 0) {
      // The program is ending: the loop around this one has to get the message too.
      PostQuitMessage(static_cast<int>(message.wParam));
      break;
    }
    if (got < 0) break;
    dispatchMessage(message);
  }
  modal_ = false;
  disabled_.reset();
}

bool Form::unload() {
  if (!loaded()) return true;
  if (!onQueryUnload()) return false;
  onUnload();
  // Enabled before this window goes: with no enabled window left, another program would come to
  // the front.
  disabled_.reset();
  const bool wasModal = modal_;
  modal_ = false;
  DestroyWindow(handle());
  if (wasModal && modalOwner_ != nullptr) SetActiveWindow(modalOwner_);
  return true;
}

Control Form::control(int id) const {
  const auto found = controls_.find(id);
  return found == controls_.end() ? Control() : Control(found->second);
}

Control Form::control(std::string_view name) const {
  for (const ControlDesign& design : design_.controls)
    if (design.name == name) return control(design.id);
  throw values::RuntimeError(values::ErrorNumber::objectMissing,
                             std::string(design_.name) + " has no control " + std::string(name));
}

RECT Form::outerPixels() const {
  RECT place{};
  GetWindowRect(handle(), &place);
  return place;
}

void Form::moveOuter(const RECT& place) {
  SetWindowPos(handle(), nullptr, place.left, place.top, place.right - place.left,
               place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

int Form::windowState() const {
  if (IsIconic(handle())) return 1;
  return IsZoomed(handle()) || appearMaximised_ ? 2 : 0;
}

double Form::innerWidth() const {
  RECT area{};
  GetClientRect(handle(), &area);
  return screenTwips(area.right);
}

// Goes by the design's order, not by that of the windows: a page lies above its tab strip, but
// comes after it in the tab order.
void Form::focusNext(bool backwards) {
  std::vector<HWND> stops;
  std::size_t at = 0;
  const HWND focus = GetFocus();
  for (const ControlDesign& design : design_.controls) {
    const HWND window = control(design.id).handle();
    if (window == nullptr) continue;
    // For a control in a container both rows match. The control's row comes later and counts.
    if (window == focus || IsChild(window, focus)) at = stops.size();
    const bool takes = (GetWindowLongA(window, GWL_STYLE) & WS_TABSTOP) != 0 &&
                       IsWindowVisible(window) && IsWindowEnabled(window);
    if (takes || window == focus) stops.push_back(window);
  }
  if (stops.empty()) return;
  const std::size_t next = focus == nullptr ? 0
                           : backwards      ? (at + stops.size() - 1) % stops.size()
                                            : (at + 1) % stops.size();
  // From the first use of the keyboard on, focus marks and access keys are shown.
  SendMessageA(handle(), WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
  focusOn(stops[next]);
}

void Form::focusOn(HWND window) {
  SetFocus(window);
  // As in every dialog, typing replaces the text of a box that was reached by the keyboard.
  if (isClass(window, "Edit") && !isMultilineBox(window)) SendMessageA(window, EM_SETSEL, 0, -1);
}

LRESULT Form::dispatchCommand(WPARAM wParam, LPARAM lParam) {
  const int id = LOWORD(wParam);
  const int notice = HIWORD(wParam);
  const auto sender = reinterpret_cast<HWND>(lParam);
  const bool tool = isClass(sender, TOOLBARCLASSNAMEA);
  // Pictures and labels report clicks with the same number as buttons.
  static_assert(STN_CLICKED == BN_CLICKED);
  const bool button = isClass(sender, "Button") || isClass(sender, "Static");
  const bool list = isClass(sender, "ComboBox");
  if (sender != nullptr && !tool && !button && !list) {
    if (notice == EN_CHANGE) {
      onChange(id);
    } else {
      onNotice(id, notice);
    }
    return 0;
  }
  // Everything below is the user's doing. A form that a box or dialog has disabled takes none of
  // it: another program sent it, or it was on its way when the box came up.
  if (!IsWindowEnabled(handle())) return 0;
  if (tool) {
    onToolButton(id);
  } else if (button) {
    if (notice == BN_CLICKED) onClick(id);
  } else if (list) {
    if (notice == CBN_SELCHANGE) onSelect(id);
  } else if (id == IDOK) {
    onEnter();
  } else if (id == IDCANCEL) {
    onEscape();
  } else {
    onCommand(id);
  }
  return 0;
}

void Form::keepFocus(WPARAM wParam) {
  if (LOWORD(wParam) != WA_INACTIVE) return;
  const HWND focus = GetFocus();
  if (focus != nullptr && IsChild(handle(), focus)) lastFocus_ = focus;
}

void Form::restoreFocus() {
  const bool usable = lastFocus_ != nullptr && IsChild(handle(), lastFocus_) &&
                      IsWindowVisible(lastFocus_) && IsWindowEnabled(lastFocus_);
  if (usable) {
    SetFocus(lastFocus_);
  } else {
    focusNext(false);
  }
}

LRESULT Form::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      return dispatchCommand(wParam, lParam);
    case WM_NOTIFY: {
      auto& header = *reinterpret_cast<NMHDR*>(lParam);
      if (header.code == TCN_SELCHANGE) onTab(static_cast<int>(header.idFrom));
      return onNotify(header);
    }
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORBTN: {
      const auto sender = reinterpret_cast<HWND>(lParam);
      const HBRUSH brush = onColour(reinterpret_cast<HDC>(wParam), GetDlgCtrlID(sender));
      if (brush != nullptr) return reinterpret_cast<LRESULT>(brush);
      // For a control in a container, the container gives the colour.
      if (GetParent(sender) != handle()) return 0;
      break;
    }
    case WM_SIZE:
      if (wParam != SIZE_MINIMIZED) onSize();
      return 0;
    case WM_TIMER:
      onTimer(wParam);
      return 0;
    case WM_ACTIVATE:
      keepFocus(wParam);
      break;
    case WM_SETFOCUS:
      restoreFocus();
      return 0;
    case WM_CLOSE:
      // A form that a box or dialog has disabled stays open: the code that opened the dialog goes
      // on using the form when the dialog is closed.
      if (IsWindowEnabled(handle())) unload();
      return 0;
    case WM_SYSCOLORCHANGE:
      EnumChildWindows(handle(), passColourChange, 0);
      break;
    case WM_NEXTDLGCTL:
      if (LOWORD(lParam) != 0) {
        focusOn(reinterpret_cast<HWND>(wParam));
      } else {
        focusNext(wParam != 0);
      }
      return 0;
    case WM_DESTROY:
      RemovePropA(handle(), formProperty);
      controls_.clear();
      lastFocus_ = nullptr;
      // A sent message does not make GetMessage return. This posted one does, and the loop sees
      // that the form is gone.
      PostMessageA(nullptr, WM_NULL, 0, 0);
      break;
    default:
      break;
  }
  return Window::handleMessage(message, wParam, lParam);
}

Form* formOf(HWND window) {
  if (window == nullptr) return nullptr;
  return static_cast<Form*>(GetPropA(GetAncestor(window, GA_ROOT), formProperty));
}

}  // namespace windowing
