// Forms as windows: closing, focus, and what the system tells them.
#include "windowing/form_win.h"

#include <gtest/gtest.h>

#include "tests/support/plain_form_win.h"

namespace {

constexpr int stripId = 100;

class Forms : public testing::Test {
 protected:
  Forms() { form.show(); }
  test_support::PlainForm form;
};

bool waitedInVain = false;

void CALLBACK giveUp(HWND, UINT, UINT_PTR, DWORD) {
  waitedInVain = true;
}

DWORD WINAPI closeFromElsewhere(void* window) {
  SendMessageA(static_cast<HWND>(window), WM_CLOSE, 0, 0);
  return 0;
}

// A message that is sent, not posted, does not bring the loop round by itself.
TEST_F(Forms, TheProgramEndsHoweverItsWindowIsClosed) {
  const UINT_PTR timer = SetTimer(nullptr, 0, 3000, giveUp);
  const HANDLE thread = CreateThread(nullptr, 0, closeFromElsewhere, form.handle(), 0, nullptr);
  windowing::runMessageLoop(form);
  EXPECT_FALSE(waitedInVain);
  KillTimer(nullptr, timer);
  WaitForSingleObject(thread, INFINITE);
  CloseHandle(thread);
}

TEST_F(Forms, CannotBeClosedBelowABox) {
  for (const bool takesInput : {false, true}) {
    EnableWindow(form.handle(), takesInput);
    SendMessageA(form.handle(), WM_CLOSE, 0, 0);
    EXPECT_NE(form.loaded(), takesInput);
  }
}

TEST_F(Forms, PassNewSystemColoursOnToTheirControls) {
  const HWND strip = form.control(stripId).handle();
  UpdateWindow(strip);
  ASSERT_FALSE(GetUpdateRect(strip, nullptr, FALSE));
  SendMessageA(form.handle(), WM_SYSCOLORCHANGE, 0, 0);
  EXPECT_TRUE(GetUpdateRect(strip, nullptr, FALSE));
}

}  // namespace
