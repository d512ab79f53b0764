// Menus, keys, toolbar and tabs: every way to a command, and where the keyboard goes.
#include "tests/app/support/fixture_win.h"

namespace {

using drive::fullContacts;
using drive::place;
using drive::Program;
namespace id = mainwindow::id;

constexpr int surnameBox = id::textItem(0);
constexpr int commentsBox = id::textItem(22);

class Commands : public drive::AppTest {};

// A key that means something to the control with the focus stays with it.
TEST_F(Commands, ShortcutsWorkFromEveryControl) {
  constexpr int none = 0, ctrl = VK_CONTROL;
  const struct {
    int focus;
    WORD key;
    WORD with;
    int shown, count;  // contact on screen (from 1) and their number, from 2 of 3
  } rows[] = {
      {surnameBox, VK_NEXT, none, 3, 3},    {surnameBox, VK_HOME, none, 2, 3},
      {surnameBox, VK_DELETE, ctrl, 2, 3},  {surnameBox, VK_INSERT, none, 4, 4},
      {surnameBox, VK_INSERT, ctrl, 2, 3},  {id::CBOPEMAIL, VK_PRIOR, none, 1, 3},
      {id::CBOPEMAIL, VK_HOME, none, 2, 3}, {commentsBox, VK_NEXT, none, 2, 3},
      {commentsBox, VK_DELETE, ctrl, 2, 3}, {commentsBox, VK_INSERT, none, 4, 4},
      {id::CBOTBARBOX, VK_END, none, 3, 3}, {id::CBOTBARBOX, VK_DELETE, ctrl, 2, 2},
      {id::TABMAIN, VK_HOME, none, 1, 3},   {id::TABMAIN, VK_END, none, 3, 3},
      {id::TABMAIN, VK_DELETE, none, 2, 3}, {id::TABMAIN, VK_DELETE, ctrl, 2, 2},
  };
  startOn(fullContacts(3));
  for (const auto& row : rows) {
    SCOPED_TRACE("key " + std::to_string(row.key) + " with " + std::to_string(row.with) + " in " +
                 std::to_string(row.focus));
    if (program().names().size() != 3) startOn(fullContacts(3));
    program().command(id::FIRST);
    program().command(id::NEXT);
    program().clickTab(row.focus == id::CBOPEMAIL ? 1 : 0);
    program().focusOn(row.focus);
    program().key(row.key, row.with);
    EXPECT_EQ(program().status(), place(row.shown, row.count));
  }
  // Held keys repeat moving, but not adding and removing.
  startOn(fullContacts(6));
  program().focusOn(id::TABMAIN);
  program().holdKey(VK_NEXT, 3);
  EXPECT_EQ(program().status(), place(4, 6));
  program().holdKey(VK_DELETE, 4, VK_CONTROL);
  EXPECT_EQ(program().status(), place(4, 5));
  program().holdKey(VK_INSERT, 4);
  EXPECT_EQ(program().status(), place(6, 6));
}

TEST_F(Commands, MenusOpenByTheirAccessKeysAndDescribeTheirItems) {
  const Program& program = startOn(fullContacts(3));
  program.pointAway();
  program.key('G', VK_MENU);
  EXPECT_EQ(program.status(), "Show the first page.");
  program.key('L');
  EXPECT_EQ(program.status(), place(3, 3));
  program.clickButton(id::FIRST);
  EXPECT_EQ(program.chosenName(), 0);
  program.hover(id::SAVEAS);
  EXPECT_EQ(program.status(), "Save current tellary under a new name.");
  program.pointAway();
  drive::waitFor("the description to go", [&program] { return program.status().empty(); });
  program.key('F', VK_MENU);
  program.key('X');
  program.waitForEnd();
}

TEST_F(Commands, TheTabKeyGoesThroughEachPageFromTopToBottom) {
  const auto box = [](int item) { return id::textItem(item); };
  const std::vector<int> orders[] = {
      {box(1), box(0), box(2), box(3), box(4), box(5), box(20), box(21), box(22), id::CBOTBARBOX,
       id::TABMAIN, box(1)},
      {id::TABMAIN, box(6), box(7), box(8), box(9), box(10), box(11), box(12), id::CBOPEMAIL,
       id::CBOPWEBSITE, id::CBOTBARBOX},
      {id::TABMAIN, box(23), box(13), box(14), box(15), box(16), box(17), box(18), box(19),
       id::CBOPWORKEMAIL, id::CBOPWORKWEBSITE, id::CBOTBARBOX}};
  const int frames[] = {id::FRAMGENERAL, id::FRAMADDRESS, id::FRAMADDRESSWORK};
  const Program& program = startOn(fullContacts(2));
  for (int page = 0; page < 3; ++page) {
    SCOPED_TRACE("page " + std::to_string(page));
    program.clickTab(page);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(program.visible(frames[i]), i == page) << i;
    const std::vector<int>& order = orders[page];
    program.focusOn(order.front());
    std::vector<int> reached{program.focus()};
    while (reached.size() < order.size()) {
      program.key(VK_TAB);
      reached.push_back(program.focus());
    }
    EXPECT_EQ(reached, order);
    program.key(VK_TAB, VK_SHIFT);
    EXPECT_EQ(program.focus(), order[order.size() - 2]) << "backwards";
  }
  program.focusOn(box(14));
  program.clickTab(1);
  EXPECT_EQ(program.focus(), id::TABMAIN) << "the focus leaves a hidden page";
  program.key('S', VK_MENU);
  EXPECT_EQ(program.focus(), id::TABMAIN) << "an access key of a hidden page";
  program.key('M', VK_MENU);
  EXPECT_EQ(program.focus(), id::CBOPEMAIL);
  EXPECT_FALSE(program.modified());
}

TEST_F(Commands, WhatIsTypedGoesIntoTheBoxAndTheNameFollows) {
  const Program& program = startOn(fullContacts(2));
  program.focusOn(id::textItem(1));
  program.key(VK_RETURN);
  program.key(VK_ESCAPE);
  EXPECT_FALSE(program.modified() || program.hasDialog());
  program.key(VK_TAB);
  program.type("Wu");
  EXPECT_EQ(program.text(surnameBox), "Wu") << "typing replaces what was there";
  EXPECT_EQ(program.names()[0], "c1 field 2 Wu");
  program.enter(commentsBox, "one");
  program.focusOn(commentsBox);
  program.key(VK_RETURN);
  program.key(VK_ESCAPE);
  EXPECT_EQ(program.text(commentsBox).size(), 5U)
      << "Enter breaks the line there, Esc does nothing";
}

}  // namespace
