// A toolbar of picture buttons with tooltips.
#pragma once

#include "windowing/control_win.h"
#include "windowing/image_list_win.h"

namespace windowing {

class ToolBar : public Control {
 public:
  using Control::Control;
  /// Prepares the bar for buttons with pictures of `images`, which must outlive it.
  void setImages(const ImageList& images) const;
  /// Adds a button at the end; its command is sent when it is clicked.
  void add(int command, int image) const;
  void addSeparator() const;
  void setButtonEnabled(int command, bool enabled) const;
  [[nodiscard]] bool buttonEnabled(int command) const;
  /// Width that all buttons take together, pixels.
  [[nodiscard]] int naturalWidth() const;
  [[nodiscard]] int naturalHeight() const;
};

}  // namespace windowing
