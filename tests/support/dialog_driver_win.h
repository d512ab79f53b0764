// Answers real boxes and dialogs of the system while the code under test waits in them.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace test_support {

/// A dialog that opened: what it showed, where, and who owned it.
struct SeenDialog {
  std::string title;
  std::string text;  ///< of its static texts that are not empty, joined by "|"
  RECT place{};
  HWND owner = nullptr;
  bool unicode = false;
  int focused = 0;  ///< identifier of the control with the focus
};

/// As long as it lives, every dialog of the calling thread is noted and answered once it is
/// active. A dialog that is still there after ten seconds is closed and fails the test.
class DialogDriver {
 public:
  using Action = std::function<void(HWND dialog)>;
  explicit DialogDriver(Action action);
  /// Presses the button with this identifier.
  explicit DialogDriver(int button);
  DialogDriver(const DialogDriver&) = delete;
  DialogDriver& operator=(const DialogDriver&) = delete;
  ~DialogDriver();

  [[nodiscard]] const std::vector<SeenDialog>& seen() const { return seen_; }

 private:
  static LRESULT CALLBACK hookProcedure(int code, WPARAM wParam, LPARAM lParam);
  static void CALLBACK timerProcedure(HWND, UINT, UINT_PTR timer, DWORD);
  void answer(HWND dialog);
  void giveUp();

  Action action_;
  HHOOK hook_ = nullptr;
  UINT_PTR soon_ = 0;
  UINT_PTR limit_ = 0;
  std::vector<HWND> known_;    ///< every dialog so far
  std::vector<HWND> waiting_;  ///< those not answered yet
  std::vector<SeenDialog> seen_;
};

}  // namespace test_support
