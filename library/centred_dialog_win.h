// The centring of the system's dialogs as a scope.
#pragma once

#include "library/clsLibrary_win.h"

namespace library {

/// Centres the next dialog of the system that opens in this scope. Make it right before the dialog.
/// If no dialog opens, the end of the scope removes the hook.
class CentredDialog {
 public:
  CentredDialog() { LIBRARY().HOOKFRMLOAD(); }
  CentredDialog(const CentredDialog&) = delete;
  CentredDialog& operator=(const CentredDialog&) = delete;
  ~CentredDialog() { LIBRARY().HOOKFRMUNLOAD(); }
};

}  // namespace library
