#pragma once

#include "values/runtime_error.h"

namespace test_support {

/// Number of the run-time error that `step` raises, 0 for none.
template <typename Step>
int errorOf(Step step) {
  try {
    step();
    return 0;
  } catch (const values::RuntimeError& error) {
    return static_cast<int>(error.number());
  }
}

}  // namespace test_support
