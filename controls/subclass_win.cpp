#include "controls/subclass_win.h"

#include <commctrl.h>

#include "windowing/window_win.h"

namespace controls {
namespace {

constexpr UINT_PTR subclassId = 1;

}  // namespace

void Subclass::attach(HWND window, std::unique_ptr<Subclass> added) {
  added->window_ = window;
  const auto kept = reinterpret_cast<DWORD_PTR>(added.get());
  // From now on the window owns the object.
  if (SetWindowSubclass(window, procedure, subclassId, kept)) (void)added.release();
}

Subclass* Subclass::of(HWND window) {
  DWORD_PTR kept = 0;
  if (!GetWindowSubclass(window, procedure, subclassId, &kept)) return nullptr;
  return reinterpret_cast<Subclass*>(kept);
}

LRESULT Subclass::standard(UINT message, WPARAM wParam, LPARAM lParam) const {
  return DefSubclassProc(window_, message, wParam, lParam);
}

void Subclass::notify(HWND sender, int code) {
  SendMessageA(GetParent(sender), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(sender), code),
               reinterpret_cast<LPARAM>(sender));
}

LRESULT CALLBACK Subclass::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                     UINT_PTR id, DWORD_PTR kept) {
  auto* added = reinterpret_cast<Subclass*>(kept);
  if (message == WM_NCDESTROY) {
    const std::unique_ptr<Subclass> last(added);
    RemoveWindowSubclass(window, procedure, id);
    return DefSubclassProc(window, message, wParam, lParam);
  }
  try {
    return added->handle(message, wParam, lParam);
  } catch (const std::exception& error) {
    windowing::reportError(error);
  }
  return 0;
}

}  // namespace controls
