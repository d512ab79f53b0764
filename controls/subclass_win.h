// What a control of ours adds to a standard one: an object that sees the control's messages
// first and lives exactly as long as its window.
#pragma once

#include <windows.h>

#include <memory>

namespace controls {

class Subclass {
 public:
  Subclass() = default;
  Subclass(const Subclass&) = delete;
  Subclass& operator=(const Subclass&) = delete;
  virtual ~Subclass() = default;

  /// Puts `added` before the window procedure of `window`; it goes with the window.
  static void attach(HWND window, std::unique_ptr<Subclass> added);
  /// What was attached to `window`; null when nothing was, or the window is gone.
  [[nodiscard]] static Subclass* of(HWND window);

 protected:
  [[nodiscard]] HWND window() const { return window_; }
  /// Answers a message; errors are reported and answered with 0.
  virtual LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam) = 0;
  /// What the standard control does.
  LRESULT standard(UINT message, WPARAM wParam, LPARAM lParam) const;
  /// Sends WM_COMMAND with a code of ours to the window that the control reports to. The
  /// receiver may destroy the control: nothing of this object may be used afterwards.
  static void notify(HWND sender, int code);

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                    UINT_PTR id, DWORD_PTR added);

  HWND window_ = nullptr;
};

}  // namespace controls
