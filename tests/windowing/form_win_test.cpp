// Forms as windows: closing, focus, and what the system tells them.
#include "windowing/form_win.h"

#include <gtest/gtest.h>

#include "tests/support/plain_form_win.h"

namespace {

using test_support::PlainForm;

constexpr int stripId = 100;
constexpr int amountId = 104;

bool waitedInVain = false;

void CALLBACK giveUp(HWND, UINT, UINT_PTR, DWORD) {
  waitedInVain = true;
}

DWORD WINAPI closeFromElsewhere(void* window) {
  SendMessageA(static_cast<HWND>(window), WM_CLOSE, 0, 0);
  return 0;
}

// A message that is sent, not posted, does not bring the loop round by itself.
TEST(Form, TheProgramEndsHoweverItsWindowIsClosed) {
  PlainForm form;
  form.show();
  const UINT_PTR timer = SetTimer(nullptr, 0, 3000, giveUp);
  const HANDLE thread = CreateThread(nullptr, 0, closeFromElsewhere, form.handle(), 0, nullptr);
  windowing::runMessageLoop(form);
  EXPECT_FALSE(waitedInVain);
  KillTimer(nullptr, timer);
  WaitForSingleObject(thread, INFINITE);
  CloseHandle(thread);
}

TEST(Form, CannotBeClosedBelowABox) {
  PlainForm form;
  form.show();
  EnableWindow(form.handle(), FALSE);
  SendMessageA(form.handle(), WM_CLOSE, 0, 0);
  EXPECT_TRUE(form.loaded());
  EnableWindow(form.handle(), TRUE);
  SendMessageA(form.handle(), WM_CLOSE, 0, 0);
  EXPECT_FALSE(form.loaded());
}

TEST(Form, AnAccessKeySelectsTheTextOfItsBox) {
  PlainForm form;
  form.show();
  const windowing::Control box = form.control(amountId);
  box.setText("12");
  SendMessageA(form.handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(box.handle()), TRUE);
  EXPECT_TRUE(box.focused());
  EXPECT_EQ(box.send(EM_GETSEL), MAKELONG(0, 2));
}

TEST(Form, PassesNewSystemColoursOnToItsControls) {
  PlainForm form;
  form.show();
  const HWND strip = form.control(stripId).handle();
  UpdateWindow(strip);
  ASSERT_FALSE(GetUpdateRect(strip, nullptr, FALSE));
  SendMessageA(form.handle(), WM_SYSCOLORCHANGE, 0, 0);
  EXPECT_TRUE(GetUpdateRect(strip, nullptr, FALSE));
}

}  // namespace
