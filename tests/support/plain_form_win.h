// A small form with the controls that the library's procedures know by name.
#pragma once

#include <iterator>

#include "windowing/form_win.h"

namespace test_support {

constexpr windowing::ControlDesign plainFormControls[] = {
    {"PICSTRIP", 100, windowing::kind::container, "", 0, 3000, 6000, 600},
    {"BTNOK", 101, windowing::kind::button, "OK", 30, 30, 1200, 375, 100},
    {"BTNCANCEL", 102, windowing::kind::button, "Cancel", 30, 30, 1050, 375, 100},
    {"BTNCLOSE", 103, windowing::kind::button, "Close", 30, 30, 1500, 375, 100},
    {"TXTAMOUNT", 104, windowing::kind::textBox, "", 150, 150, 1500, 315},
    {"CBONAMES", 105, windowing::kind::dropDownList, "", 150, 600, 2400, 315},
    {"SBMAIN", 106, windowing::kind::statusBar, "", 0, 0, 0, 0},
};

/// A sizable form 6000 by 3900 twips inside, at design resolution.
class PlainForm : public windowing::Form {
 public:
  explicit PlainForm(const char* name = "frmPlain",
                     std::span<const windowing::ControlDesign> controls = plainFormControls)
      : Form({name, "Plain", WS_OVERLAPPEDWINDOW, 0, 6000, 3900, controls}) {}
  ~PlainForm() override { unload(); }
};

}  // namespace test_support
