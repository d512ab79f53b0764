#include "windowing/print_dialog_win.h"

#include <gtest/gtest.h>

#include <cstring>

#include "tests/support/printers_win.h"
#include "windowing/modal_win.h"
#include "windowing/printer_win.h"
#include "windowing/runtime_error.h"
#include "windowing/seams_win.h"

namespace windowing {
namespace {

using test_support::TestPrinters;

class PrintDialogs : public testing::Test {
 protected:
  void SetUp() override {
    // Chosen away and back, the printer starts from the device's own settings.
    printer().select(TestPrinters::a4);
    printer().select(TestPrinters::letter);
  }
  TestPrinters printers_;
};

const DEVMODEA& settingsIn(const PRINTDLGA& dialog) {
  return *static_cast<const DEVMODEA*>(GlobalLock(dialog.hDevMode));
}

std::string deviceIn(const PRINTDLGA& dialog) {
  const auto* names = static_cast<const DEVNAMES*>(GlobalLock(dialog.hDevNames));
  return reinterpret_cast<const char*>(names) + names->wDeviceOffset;
}

TEST_F(PrintDialogs, StartFromTheCurrentPrinterAndChangeNothingWhenCancelled) {
  printer().setOrientation(Orientation::landscape);
  PRINTDLGA seen{};
  std::string device;
  int orientation = 0;
  Replaced answer(printDialogSeam(), [&](PRINTDLGA& dialog) -> BOOL {
    seen = dialog;
    device = deviceIn(dialog);
    orientation = settingsIn(dialog).dmOrientation;
    dialog.nFromPage = 7;
    return FALSE;
  });
  PrintDialog dialog;
  dialog.flags = PD_NOSELECTION | PD_COLLATE | PD_RETURNDC | PD_HIDEPRINTTOFILE;
  dialog.fromPage = 1;
  dialog.toPage = dialog.max = 70000;
  EXPECT_FALSE(dialog.show());
  EXPECT_EQ(device, TestPrinters::letter);
  EXPECT_EQ(orientation, DMORIENT_LANDSCAPE);
  EXPECT_EQ(seen.Flags, dialog.flags);
  EXPECT_EQ(seen.nMinPage, 1) << "there is no page 0";
  EXPECT_EQ(seen.nMaxPage, 65535) << "as many as the dialog can say";
  EXPECT_EQ(dialog.fromPage, 1);
  dialog.cancelError = true;
  try {
    dialog.show();
    FAIL() << "cancelling is an error when that was asked for";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.number(), ErrorNumber::cancelled);
  }
  EXPECT_EQ(printer().name(), TestPrinters::letter);
}

TEST_F(PrintDialogs, HandTheirChoiceToTheCurrentPrinter) {
  Printer other;
  other.select(TestPrinters::a4);
  HDC returned = nullptr;
  Replaced answer(printDialogSeam(), [&](PRINTDLGA& dialog) -> BOOL {
    // As the real dialog does, with blocks of its own.
    GlobalFree(dialog.hDevMode);
    dialog.hDevMode = GlobalAlloc(GHND, other.settings().size());
    auto* settings = static_cast<DEVMODEA*>(GlobalLock(dialog.hDevMode));
    std::memcpy(settings, other.settings().data(), other.settings().size());
    settings->dmOrientation = DMORIENT_LANDSCAPE;
    GlobalUnlock(dialog.hDevMode);
    GlobalFree(dialog.hDevNames);
    dialog.hDevNames = GlobalAlloc(GHND, 200);
    auto* names = static_cast<DEVNAMES*>(GlobalLock(dialog.hDevNames));
    names->wDeviceOffset = 50;
    std::memcpy(reinterpret_cast<char*>(names) + 50, TestPrinters::a4,
                std::strlen(TestPrinters::a4) + 1);
    GlobalUnlock(dialog.hDevNames);
    dialog.hDC = returned = CreateDCA("WINSPOOL", TestPrinters::a4, nullptr, nullptr);
    dialog.Flags |= PD_PAGENUMS;
    dialog.nFromPage = 2;
    dialog.nToPage = 3;
    dialog.nCopies = 4;
    return TRUE;
  });
  PrintDialog dialog;
  dialog.toPage = dialog.max = 5;
  EXPECT_TRUE(dialog.show());
  EXPECT_EQ(printer().name(), TestPrinters::a4);
  EXPECT_EQ(printer().orientation(), Orientation::landscape);
  EXPECT_GT(printer().width(), printer().height());
  EXPECT_TRUE(dialog.rangeChosen());
  EXPECT_EQ(dialog.fromPage, 2);
  EXPECT_EQ(dialog.toPage, 3);
  EXPECT_EQ(dialog.copies, 4);
  EXPECT_EQ(GetObjectType(returned), 0U) << "the returned device context is released";
}

// The system's own dialog, answered from a timer that runs in its message loop.
struct Answer {
  bool agree;
  bool disabled = false;
  HWND bystander;
};
Answer* theAnswer = nullptr;

void CALLBACK pressButton(HWND, UINT, UINT_PTR timer, DWORD) {
  const HWND dialog = FindWindowA("#32770", nullptr);
  if (dialog == nullptr || theAnswer == nullptr) return;
  KillTimer(nullptr, timer);
  theAnswer->disabled = IsWindowEnabled(theAnswer->bystander) == FALSE;
  constexpr int allowedRange = 0x422;  // third option button: a range of pages
  constexpr int copiesBox = 0x482;
  SendDlgItemMessageA(dialog, allowedRange, BM_CLICK, 0, 0);
  SetDlgItemInt(dialog, copiesBox, 2, FALSE);
  SendMessageA(dialog, WM_COMMAND, theAnswer->agree ? IDOK : IDCANCEL, 0);
}

TEST_F(PrintDialogs, TheSystemsDialogIsAnswered) {
  const auto makeWindow = [] {
    return CreateWindowExA(0, "STATIC", "", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr, nullptr,
                           nullptr, nullptr);
  };
  const HWND bystander = makeWindow();
  const HWND active = makeWindow();
  SetActiveWindow(active);
  ASSERT_EQ(dialogOwner(), active);
  for (const bool agree : {true, false}) {
    Answer answer{agree, false, bystander};
    theAnswer = &answer;
    SetTimer(nullptr, 0, 20, pressButton);
    PrintDialog dialog;
    dialog.flags = PD_NOSELECTION | PD_COLLATE | PD_RETURNDC | PD_HIDEPRINTTOFILE;
    dialog.fromPage = 1;
    dialog.toPage = dialog.max = 5;
    dialog.copies = 1;
    EXPECT_EQ(dialog.show(), agree);
    EXPECT_EQ(dialog.rangeChosen(), agree);
    EXPECT_EQ(dialog.toPage, 5);
    EXPECT_EQ(dialog.copies, agree ? 2 : 1);
    EXPECT_TRUE(answer.disabled) << "everything else takes no input meanwhile";
    EXPECT_TRUE(IsWindowEnabled(bystander));
    EXPECT_EQ(printer().name(), TestPrinters::letter);
  }
  theAnswer = nullptr;
  DestroyWindow(active);
  DestroyWindow(bystander);
}

}  // namespace
}  // namespace windowing
