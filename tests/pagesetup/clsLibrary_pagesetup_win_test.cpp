// The ways into the page setup, from the real main window.
#include <gtest/gtest.h>

#include <windows.h>

#include <commctrl.h>

#include <string>

#include "library/modLibrary_win.h"
#include "mainwindow/frmMain_ids.h"
#include "pagesetup/frmPSetup_ids.h"
#include "paper/printer_win.h"
#include "tests/support/main_window_win.h"
#include "tests/support/printers_win.h"

namespace pagesetup {
namespace {

using test_support::TestPrinters;

class PageSetupCommands : public test_support::MainWindowTest {
 protected:
  PageSetupCommands() {
    library::modLibrary().orientation.clear();
    library::modLibrary().paperCode.clear();
    form.show();
  }
};

TEST_F(PageSetupCommands, OpenTheirTabAboveTheMainWindow) {
  const TestPrinters printers;
  paper::printer().select(TestPrinters::a4);
  paper::printer().select(TestPrinters::letter);
  for (const auto& [command, tab] :
       {std::pair{mainwindow::id::PAGESETUP, 0}, {mainwindow::id::HEADERFOOTER, 1}}) {
    std::string whileLoading;
    HCURSOR pointer = nullptr;
    const windowing::Replaced watching(windowing::seams().settingsRoot,
                                       [&, mapped = windowing::seams().settingsRoot](HKEY root) {
                                         if (whileLoading.empty()) {
                                           whileLoading = status();
                                           pointer = GetCursor();
                                         }
                                         return mapped(root);
                                       });
    runModal(command, [&, shown = tab](const windowing::Form& setup) {
      EXPECT_EQ(setup.control(pagesetup::id::TABSTRIP1).send(TCM_GETCURSEL), shown);
      EXPECT_EQ(setup.control(pagesetup::id::FRAMHEADERFOOTER).visible(), shown == 1);
      EXPECT_EQ(setup.control(pagesetup::id::FRAMPAGE).visible(), shown == 0);
      EXPECT_FALSE(IsWindowEnabled(form.handle()));
      EXPECT_EQ(GetWindow(setup.handle(), GW_OWNER), form.handle());
      EXPECT_EQ(status(), "");
      EXPECT_NE(GetCursor(), LoadCursorA(nullptr, IDC_WAIT));
    });
    EXPECT_EQ(whileLoading, "Obtaining settings...");
    EXPECT_EQ(pointer, LoadCursorA(nullptr, IDC_WAIT));
    EXPECT_TRUE(IsWindowEnabled(form.handle()));
    EXPECT_EQ(status(), "");
  }
  EXPECT_TRUE(boxes.empty());
}

TEST_F(PageSetupCommands, WithoutAPrinterTheUserIsToldAndTheMarginsCanBeSet) {
  ASSERT_TRUE(paper::printerNames().empty());
  runModal(mainwindow::id::PAGESETUP, [](const windowing::Form& setup) {
    EXPECT_EQ(setup.control(pagesetup::id::CBOPRINTERS).send(CB_GETCOUNT), 0);
    EXPECT_EQ(setup.control(pagesetup::id::UDNLEFT).text(), "1.0");
    EXPECT_FALSE(setup.control(pagesetup::id::BTNOK).enabled());
    setup.control(pagesetup::id::UDNLEFT).setText("1.5");
    setup.control(pagesetup::id::BTNOK).send(BM_CLICK);
  });
  EXPECT_EQ(registry.stored(library::Setting::leftMargin), "1.5");
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_NE(boxes[0].text.find("no printer installed"), std::string::npos) << boxes[0].text;
}

}  // namespace
}  // namespace pagesetup
