// Forms as windows: closing, focus, and what the system tells them.
#include "windowing/form_win.h"

#include <gtest/gtest.h>

#include "tests/support/plain_form_win.h"
#include "windowing/runtime_error.h"

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

// A form that has trouble with the last of its controls.
class TroubledForm : public windowing::Form {
 public:
  explicit TroubledForm(std::span<const int> late)
      : Form({"frmTroubled", "", WS_OVERLAPPED, 0, 900, 900, controls, late}) {}
  bool troubled = true;

 protected:
  HWND createCustom(const windowing::ControlDesign& design, HWND container, const RECT&) override {
    if (troubled) throw windowing::RuntimeError(windowing::ErrorNumber::outOfMemory, "");
    return CreateWindowA("STATIC", "", WS_CHILD, 0, 0, 9, 9, container,
                         reinterpret_cast<HMENU>(static_cast<INT_PTR>(design.id)), nullptr,
                         nullptr);
  }

 private:
  static constexpr windowing::ControlDesign controls[] = {
      {"PAGE", 1, windowing::ControlKind::container, "", 0, 0, 900, 900},
      {"TXTBOX", 2, windowing::ControlKind::textBox, "", 0, 0, 300, 300, 1},
      {"LAST", 3, windowing::ControlKind::custom, "", 0, 0, 300, 300, 1},
  };
};

// A box that stood there empty would be stored over what it should show.
TEST(FormInTrouble, HasAllOfItsControlsOrNone) {
  constexpr int page[] = {1};
  TroubledForm late(page), whole({});
  late.load();
  EXPECT_THROW(late.makeLateControls(), windowing::RuntimeError);
  EXPECT_EQ(GetWindow(late.control(1).handle(), GW_CHILD), nullptr);
  EXPECT_EQ(late.control(2).handle(), nullptr);
  EXPECT_THROW(whole.load(), windowing::RuntimeError);
  EXPECT_FALSE(whole.loaded());
  late.troubled = whole.troubled = false;
  late.makeLateControls();
  whole.load();
  for (TroubledForm* form : {&late, &whole})
    for (const int id : {2, 3}) EXPECT_TRUE(IsChild(form->handle(), form->control(id).handle()));
}

}  // namespace
