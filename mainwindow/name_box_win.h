// The box in the toolbar that lists the contacts by name.
#pragma once

#include "document/ContactList.h"
#include "windowing/control_win.h"

namespace mainwindow {

/// Fills `box` with one entry for each contact of `list`; none is selected.
void fillNameBox(const windowing::ComboBox& box, const document::ContactList& list);

}  // namespace mainwindow
