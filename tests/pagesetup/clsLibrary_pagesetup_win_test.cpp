// The ways into the page setup, from the real main window.
#include <gtest/gtest.h>

#include <windows.h>

#include <commctrl.h>

#include <functional>
#include <string>

#include "library/clsLibrary_win.h"
#include "library/identifiers.h"
#include "library/modLibrary_win.h"
#include "tests/support/main_window_win.h"
#include "tests/support/printers_win.h"
#include "windowing/modal_win.h"
#include "windowing/printer_win.h"

namespace pagesetup {
namespace {

using test_support::TestPrinters;
namespace id = library::id;

// What is done to the page setup once it is open; it is closed then.
std::function<void(windowing::Form&)> onOpen;

BOOL CALLBACK visitPageSetup(HWND window, LPARAM timer) {
  char caption[20] = "";
  GetWindowTextA(window, caption, sizeof caption);
  windowing::Form* const form = windowing::formOf(window);
  if (form == nullptr || !IsWindowVisible(window) || lstrcmpA(caption, "Page Setup") != 0)
    return TRUE;
  KillTimer(nullptr, static_cast<UINT_PTR>(timer));
  if (onOpen) onOpen(*form);
  PostMessageA(window, WM_CLOSE, 0, 0);
  return FALSE;
}

void CALLBACK lookForPageSetup(HWND, UINT, UINT_PTR timer, DWORD) {
  EnumThreadWindows(GetCurrentThreadId(), visitPageSetup, static_cast<LPARAM>(timer));
}

class PageSetupCommands : public test_support::MainWindowTest {
 protected:
  PageSetupCommands() {
    windowing::setMainWindow(form.handle());
    library::modLibrary().orientation.clear();
    library::modLibrary().paperCode.clear();
  }
  ~PageSetupCommands() override { onOpen = nullptr; }
};

TEST_F(PageSetupCommands, OpenTheirTabAboveTheMainWindow) {
  const TestPrinters printers;
  windowing::printer().select(TestPrinters::a4);
  windowing::printer().select(TestPrinters::letter);
  form.show();
  for (const auto& [command, tab] : {std::pair{id::PAGESETUP, 0}, {id::HEADERFOOTER, 1}}) {
    std::string whileLoading = "(not loaded)";
    HCURSOR pointer = nullptr;
    const auto mapped = windowing::seams().settingsRoot;
    const windowing::Replaced watching(windowing::seams().settingsRoot, [&](HKEY root) {
      if (whileLoading == "(not loaded)") {
        whileLoading = status();
        pointer = GetCursor();
      }
      return mapped(root);
    });
    int seen = 0;
    onOpen = [&, shown = tab](windowing::Form& setup) {
      ++seen;
      EXPECT_EQ(setup.control(id::psetup::TABSTRIP1).send(TCM_GETCURSEL), shown);
      EXPECT_EQ(setup.control(id::psetup::FRAMHEADERFOOTER).visible(), shown == 1);
      EXPECT_EQ(setup.control(id::psetup::FRAMPAGE).visible(), shown == 0);
      EXPECT_FALSE(IsWindowEnabled(form.handle()));
      EXPECT_EQ(GetWindow(setup.handle(), GW_OWNER), form.handle());
      EXPECT_EQ(status(), "");
      EXPECT_NE(GetCursor(), LoadCursorA(nullptr, IDC_WAIT));
    };
    SetTimer(nullptr, 0, 10, lookForPageSetup);
    run(command);
    EXPECT_EQ(seen, 1) << command;
    EXPECT_EQ(whileLoading, "Obtaining settings...");
    EXPECT_EQ(pointer, LoadCursorA(nullptr, IDC_WAIT));
    EXPECT_TRUE(IsWindowEnabled(form.handle()));
  }
  EXPECT_TRUE(boxes.empty());
}

TEST_F(PageSetupCommands, WithoutAPrinterTheUserIsToldAndTheDialogOpensWithEmptyLists) {
  ASSERT_TRUE(windowing::printerNames().empty());
  form.show();
  for (const int command : {id::PAGESETUP, id::HEADERFOOTER}) {
    boxes.clear();
    int seen = 0;
    onOpen = [&](windowing::Form& setup) {
      ++seen;
      EXPECT_EQ(setup.control(id::psetup::CBOPRINTERS).send(CB_GETCOUNT), 0);
      EXPECT_EQ(setup.control(id::psetup::UDNLEFT).text(), "1.0");
      EXPECT_FALSE(setup.control(id::psetup::BTNOK).enabled());
      setup.control(id::psetup::UDNLEFT).setText("1.5");
      setup.control(id::psetup::BTNOK).send(BM_CLICK);
    };
    SetTimer(nullptr, 0, 10, lookForPageSetup);
    run(command);
    EXPECT_EQ(seen, 1) << command;
    EXPECT_EQ(test_support::ScratchRegistry::text(
                  registry.user(), "SOFTWARE\\Zandor Software Development\\GLOBAL\\frmPPrev\\Items",
                  "Page Margin 0"),
              "1.5");
    RegDeleteTreeA(registry.user(), "SOFTWARE\\Zandor Software Development\\GLOBAL");
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_NE(boxes[0].text.find("no printer installed"), std::string::npos) << boxes[0].text;
    EXPECT_EQ(status(), "");
  }
}

TEST(PrinterUnits, PixelsBecomeInchesByTheResolutionOfThePrinter) {
  const TestPrinters printers;
  windowing::printer().select(TestPrinters::a4);
  windowing::printer().select(TestPrinters::letter);
  EXPECT_DOUBLE_EQ(library::LIBRARY().SHOWUNITS(600, false), 1);
  EXPECT_DOUBLE_EQ(library::LIBRARY().SHOWUNITS(-150, true), -0.25);
  windowing::printer().select(TestPrinters::a4);
  EXPECT_DOUBLE_EQ(library::LIBRARY().SHOWUNITS(600, true), 2);
}

}  // namespace
}  // namespace pagesetup
