#include "mainwindow/name_box_win.h"

#include <exception>
#include <string>

namespace mainwindow {
namespace {

// A name that finds no room stays empty: without its entry, those behind it would stand for other
// contacts.
void addName(HWND target, UINT add, const document::ContactList& list, int index) {
  try {
    const std::string name = list.nameEntry(index);
    if (SendMessageA(target, add, 0, reinterpret_cast<LPARAM>(name.c_str())) >= 0) return;
  } catch (const std::exception&) {
    // too little memory
  }
  SendMessageA(target, add, 0, reinterpret_cast<LPARAM>(""));
}

}  // namespace

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
  for (int i = 0; i < list.count(); ++i) addName(target, add, list, i);
}

}  // namespace mainwindow
