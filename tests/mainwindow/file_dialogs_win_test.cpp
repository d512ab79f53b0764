// The system's own file dialogs, as Open and Save As bring them up.
#include <windows.h>

#include <commdlg.h>
#include <gtest/gtest.h>

#include "mainwindow/frmMain_ids.h"
#include "tests/support/dialog_driver_win.h"
#include "tests/support/main_window_win.h"

// Through these the program calls the system's dialogs.
using FileDialogEntry = BOOL(WINAPI*)(OPENFILENAMEA*);
extern "C" FileDialogEntry openEntry asm("__imp__GetOpenFileNameA@4");
extern "C" FileDialogEntry saveEntry asm("__imp__GetSaveFileNameA@4");

namespace {

namespace id = mainwindow::id;

FileDialogEntry realEntry = nullptr;
DWORD askedFlags = 0;

BOOL WINAPI noteFlags(OPENFILENAMEA* dialog) {
  askedFlags = dialog->Flags;
  return realEntry(dialog);
}

/// Taken before the main window's tests replace it.
struct RealSeam {
  decltype(windowing::Seams::fileDialog) real = windowing::seams().fileDialog;
};

class FileDialogs : private RealSeam, public test_support::MainWindowTest {
 protected:
  FileDialogs() { windowing::seams().fileDialog = real; }
};

TEST_F(FileDialogs, StandInTheMiddleAndGetTheirFlags) {
  for (const auto& [command, title, entry] :
       {std::tuple{id::OPEN, "Open", &openEntry}, {id::SAVEAS, "Save As", &saveEntry}}) {
    SCOPED_TRACE(title);
    test_support::DialogDriver driver(IDCANCEL);
    realEntry = std::exchange(*entry, noteFlags);
    run(command);
    *entry = realEntry;
    ASSERT_EQ(driver.seen().size(), 1U);
    EXPECT_EQ(driver.seen()[0].title, title);
    const RECT& place = driver.seen()[0].place;
    EXPECT_NEAR(place.left + place.right, GetSystemMetrics(SM_CXSCREEN), 2);
    EXPECT_NEAR(place.top + place.bottom, GetSystemMetrics(SM_CYSCREEN), 2);
    // Explorer style, long names, no box for read-only; the current folder stays.
    EXPECT_EQ(askedFlags, 0x280004U | OFN_NOCHANGEDIR);
  }
}

}  // namespace
