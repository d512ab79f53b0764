#include "mainwindow/name_box_win.h"

namespace mainwindow {

void fillNameBox(const windowing::ComboBox& box, const document::ContactList& list) {
  const windowing::PaintingSuspended suspended(box.handle());
  box.clear();
  for (int i = 0; i < list.count(); ++i) box.add(list.nameEntry(i));
}

}  // namespace mainwindow
