#pragma once

#include <windows.h>

namespace windowing {

/// The pointer is an hourglass for the length of a scope, errors included.
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
