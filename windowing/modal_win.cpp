#include "windowing/modal_win.h"

namespace windowing {
namespace {

HWND theMainWindow = nullptr;

struct Search {
  HWND except;
  std::vector<HWND>* found;
};

BOOL CALLBACK collect(HWND window, LPARAM search) {
  const auto* wanted = reinterpret_cast<const Search*>(search);
  if (window != wanted->except && IsWindowVisible(window) && IsWindowEnabled(window))
    wanted->found->push_back(window);
  return TRUE;
}

}  // namespace

DisabledOthers::DisabledOthers(HWND except) {
  Search search{except, &disabled_};
  EnumThreadWindows(GetCurrentThreadId(), collect, reinterpret_cast<LPARAM>(&search));
  for (HWND window : disabled_) EnableWindow(window, FALSE);
}

void DisabledOthers::enable() {
  for (HWND window : disabled_) EnableWindow(window, TRUE);
  disabled_.clear();
}

HWND dialogOwner() {
  const HWND active = GetActiveWindow();
  if (active != nullptr && IsWindowVisible(active)) return active;
  // Windows would not show a box whose owner is destroyed.
  return IsWindow(theMainWindow) ? theMainWindow : nullptr;
}

void setMainWindow(HWND window) {
  theMainWindow = window;
}
HWND mainWindow() {
  return theMainWindow;
}

}  // namespace windowing
