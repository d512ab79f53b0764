// Keys and mouse.
#include <stdexcept>

#include "tests/app/support/program_win.h"
#include "tests/app/support/remote_buffer_win.h"

namespace drive {

namespace id = mainwindow::id;

namespace {

void sendKey(WORD key, bool down) {
  const bool extended = key == VK_INSERT || key == VK_DELETE || (key >= VK_PRIOR && key <= VK_DOWN);
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyA(key, MAPVK_VK_TO_VSC));
  input.ki.dwFlags = (down ? 0u : KEYEVENTF_KEYUP) | (extended ? KEYEVENTF_EXTENDEDKEY : 0u);
  if (SendInput(1, &input, sizeof input) != 1) throw std::runtime_error("a key was not taken");
}

POINT middleOf(const RECT& place) {
  return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
}

LPARAM pointParam(POINT place) {
  return MAKELPARAM(place.x, place.y);
}

}  // namespace

void Program::bringToFront() const {
  if (GetForegroundWindow() == window_) return;
  SetForegroundWindow(window_);
  waitFor("the window to come to the front",
          [this] { return GetForegroundWindow() == window_ || hasDialog(); });
  settle();
}

void Program::command(int commandId) const {
  PostMessageA(window_, WM_COMMAND, static_cast<WPARAM>(commandId), 0);
  settle();
}

void Program::chooseName(int index) const {
  const HWND box = control(id::CBOTBARBOX);
  if (!IsWindowEnabled(box)) throw std::runtime_error("the name box takes no input");
  send(box, CB_SETCURSEL, static_cast<WPARAM>(index));
  send(GetParent(box), WM_COMMAND, MAKEWPARAM(id::CBOTBARBOX, CBN_SELCHANGE),
       reinterpret_cast<LPARAM>(box));
  settle();
}

void Program::focusOn(int controlId) const {
  bringToFront();
  send(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control(controlId)), TRUE);
  settle();
  if (focus() != controlId)
    throw std::runtime_error("the focus does not go to " + std::to_string(controlId));
}

void Program::key(WORD pressed, WORD with) const {
  holdKey(pressed, 1, with);
}

void Program::holdKey(WORD pressed, int repeats, WORD with) const {
  if (!hasDialog()) bringToFront();
  if (with != 0) sendKey(with, true);
  for (int i = 0; i < repeats; ++i) sendKey(pressed, true);
  sendKey(pressed, false);
  if (with != 0) sendKey(with, false);
  settle();
}

void Program::type(const std::string& text) const {
  bringToFront();
  for (const char c : text) {
    const SHORT code = VkKeyScanA(c);
    if (code == -1) throw std::runtime_error(std::string("no key types ") + c);
    const bool shift = (HIBYTE(code) & 1) != 0;
    if (shift) sendKey(VK_SHIFT, true);
    sendKey(LOBYTE(code), true);
    sendKey(LOBYTE(code), false);
    if (shift) sendKey(VK_SHIFT, false);
  }
  settle();
}

void Program::click(HWND at, POINT place) const {
  PostMessageA(at, WM_MOUSEMOVE, 0, pointParam(place));
  PostMessageA(at, WM_LBUTTONDOWN, MK_LBUTTON, pointParam(place));
  PostMessageA(at, WM_LBUTTONUP, 0, pointParam(place));
  settle();
}

POINT Program::buttonPlace(int commandId) const {
  const RemoteBuffer place(processId_);
  if (send(control(id::TBARMAIN), TB_GETRECT, static_cast<WPARAM>(commandId), place.address()) == 0)
    throw std::runtime_error("the toolbar has no button " + std::to_string(commandId));
  return middleOf(place.value<RECT>());
}

void Program::clickButton(int commandId) const {
  click(control(id::TBARMAIN), buttonPlace(commandId));
}

void Program::hover(int commandId) const {
  const HWND bar = control(id::TBARMAIN);
  POINT place = buttonPlace(commandId);
  PostMessageA(bar, WM_MOUSEMOVE, 0, pointParam(place));
  ClientToScreen(bar, &place);
  SetCursorPos(place.x, place.y);
  settle();
}

void Program::pointAway() const {
  SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1);
  settle();
}

void Program::clickTab(int index) const {
  const HWND tabs = control(id::TABMAIN);
  const RemoteBuffer place(processId_);
  send(tabs, TCM_GETITEMRECT, static_cast<WPARAM>(index), place.address());
  click(tabs, middleOf(place.value<RECT>()));
}

void Program::lookAtAllPages() const {
  if (find(id::CBOPWORKWEBSITE) != nullptr) return;
  for (const int page : {1, 2, 0}) clickTab(page);
}

}  // namespace drive
