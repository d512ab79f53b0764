// A form with the control under test between two text boxes. It keeps the WM_COMMAND codes that
// the control sends.
#pragma once

#include <algorithm>
#include <array>
#include <functional>
#include <vector>

#include "windowing/form_win.h"

namespace controls::test {

constexpr int beforeId = 11;
constexpr int testedId = 12;
constexpr int afterId = 13;

struct Rows {
  std::array<windowing::ControlDesign, 3> rows;
};

class ControlForm : private Rows, public windowing::Form {
 public:
  explicit ControlForm(const windowing::ControlKind& tested)
      : Rows{{{{"BEFORE", beforeId, windowing::kind::textBox, "", 100, 100, 2000, 315},
               {"TESTED", testedId, tested, "", 100, 500, 2000, 315},
               {"AFTER", afterId, windowing::kind::textBox, "", 100, 900, 2000, 315}}}},
        Form({"frmTest", "Test", WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU, 0, 3000, 2000, rows}) {
    show();
  }

  std::vector<int> codes;
  std::function<void(int code)> onCode = [](int) {};
  [[nodiscard]] long count(int code) const { return std::count(codes.begin(), codes.end(), code); }
  [[nodiscard]] HWND tested() const { return control(testedId).handle(); }

  /// A key as the message loop hands it on.
  void key(WPARAM virtualKey, UINT message = WM_KEYDOWN, LPARAM flags = 1) const {
    MSG pressed{tested(), message, virtualKey, flags, 0, {}};
    windowing::dispatchMessage(pressed);
    MSG typed{};
    while (PeekMessageW(&typed, tested(), WM_CHAR, WM_CHAR, PM_REMOVE)) DispatchMessageW(&typed);
  }
  void type(const char* text) const {
    for (; *text != '\0'; ++text) SendMessageA(tested(), WM_CHAR, static_cast<BYTE>(*text), 1);
  }

 protected:
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message == WM_COMMAND && LOWORD(wParam) == testedId && lParam != 0) {
      codes.push_back(HIWORD(wParam));
      onCode(HIWORD(wParam));
    }
    return Form::handleMessage(message, wParam, lParam);
  }
};

}  // namespace controls::test
