// Starting, with and without a document.
#include "tests/app/support/fixture_win.h"

namespace {

using drive::Contact;
using drive::place;
using drive::Program;
namespace id = library::id;

class Start : public drive::AppTest {};

TEST_F(Start, WithoutArgumentsShowsAnEmptyUntitledDocument) {
  const Program& program = start();
  expectUntitled();
  for (const int box : drive::boxOf) EXPECT_TRUE(program.enabled(box)) << box;
  EXPECT_EQ(program.page(), 0);
  // Save is not available: it does nothing.
  program.command(id::SAVE);
  EXPECT_FALSE(program.hasDialog());
  EXPECT_FALSE(setting("frmMain\\Items", "CMD Open Folder"));
  close();
}

}  // namespace
