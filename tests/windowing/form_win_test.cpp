// Forms as windows: closing, focus, and what the system tells them.
#include "windowing/form_win.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <new>
#include <utility>

#include "tests/support/plain_form_win.h"
#include "values/runtime_error.h"
#include "values/system_error_win.h"
#include "windowing/screen_win.h"
#include "windowing/seams_win.h"

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

TEST(Errors, AreReportedByNumberAndInWords) {
  const values::ErrorNumber memory = values::ErrorNumber::outOfMemory;
  const std::pair<std::shared_ptr<std::exception>, std::string> rows[] = {
      {std::make_shared<std::bad_alloc>(), "Run-time error 7:\r\n\r\nOut of memory"},
      {std::make_shared<std::length_error>("text"), "Run-time error 7:\r\n\r\nOut of memory"},
      {std::make_shared<values::RuntimeError>(memory, "Out of memory here"),
       "Run-time error 7:\r\n\r\nOut of memory here"},
      {std::make_shared<values::RuntimeError>(values::systemError(ERROR_OUTOFMEMORY)),
       "Run-time error 7:\r\n\r\nOut of memory"},
      {std::make_shared<std::runtime_error>("text"), "text"}};
  for (const auto& [error, told] : rows) {
    std::string seen;
    const windowing::Replaced box(windowing::seams().messageBox,
                                  [&seen](HWND, const std::string& text, auto&&...) {
                                    seen = text;
                                    return IDOK;
                                  });
    windowing::reportError(*error);
    EXPECT_EQ(seen, told);
  }
}

TEST_F(Forms, CannotBeClosedBelowABox) {
  for (const bool takesInput : {false, true}) {
    EnableWindow(form.handle(), takesInput);
    SendMessageA(form.handle(), WM_CLOSE, 0, 0);
    EXPECT_NE(form.loaded(), takesInput);
  }
}

// Takes note of what it is told to do.
class ToldForm : public test_support::PlainForm {
 public:
  std::string told;
  bool handleKey(const MSG& message) override {
    if (message.wParam == VK_F9) told += "key ";
    return message.wParam == VK_F9;
  }

 protected:
  void onCommand(int) override { told += "command "; }
  void onEnter() override { told += "enter "; }
  void onEscape() override { told += "escape "; }
  void onClick(int) override { told += "click "; }
  void onSelect(int) override { told += "select "; }
  void onChange(int) override { told += "change "; }
};

// Another program may send them, or they were under way when the box came up.
TEST_F(Forms, AreGivenNoCommandsBelowABox) {
  ToldForm told;
  told.show();
  for (const bool takesInput : {true, false}) {
    EnableWindow(told.handle(), takesInput);
    told.told.clear();
    for (const int command : {40001, IDOK, IDCANCEL})
      SendMessageA(told.handle(), WM_COMMAND, static_cast<WPARAM>(command), 0);
    SendMessageA(told.control("BTNOK").handle(), BM_CLICK, 0, 0);
    MSG key{told.control("TXTAMOUNT").handle(), WM_KEYDOWN, VK_F9, 1, 0, {}};
    windowing::dispatchMessage(key);
    for (const int notice : {CBN_SETFOCUS, CBN_SELCHANGE})
      SendMessageA(told.handle(), WM_COMMAND, MAKEWPARAM(105, notice),
                   reinterpret_cast<LPARAM>(told.control("CBONAMES").handle()));
    told.control("TXTAMOUNT").setText("1");
    EXPECT_EQ(told.told, takesInput ? "command enter escape click key select change " : "change ");
  }
}

TEST_F(Forms, HaveTheFocusWhereItWasWhenTheyComeBack) {
  form.control("CBONAMES").focus();
  SendMessageA(form.handle(), WM_ACTIVATE, WA_INACTIVE, 0);
  SetFocus(form.handle());
  EXPECT_TRUE(form.control("CBONAMES").focused());
}

TEST_F(Forms, PassNewSystemColoursOnToTheirControls) {
  const HWND strip = form.control(stripId).handle();
  UpdateWindow(strip);
  ASSERT_FALSE(GetUpdateRect(strip, nullptr, FALSE));
  SendMessageA(form.handle(), WM_SYSCOLORCHANGE, 0, 0);
  EXPECT_TRUE(GetUpdateRect(strip, nullptr, FALSE));
}

// Looks at its box when it is closed.
class TypedForm : public test_support::PlainForm {
 public:
  std::wstring typed;

 protected:
  void onUnload() override {
    wchar_t text[16] = {};
    SendMessageW(control("TXTAMOUNT").handle(), WM_GETTEXT, 16, reinterpret_cast<LPARAM>(text));
    typed = text;
  }
};

// Taken as single bytes, a character of two would fall apart on its way to the box.
TEST(FormLoops, HandCharactersOnAsTheyWereTyped) {
  for (const bool modal : {false, true}) {
    TypedForm form;
    form.load();
    for (const wchar_t character : {L'\x30BD', L'\x8868', L'a'})
      PostMessageW(form.control("TXTAMOUNT").handle(), WM_CHAR, character, 1);
    PostMessageW(form.handle(), WM_CLOSE, 0, 0);
    if (modal) {
      form.showModal();
    } else {
      windowing::runMessageLoop(form);
    }
    EXPECT_EQ(form.typed, L"\x30BD\x8868\x0061") << "modal: " << modal;
  }
}

// Whatever the resolution makes of a place, a label stands on the line of the text beside it.
TEST(FormDesign, PutsTextsOfOneRowOnOneLine) {
  using windowing::ControlDesign;
  namespace kind = windowing::kind;
  constexpr ControlDesign row[] = {
      {"LABEL", 1, kind::sideLabel, "Name:", 0, 300, 900, 315, 0, SS_RIGHT},
      {"BOX", 2, kind::textBox, "", 900, 300, 900, 315},
      {"LIST", 3, kind::dropDownList, "", 1800, 300, 900, 3000}};
  test_support::PlainForm form("frmRow", row);
  form.load();
  const RECT label = form.control(1).pixels();
  const RECT box = form.control(2).pixels();
  const RECT list = form.control(3).pixels();
  EXPECT_EQ(label.top, box.top + GetSystemMetrics(SM_CYEDGE) + 1);
  EXPECT_EQ(label.bottom, box.bottom - GetSystemMetrics(SM_CYEDGE) - 1);
  EXPECT_NEAR((label.top + label.bottom) / 2.0, windowing::screenPixels(300 + 315 / 2.0), 1);
  EXPECT_NEAR((list.top + list.bottom) / 2.0, (box.top + box.bottom) / 2.0, 1);
  EXPECT_NE(GetWindowLongA(form.control(1).handle(), GWL_STYLE) & SS_RIGHT, 0);
  EXPECT_NE(GetWindowLongA(form.control(2).handle(), GWL_EXSTYLE) & WS_EX_CLIENTEDGE, 0);
  EXPECT_GT(form.control(2).send(EM_GETLIMITTEXT), 100'000) << "what the user may type";
}

// A form that has trouble with the last of its controls.
class TroubledForm : public windowing::Form {
 public:
  explicit TroubledForm(std::span<const windowing::ControlDesign> controls)
      : Form({"frmTroubled", "", WS_OVERLAPPED, 0, 900, 900, controls}) {}
  bool troubled = true;
  using Form::createControls;
  static HWND make(Form& form, const windowing::ControlDesign& design, HWND container,
                   const RECT& place) {
    if (static_cast<TroubledForm&>(form).troubled) values::raiseOutOfMemory();
    return windowing::createChild({"STATIC", 0}, container, design.id, place);
  }
};

constexpr std::array troubledDesign{
    windowing::ControlDesign{"PAGE", 1, windowing::kind::page, "", 0, 0, 900, 900},
    windowing::ControlDesign{"TXTBOX", 2, windowing::kind::textBox, "", 0, 0, 300, 300, 1},
    windowing::ControlDesign{"LAST", 3, {.make = TroubledForm::make}, "", 0, 0, 300, 300, 1},
};

TEST(FormInTrouble, IsNotLoadedWithoutAllOfItsControls) {
  auto design = troubledDesign;
  design[0].kind = windowing::kind::container;
  TroubledForm form(design);
  EXPECT_THROW(form.load(), values::RuntimeError);
  EXPECT_FALSE(form.loaded());
  form.troubled = false;
  form.load();
  for (const int id : {2, 3}) EXPECT_TRUE(IsChild(form.handle(), form.control(id).handle()));
}

TEST(FormInTrouble, MakesWhatAPageLacksWhenItIsTriedAgain) {
  TroubledForm form(troubledDesign);
  form.load();
  EXPECT_EQ(form.control(2).handle(), nullptr);
  EXPECT_THROW(form.createControls(1), values::RuntimeError);
  const HWND box = form.control(2).handle();
  EXPECT_EQ(GetWindow(form.control(1).handle(), GW_CHILD), box);
  form.troubled = false;
  form.createControls(1);
  EXPECT_EQ(form.control(2).handle(), box);
  EXPECT_EQ(GetWindow(box, GW_HWNDNEXT), form.control(3).handle());
}

}  // namespace
