// One print job, from the toolbar's button to the printer's file.
#include "tests/app/support/fixture_win.h"
#include "tests/support/print_job_win.h"
#include "tests/support/printers_win.h"

namespace {

using test_support::TestPrinters;

class Printing : public drive::AppTest {};

TEST_F(Printing, TheButtonPrintsTheContactOnScreen) {
  const TestPrinters printers;
  const drive::Program& program = startOn(drive::fullContacts(2));
  program.command(mainwindow::id::NEXT);
  program.enter(drive::boxOf[drive::surname], "Wu");
  program.clickButton(mainwindow::id::PRINT);
  EXPECT_FALSE(program.hasDialog()) << "the button asks nothing";
  const auto pages = test_support::pagesOf(TestPrinters::letterJob());
  ASSERT_EQ(pages.size(), 1U);
  EXPECT_THAT(pages[0].joined(), testing::HasSubstr("|c2 field 2 Wu|"));
}

}  // namespace
