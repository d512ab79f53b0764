#include "tests/support/dialog_driver_win.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "windowing/control_win.h"

namespace test_support {
namespace {

constexpr UINT patience = 10000;
DialogDriver* current = nullptr;

bool isClass(HWND window, const char* wanted) {
  char name[32] = {};
  GetClassNameA(window, name, sizeof name);
  return lstrcmpiA(name, wanted) == 0;
}

BOOL CALLBACK joinTexts(HWND child, LPARAM texts) {
  auto& joined = *reinterpret_cast<std::string*>(texts);
  const std::string text = isClass(child, "Static") ? windowing::Control(child).text() : "";
  if (!text.empty()) joined += (joined.empty() ? "" : "|") + text;
  return TRUE;
}

SeenDialog look(HWND dialog) {
  SeenDialog seen;
  seen.title = windowing::Control(dialog).text();
  EnumChildWindows(dialog, joinTexts, reinterpret_cast<LPARAM>(&seen.text));
  GetWindowRect(dialog, &seen.place);
  seen.owner = GetWindow(dialog, GW_OWNER);
  seen.unicode = IsWindowUnicode(dialog) != FALSE;
  if (IsChild(dialog, GetFocus())) seen.focused = GetDlgCtrlID(GetFocus());
  return seen;
}

}  // namespace

DialogDriver::DialogDriver(Action action) : action_(std::move(action)) {
  current = this;
  hook_ = SetWindowsHookExA(WH_CBT, hookProcedure, nullptr, GetCurrentThreadId());
}

DialogDriver::DialogDriver(int button)
    : DialogDriver([button](HWND dialog) {
        PostMessageA(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
      }) {}

DialogDriver::~DialogDriver() {
  UnhookWindowsHookEx(hook_);
  KillTimer(nullptr, soon_);
  KillTimer(nullptr, limit_);
  current = nullptr;
}

LRESULT CALLBACK DialogDriver::hookProcedure(int code, WPARAM wParam, LPARAM lParam) {
  const auto window = reinterpret_cast<HWND>(wParam);
  DialogDriver* driver = current;
  if (code == HCBT_ACTIVATE && driver != nullptr && isClass(window, "#32770") &&
      std::find(driver->known_.begin(), driver->known_.end(), window) == driver->known_.end()) {
    driver->known_.push_back(window);
    driver->waiting_.push_back(window);
    // Not from inside the activation: the dialog's own loop has to run first.
    driver->soon_ = SetTimer(nullptr, driver->soon_, USER_TIMER_MINIMUM, timerProcedure);
    driver->limit_ = SetTimer(nullptr, driver->limit_, patience, timerProcedure);
  }
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

void CALLBACK DialogDriver::timerProcedure(HWND, UINT, UINT_PTR timer, DWORD) {
  KillTimer(nullptr, timer);
  DialogDriver* driver = current;
  if (driver == nullptr) return;
  if (timer == driver->limit_) {
    driver->giveUp();
    return;
  }
  for (const HWND dialog : std::exchange(driver->waiting_, {})) driver->answer(dialog);
}

void DialogDriver::answer(HWND dialog) {
  if (!IsWindow(dialog)) return;
  seen_.push_back(look(dialog));
  action_(dialog);
}

void DialogDriver::giveUp() {
  for (const HWND dialog : known_) {
    if (!IsWindow(dialog) || !IsWindowVisible(dialog)) continue;
    ADD_FAILURE() << "a dialog was not answered: " << look(dialog).title;
    PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
    PostMessageA(dialog, WM_COMMAND, IDNO, 0);
  }
}

}  // namespace test_support
