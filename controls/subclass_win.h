// The code that one of the program's controls adds to a standard control: an object that gets the
// control's messages first and is destroyed with its window.
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

  /// Puts `added` before the window procedure of `window`, which then owns it.
  static void attach(HWND window, std::unique_ptr<Subclass> added);
  /// The object attached to `window`; null when there is none, or the window is destroyed.
  [[nodiscard]] static Subclass* of(HWND window);

 protected:
  [[nodiscard]] HWND window() const { return window_; }
  /// Answers a message; errors are reported and answered with 0.
  virtual LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam) = 0;
  /// Has the standard control handle a message.
  LRESULT standard(UINT message, WPARAM wParam, LPARAM lParam) const;
  /// Sends WM_COMMAND with `code` to the parent of the control. The receiver may destroy the
  /// control: nothing of this object may be used afterwards.
  static void notify(HWND sender, int code);

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                    UINT_PTR id, DWORD_PTR added);

  HWND window_ = nullptr;
};

}  // namespace controls
