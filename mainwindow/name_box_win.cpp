#include "mainwindow/name_box_win.h"

namespace mainwindow {

// Entries go to the list itself: on their way through the box each would pass the subclass that
// draws its edge, which takes forty times as long.
void fillNameBox(const windowing::ComboBox& box, const document::ContactList& list) {
  box.clear();
  COMBOBOXINFO parts{};
  parts.cbSize = sizeof parts;
  const bool known = GetComboBoxInfo(box.handle(), &parts) != FALSE && parts.hwndList != nullptr;
  const HWND target = known ? parts.hwndList : box.handle();
  const UINT add = known ? LB_ADDSTRING : CB_ADDSTRING;
  const windowing::PaintingSuspended suspended(target);
  for (int i = 0; i < list.count(); ++i)
    SendMessageA(target, add, 0, reinterpret_cast<LPARAM>(list.nameEntry(i).c_str()));
}

}  // namespace mainwindow
