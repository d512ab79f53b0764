// The flat look of a combo box: no sunken edge until the pointer or the focus is on it.
#pragma once

#include <windows.h>

namespace library {

/// Gives one combo box the flat look. The object may outlive the combo box.
class FlatCombo {
 public:
  explicit FlatCombo(HWND combo);
  FlatCombo(const FlatCombo&) = delete;
  FlatCombo& operator=(const FlatCombo&) = delete;
  ~FlatCombo();

  /// The combo box; null after its window was destroyed.
  [[nodiscard]] HWND combo() const { return combo_; }

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                    UINT_PTR id, DWORD_PTR self);
  LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam);
  void followPointer();
  void leavePointer();
  void drawEdge() const;
  void letGo();

  HWND combo_ = nullptr;
  bool hot_ = false;
};

}  // namespace library
