// Too little memory, made on purpose.
#pragma once

#include <windows.h>

#include <richedit.h>

#include <cstddef>

namespace test_support {

/// As long as it lives, nothing above `limit` bytes is to be had from the heap.
class ShortMemory {
 public:
  explicit ShortMemory(std::size_t limit);
  ShortMemory(const ShortMemory&) = delete;
  ShortMemory& operator=(const ShortMemory&) = delete;
  ~ShortMemory();
};

/// As long as it lives, a box does with one message what it does where it finds no memory: it
/// takes no text but an empty one, or hands none out, and may not even say so. One at a time.
class RefusingBox {
 public:
  RefusingBox(HWND box, UINT message, LRESULT answer) : box_(box) {
    refused = message;
    answered = answer;
    standard = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(box, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&RefusingBox::procedure)));
  }
  RefusingBox(const RefusingBox&) = delete;
  RefusingBox& operator=(const RefusingBox&) = delete;
  ~RefusingBox() { SetWindowLongPtrA(box_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(standard)); }

 private:
  static LRESULT CALLBACK procedure(HWND box, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == refused && refuses(lParam)) return answered;
    return CallWindowProcA(standard, box, message, wParam, lParam);
  }
  static bool refuses(LPARAM lParam) {
    if (refused == EM_STREAMOUT) reinterpret_cast<EDITSTREAM*>(lParam)->dwError = ERROR_OUTOFMEMORY;
    const bool handsOut = refused == EM_STREAMOUT || refused == WM_GETTEXT;
    return handsOut || *reinterpret_cast<const char*>(lParam) != '\0';
  }
  static inline UINT refused = WM_NULL;
  static inline LRESULT answered = 0;
  static inline WNDPROC standard = nullptr;
  HWND box_;
};

}  // namespace test_support
