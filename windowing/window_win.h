// A window of the program's own: one C++ object for one window handle. Its window procedure
// reports errors and lets none through to Windows.
#pragma once

#include <windows.h>

#include <exception>
#include <string>

namespace windowing {

class Window {
 public:
  Window() = default;
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;
  virtual ~Window();

  /// The window's handle; null before it is created and after it is destroyed.
  [[nodiscard]] HWND handle() const { return handle_; }

 protected:
  struct Creation {
    const char* className = "";
    std::string caption;
    DWORD style = 0;
    DWORD exStyle = 0;
    RECT place{};  ///< outer rectangle, pixels
    HWND parent = nullptr;
    HMENU menu = nullptr;  ///< menu of a top-level window, identifier of a child
  };
  /// Creates the window; its class is registered at the first use of the name. Raises when
  /// Windows refuses.
  void create(const Creation& creation);

  /// Answers a message. The default passes it to DefWindowProc.
  virtual LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  HWND handle_ = nullptr;
};

/// Shows the user an error that no event handler caught.
void reportError(const std::exception& error);

}  // namespace windowing
