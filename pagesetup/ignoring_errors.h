// Steps that are skipped where they fail.
#pragma once

#include "values/runtime_error.h"

namespace pagesetup {

/// Runs a step; whatever run-time error ends it, the caller's next step runs.
template <typename Step>
void ignoringErrors(Step step) {
  try {
    step();
  } catch (const values::RuntimeError&) {
    // A printer that refuses a step must not keep the rest of the dialog from working.
  }
}

}  // namespace pagesetup
