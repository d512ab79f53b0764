#include "mainwindow/name_box_win.h"

#include <exception>
#include <string>

namespace mainwindow {
namespace {

// Adds an entry, an empty one where there is no memory for the name. Without it, the entries behind
// it would belong to other contacts.
void addName(HWND target, UINT add, const document::ContactList& list, int index) {
  try {
    const std::string name = list.nameEntry(index);
    if (SendMessageA(target, add, 0, reinterpret_cast<LPARAM>(name.c_str())) >= 0) return;
  } catch (const std::exception&) {
    // not enough memory
  }
  SendMessageA(target, add, 0, reinterpret_cast<LPARAM>(""));
}

}  // namespace

// Entries are sent to the list window inside the box. Sent to the box, each would pass the subclass
// that draws its edge, which takes forty times as long.
void fillNameBox(const windowing::ComboBox& box, const document::ContactList& list) {
  box.clear();
  COMBOBOXINFO parts{};
  parts.cbSize = sizeof parts;
  const bool known = GetComboBoxInfo(box.handle(), &parts) != FALSE && parts.hwndList != nullptr;
  const HWND target = known ? parts.hwndList : box.handle();
  const UINT add = known ? LB_ADDSTRING : CB_ADDSTRING;
  const windowing::PaintingSuspended suspended(target);
  for (int i = 0; i < list.count(); ++i) addName(target, add, list, i);
}

}  // namespace mainwindow
