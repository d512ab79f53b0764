#pragma once

#include <windows.h>

namespace windowing {

/// Shows an hourglass as the pointer until the end of the scope, also when an error ends it.
class Hourglass {
 public:
  Hourglass() : before_(SetCursor(LoadCursorA(nullptr, IDC_WAIT))) {}
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;
  ~Hourglass() { SetCursor(before_); }

 private:
  HCURSOR before_;
};

}  // namespace windowing
