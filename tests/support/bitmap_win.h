// A bitmap in memory that is drawn into and written to a file.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "values/handles_win.h"

namespace test_support {

class Bitmap {
 public:
  Bitmap(LONG width, LONG height);
  [[nodiscard]] HDC dc() const { return dc_.get(); }
  /// Its pixels from the bottom row up, as bytes.
  [[nodiscard]] std::string pixels() const;
  /// Writes it as a .bmp file; whether that succeeded.
  [[nodiscard]] bool write(const std::string& file) const;

 private:
  values::MemoryDc dc_;
  values::BitmapHandle bitmap_;
  std::optional<values::Selected> selected_;
  BITMAPINFOHEADER header_;
  void* bits_ = nullptr;
};

}  // namespace test_support
