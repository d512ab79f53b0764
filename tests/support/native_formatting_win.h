// A rich edit control that answers EM_FORMATRANGE itself, as Windows documents it: what Wine's
// lacks.
#pragma once

#include <windows.h>

#include <richedit.h>

#include <map>
#include <string>

namespace test_support {

/// Watches the rich edit controls that are made during its life, from beneath all that the program
/// adds to them. With `answers` they format pages: the next character is the result, rc.bottom is
/// moved to the end of the text, and what is kept for that goes with a null range. Lines break at
/// blanks alone, in the documents' own format. One at a time.
class NativeFormatting {
 public:
  explicit NativeFormatting(bool answers);
  NativeFormatting(const NativeFormatting&) = delete;
  NativeFormatting& operator=(const NativeFormatting&) = delete;
  ~NativeFormatting();

  /// How many pages were drawn by these controls, and not by the program above them.
  [[nodiscard]] int drawn() const { return drawn_; }
  /// How often the program took the text out to format it itself.
  [[nodiscard]] int takenOver() const { return takenOver_; }
  /// Controls whose kept text was not released, or was used for another device.
  [[nodiscard]] int unreleased() const { return static_cast<int>(kept_.size()) + mixed_; }

 private:
  struct Kept {
    HDC target;
    std::string text;
  };
  static LRESULT CALLBACK procedure(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT format(HWND control, FORMATRANGE& range, bool draws);

  bool answers_;
  int drawn_ = 0;
  int takenOver_ = 0;
  int mixed_ = 0;
  std::map<HWND, Kept> kept_;
  HWND ofClass_;  ///< a control by which its class is reached
};

}  // namespace test_support
