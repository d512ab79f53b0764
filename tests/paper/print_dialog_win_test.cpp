#include "paper/print_dialog_win.h"

#include <gtest/gtest.h>

#include <cstring>

#include "paper/printer_win.h"
#include "tests/support/plain_form_win.h"
#include "tests/support/printers_win.h"
#include "values/runtime_error.h"
#include "windowing/seams_win.h"

namespace paper {
namespace {

using test_support::TestPrinters;

class PrintDialogs : public testing::Test {
 protected:
  PrintDialogs() {
    // Chosen away and back, the printer starts from the device's own settings.
    printer().select(TestPrinters::a4);
    printer().select(TestPrinters::letter);
    dialog_.flags = PD_NOSELECTION | PD_COLLATE | PD_RETURNDC | PD_HIDEPRINTTOFILE;
    dialog_.fromPage = 1;
    dialog_.toPage = dialog_.max = 5;
  }
  TestPrinters printers_;
  PrintDialog dialog_;
};

TEST_F(PrintDialogs, StartFromTheCurrentPrinterAndChangeNothingWhenCancelled) {
  test_support::PlainForm bystander, active;
  bystander.show();
  active.show();
  printer().setOrientation(Orientation::landscape);
  windowing::Replaced answer(windowing::seams().printDialog, [&](PRINTDLGA& shown) -> BOOL {
    const auto* settings = static_cast<const DEVMODEA*>(GlobalLock(shown.hDevMode));
    const auto* names = static_cast<const DEVNAMES*>(GlobalLock(shown.hDevNames));
    EXPECT_STREQ(reinterpret_cast<const char*>(names) + names->wDeviceOffset, TestPrinters::letter);
    EXPECT_EQ(settings->dmOrientation, DMORIENT_LANDSCAPE);
    // By value: the structure is packed, and no reference to its members would be aligned.
    EXPECT_EQ(+shown.Flags, dialog_.flags);
    EXPECT_EQ(+shown.nMinPage, 1) << "there is no page 0";
    EXPECT_EQ(+shown.nMaxPage, 65535) << "as many as the dialog can say";
    EXPECT_FALSE(IsWindowEnabled(bystander.handle())) << "all else takes no input meanwhile";
    shown.nFromPage = 7;
    return FALSE;
  });
  dialog_.toPage = dialog_.max = 70000;
  EXPECT_FALSE(dialog_.show());
  EXPECT_TRUE(IsWindowEnabled(bystander.handle()));
  EXPECT_EQ(dialog_.fromPage, 1);
  dialog_.cancelError = true;
  EXPECT_THROW(dialog_.show(), values::RuntimeError)
      << "cancelling is an error when that was asked for";
  EXPECT_EQ(printer().name(), TestPrinters::letter);
}

TEST_F(PrintDialogs, HandTheirChoiceToTheCurrentPrinter) {
  Printer other;
  other.select(TestPrinters::a4);
  HDC returned = nullptr;
  windowing::Replaced answer(windowing::seams().printDialog, [&](PRINTDLGA& shown) -> BOOL {
    // As the real dialog does, with blocks of its own.
    GlobalFree(shown.hDevMode);
    shown.hDevMode = GlobalAlloc(GHND, other.settings().size());
    auto* settings = static_cast<DEVMODEA*>(GlobalLock(shown.hDevMode));
    std::memcpy(settings, other.settings().data(), other.settings().size());
    settings->dmOrientation = DMORIENT_LANDSCAPE;
    GlobalUnlock(shown.hDevMode);
    GlobalFree(shown.hDevNames);
    shown.hDevNames = GlobalAlloc(GHND, 200);
    auto* names = static_cast<DEVNAMES*>(GlobalLock(shown.hDevNames));
    names->wDeviceOffset = 50;
    lstrcpyA(reinterpret_cast<char*>(names) + 50, TestPrinters::a4);
    GlobalUnlock(shown.hDevNames);
    shown.hDC = returned = CreateDCA("WINSPOOL", TestPrinters::a4, nullptr, nullptr);
    shown.Flags |= PD_PAGENUMS;
    shown.nFromPage = 2;
    shown.nToPage = 3;
    shown.nCopies = 4;
    return TRUE;
  });
  EXPECT_TRUE(dialog_.show());
  EXPECT_EQ(printer().name(), TestPrinters::a4);
  EXPECT_EQ(printer().orientation(), Orientation::landscape);
  EXPECT_TRUE(dialog_.rangeChosen());
  EXPECT_EQ(dialog_.fromPage, 2);
  EXPECT_EQ(dialog_.toPage, 3);
  EXPECT_EQ(dialog_.copies, 4);
  EXPECT_EQ(GetObjectType(returned), 0U) << "the returned device context is released";
}

// The system's own dialog, answered from a timer that runs in its message loop.
int pressed = 0;

void CALLBACK pressButton(HWND, UINT, UINT_PTR timer, DWORD) {
  const HWND dialog = FindWindowA("#32770", nullptr);
  if (dialog == nullptr) return;
  KillTimer(nullptr, timer);
  constexpr int allowedRange = 0x422;  // third option button: a range of pages
  constexpr int copiesBox = 0x482;
  SendDlgItemMessageA(dialog, allowedRange, BM_CLICK, 0, 0);
  SetDlgItemInt(dialog, copiesBox, 2, FALSE);
  SendMessageA(dialog, WM_COMMAND, static_cast<WPARAM>(pressed), 0);
}

TEST_F(PrintDialogs, TheSystemsDialogIsAnswered) {
  dialog_.copies = 1;
  for (const int button : {IDCANCEL, IDOK}) {
    pressed = button;
    SetTimer(nullptr, 0, 20, pressButton);
    EXPECT_EQ(dialog_.show(), button == IDOK);
    EXPECT_EQ(dialog_.rangeChosen(), button == IDOK);
    EXPECT_EQ(dialog_.toPage, 5);
    EXPECT_EQ(dialog_.copies, button == IDOK ? 2 : 1);
    EXPECT_EQ(printer().name(), TestPrinters::letter);
  }
}

}  // namespace
}  // namespace paper
