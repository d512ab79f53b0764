// The main window's two ways of printing, and which contact each of them prints.
#include <windows.h>

#include <gtest/gtest.h>
#include <richedit.h>

#include <optional>

#include "mainwindow/frmMain_ids.h"
#include "paper/print_dialog_win.h"
#include "paper/printer_win.h"
#include "tests/support/main_window_win.h"
#include "tests/support/print_job_win.h"
#include "tests/support/printers_win.h"
#include "tests/support/short_memory_win.h"
#include "windowing/seams_win.h"

namespace {

namespace id = mainwindow::id;
using test_support::TestPrinters;

class PrintingContacts : public test_support::MainWindowTest {
 protected:
  PrintingContacts() {
    paper::printer().select(TestPrinters::a4);
    paper::printer().select(TestPrinters::letter);
  }
  void press(int button) {
    TestPrinters::clearJobs();
    SendMessageA(form.handle(), WM_COMMAND, MAKEWPARAM(button, 0),
                 reinterpret_cast<LPARAM>(form.control(id::TBARMAIN).handle()));
  }
  void choose(int command) {
    TestPrinters::clearJobs();
    run(command);
  }
  // What stands on the only page below header and footer.
  static std::string printed() {
    const auto pages = test_support::pagesOf(TestPrinters::letterJob());
    if (pages.size() != 1) return std::to_string(pages.size()) + " pages";
    const std::string all = pages[0].joined();
    return all.substr(all.find("|1|") + 3);
  }

  std::optional<TestPrinters> printers_{std::in_place};
  int asked_ = 0;
  windowing::Replaced<std::function<BOOL(PRINTDLGA&)>> dialog_{windowing::seams().printDialog,
                                                               [this](PRINTDLGA&) -> BOOL {
                                                                 ++asked_;
                                                                 return TRUE;
                                                               }};
};

// The button prints what stands in the boxes, the menu's command the report composed last.
TEST_F(PrintingContacts, TheButtonComposesAndTheMenuDoesNot) {
  open(contactsFile({"Ash", "Birch"}));
  choose(id::PRINT);
  EXPECT_EQ(asked_, 1);
  EXPECT_EQ(printed(), "") << "nothing was composed so far";
  type(id::textItem(0), "Alder");
  type(id::textItem(22), "unsaved");
  press(id::PRINT);
  EXPECT_EQ(asked_, 1) << "the button asks nothing";
  EXPECT_EQ(printed(), " Alder|Comments: unsaved|");
  EXPECT_EQ(form.contacts().nameEntry(0), " Ash") << "printing stores nothing";
  run(id::LAST);
  form.SETSAVE("False");
  choose(id::PRINT);
  EXPECT_EQ(asked_, 2);
  EXPECT_EQ(printed(), " Alder|Comments: unsaved|");
  press(id::PRINT);
  EXPECT_EQ(printed(), " Birch|");
  EXPECT_FALSE(form.modified());
  EXPECT_TRUE(boxes.empty());
}

// Other printers are there: the menu's command says so, the button stays silent.
TEST_F(PrintingContacts, APrinterThatIsGoneIsNamedByTheMenuAlone) {
  choose(id::PRINT);
  TestPrinters::removeLetter();
  press(id::PRINT);
  EXPECT_TRUE(boxes.empty());
  choose(id::PRINT);
  EXPECT_EQ(asked_, 1);
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_NE(boxes[0].text.find(TestPrinters::letter), std::string::npos) << boxes[0].text;
}

// What a box could not take is printed as it stands in the document.
TEST_F(PrintingContacts, AContactThatIsNotShownWholeIsPrintedWhole) {
  open(contactsFile({"Ash", "Birch"}));
  {
    const test_support::RefusingBox refusing(form.control(id::textItem(0)).handle(), WM_SETTEXT, 1);
    run(id::LAST);
  }
  ASSERT_EQ(text(id::textItem(0)), "");
  press(id::PRINT);
  EXPECT_EQ(printed(), " Birch|");
}

// The properties count what would be printed.
TEST_F(PrintingContacts, ThePropertiesCountTheReportOfWhatIsOnScreen) {
  open(contactsFile({"Ash"}));
  type(id::textItem(22), "two words");
  runModal(id::PROPERTIES, [](const windowing::Form& properties) {
    EXPECT_EQ(properties.control("TXTWORDS").text(), "4");
  });
}

TEST_F(PrintingContacts, WithoutAnyPrinterBothSaySo) {
  printers_.reset();
  press(id::PRINT);
  choose(id::PRINT);
  ASSERT_EQ(boxes.size(), 2U);
  for (const test_support::Box& box : boxes)
    EXPECT_TRUE(box.text.starts_with("There is no printer installed.")) << box.text;
}

// A report that broke off is none to be printed later.
TEST_F(PrintingContacts, TooLittleMemoryForAReportIsToldAndPrintsNothing) {
  open(contactsFile({"Ash"}));
  press(id::PRINT);
  const HWND report = GetDlgItem(form.handle(), id::RTF1);
  for (const bool brokenOff : {false, true}) {
    type(id::textItem(23), brokenOff ? "x" : std::string(100'000, 'x'));
    boxes.clear();
    if (brokenOff) {
      const test_support::RefusingBox refusing(report, EM_STREAMOUT, 0);
      press(id::PRINT);
    } else {
      const test_support::ShortMemory memory(50'000);
      press(id::PRINT);
    }
    EXPECT_EQ(TestPrinters::letterJob(), "");
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text,
              "Run-time error 7:\r\n\r\nOut of memory\r\n\r\n'Print...' could not be completed.");
    choose(id::PRINT);
    EXPECT_EQ(printed(), brokenOff ? "" : " Ash|");
  }
}

}  // namespace
