#include "library/flat_combo_win.h"

#include <commctrl.h>

#include "values/handles_win.h"
#include "windowing/theme_win.h"

namespace library {
namespace {

constexpr UINT_PTR subclassId = 0x464C;

}  // namespace

FlatCombo::FlatCombo(HWND combo) {
  if (SetWindowSubclass(combo, procedure, subclassId, reinterpret_cast<DWORD_PTR>(this)) != FALSE)
    combo_ = combo;
}

FlatCombo::~FlatCombo() {
  letGo();
}

void FlatCombo::letGo() {
  if (combo_ == nullptr) return;
  RemoveWindowSubclass(combo_, procedure, subclassId);
  combo_ = nullptr;
}

LRESULT CALLBACK FlatCombo::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                      UINT_PTR, DWORD_PTR self) {
  auto* helper = reinterpret_cast<FlatCombo*>(self);
  if (message == WM_NCDESTROY) {
    helper->letGo();
    return DefSubclassProc(window, message, wParam, lParam);
  }
  return helper->handle(message, wParam, lParam);
}

LRESULT FlatCombo::handle(UINT message, WPARAM wParam, LPARAM lParam) {
  const HWND window = combo_;
  const LRESULT result = DefSubclassProc(window, message, wParam, lParam);
  // The window may be destroyed by now.
  if (combo_ == nullptr) return result;
  switch (message) {
    case WM_PAINT:
      drawEdge();
      break;
    case WM_MOUSEMOVE:
      followPointer();
      break;
    case WM_MOUSELEAVE:
      leavePointer();
      break;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      InvalidateRect(window, nullptr, FALSE);
      break;
    default:
      break;
  }
  return result;
}

void FlatCombo::followPointer() {
  if (hot_) return;
  TRACKMOUSEEVENT watch{sizeof watch, TME_LEAVE, combo_, 0};
  hot_ = TrackMouseEvent(&watch) != FALSE;
  InvalidateRect(combo_, nullptr, FALSE);
}

void FlatCombo::leavePointer() {
  hot_ = false;
  InvalidateRect(combo_, nullptr, FALSE);
}

void FlatCombo::drawEdge() const {
  // With a visual style, combo boxes look flat anyway.
  const windowing::ThemeEngine& themes = windowing::themes();
  if (themes.isAppThemed() != FALSE && themes.isThemeActive() != FALSE) return;
  if (hot_ || GetFocus() == combo_) return;
  RECT area{};
  GetClientRect(combo_, &area);
  const values::WindowDc dc(combo_);
  FrameRect(dc.get(), &area, GetSysColorBrush(COLOR_BTNSHADOW));
  InflateRect(&area, -1, -1);
  FrameRect(dc.get(), &area, GetSysColorBrush(COLOR_WINDOW));
}

}  // namespace library
