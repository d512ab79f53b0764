// Menus, keys, toolbar and tabs: every way to a command, and which of them are open.
#include "tests/app/support/fixture_win.h"

namespace {

using drive::bytesOf;
using drive::fullContacts;
using drive::place;
using drive::Program;
namespace id = library::id;

constexpr int surnameBox = id::textItem(0);
constexpr int namesBox = id::textItem(1);
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
      {surnameBox, VK_NEXT, none, 3, 3},       {surnameBox, VK_PRIOR, none, 1, 3},
      {surnameBox, VK_HOME, none, 2, 3},       {surnameBox, VK_END, none, 2, 3},
      {surnameBox, VK_DELETE, ctrl, 2, 3},     {surnameBox, VK_DELETE, none, 2, 3},
      {surnameBox, VK_INSERT, none, 4, 4},     {surnameBox, VK_INSERT, ctrl, 2, 3},
      {id::CBOPEMAIL, VK_NEXT, none, 3, 3},    {id::CBOPEMAIL, VK_HOME, none, 2, 3},
      {commentsBox, VK_NEXT, none, 2, 3},      {commentsBox, VK_PRIOR, none, 2, 3},
      {commentsBox, VK_HOME, none, 2, 3},      {commentsBox, VK_END, none, 2, 3},
      {commentsBox, VK_DELETE, ctrl, 2, 3},    {commentsBox, VK_INSERT, none, 4, 4},
      {id::CBOTBARBOX, VK_HOME, none, 1, 3},   {id::CBOTBARBOX, VK_END, none, 3, 3},
      {id::CBOTBARBOX, VK_DELETE, ctrl, 2, 2}, {id::CBOTBARBOX, VK_INSERT, none, 4, 4},
      {id::TABMAIN, VK_NEXT, none, 3, 3},      {id::TABMAIN, VK_PRIOR, none, 1, 3},
      {id::TABMAIN, VK_HOME, none, 1, 3},      {id::TABMAIN, VK_END, none, 3, 3},
      {id::TABMAIN, VK_DELETE, none, 2, 3},    {id::TABMAIN, VK_DELETE, ctrl, 2, 2},
      {id::TABMAIN, VK_INSERT, none, 4, 4},
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
}

TEST_F(Commands, HeldKeysRepeatMovingButNotAddingAndRemoving) {
  const Program& program = startOn(fullContacts(6));
  program.focusOn(id::TABMAIN);
  program.holdKey(VK_NEXT, 3);
  EXPECT_EQ(program.status(), place(4, 6));
  program.holdKey(VK_NEXT, 9);
  EXPECT_EQ(program.status(), place(6, 6));
  program.holdKey(VK_PRIOR, 4);
  EXPECT_EQ(program.status(), place(2, 6));
  program.holdKey(VK_DELETE, 4, VK_CONTROL);
  EXPECT_EQ(program.status(), place(2, 5));
  program.holdKey(VK_INSERT, 4);
  EXPECT_EQ(program.status(), place(6, 6));
}

TEST_F(Commands, MenusAndToolbarFollowTheContactOnScreen) {
  const struct {
    int count, current;
    const char* open;  // remove, print, first, previous, next, last
  } rows[] = {{2, 1, "110011"}, {3, 2, "111111"}, {3, 3, "111100"}, {0, 0, "000000"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(place(row.current, row.count));
    const Program& program = startOn(fullContacts(row.count));
    for (int step = 1; step < row.current; ++step) program.command(id::NEXT);
    std::string open;
    for (const int command : {id::REMOVE, id::PRINT, id::FIRST, id::PREVIOUS, id::NEXT, id::LAST})
      open += program.buttonEnabled(command) ? '1' : '0';
    EXPECT_EQ(open, row.open);
    EXPECT_EQ(program.enabled(id::CBOTBARBOX), row.count > 0);
    // The command itself is closed as well, not only its button.
    const std::string status = program.status();
    if (open[4] == '0') program.command(id::NEXT);
    if (open[0] == '0') program.command(id::REMOVE);
    EXPECT_EQ(program.status(), status);
    EXPECT_FALSE(program.modified());
  }
}

TEST_F(Commands, MenusOpenByTheirAccessKeysAndDescribeTheirItems) {
  const Program& program = startOn(fullContacts(3));
  program.pointAway();
  program.key('G', VK_MENU);
  EXPECT_EQ(program.status(), "Show the first page.");
  program.key('L');
  EXPECT_EQ(program.status(), place(3, 3));
  program.key('E', VK_MENU);
  program.key('R');
  EXPECT_EQ(program.status(), place(2, 2));
  program.clickButton(id::FIRST);
  program.pointAway();
  EXPECT_EQ(program.chosenName(), 0);
  program.clickButton(id::SAVE);
  EXPECT_FALSE(program.modified());
  program.key('F', VK_MENU);
  program.key('X');
  program.waitForEnd();
}

TEST_F(Commands, EnterAndEscapeInABoxAreNoCommands) {
  const Program& program = startOn(fullContacts(2));
  for (const WORD key : {WORD{VK_RETURN}, WORD{VK_ESCAPE}}) {
    program.focusOn(surnameBox);
    program.key(key);
    EXPECT_FALSE(program.modified());
    EXPECT_FALSE(program.hasDialog());
    EXPECT_EQ(program.status(), place(1, 2));
  }
  program.enter(commentsBox, "");
  program.focusOn(commentsBox);
  program.type("one");
  program.key(VK_RETURN);
  program.type("Two!");
  EXPECT_EQ(program.text(commentsBox), "one\r\nTwo!");
}

TEST_F(Commands, TypingReplacesASelectedBoxAndTheNameFollows) {
  const Program& program = startOn(fullContacts(2));
  program.command(id::NEXT);
  program.focusOn(namesBox);
  program.key(VK_TAB);
  program.type("Wu");
  EXPECT_EQ(program.text(surnameBox), "Wu");
  EXPECT_EQ(program.names()[1], "c2 field 2 Wu");
  EXPECT_EQ(program.chosenName(), 1);
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
  const Program& program = startOn(fullContacts(2));
  program.bringToFront();
  for (std::size_t page = 0; page < std::size(orders); ++page) {
    SCOPED_TRACE("page " + std::to_string(page));
    program.clickTab(static_cast<int>(page));
    program.focusOn(orders[page].front());
    std::vector<int> reached{program.focus()};
    while (reached.size() < orders[page].size()) {
      program.key(VK_TAB);
      reached.push_back(program.focus());
    }
    EXPECT_EQ(reached, orders[page]);
    program.key(VK_TAB, VK_SHIFT);
    EXPECT_EQ(program.focus(), orders[page][orders[page].size() - 2]) << "backwards";
  }
  EXPECT_FALSE(program.modified());
}

TEST_F(Commands, TabsShowExactlyTheirPage) {
  const Program& program = start();
  const auto expectPage = [&program](int page) {
    EXPECT_EQ(program.page(), page);
    const int frames[] = {id::FRAMGENERAL, id::FRAMADDRESS, id::FRAMADDRESSWORK};
    for (int i = 0; i < 3; ++i) EXPECT_EQ(program.visible(frames[i]), i == page) << i;
  };
  expectPage(0);
  EXPECT_EQ(program.focus(), namesBox) << "ready to type";
  for (const int page : {2, 1, 0, 1}) {
    program.clickTab(page);
    expectPage(page);
  }
  program.focusOn(id::textItem(9));
  program.clickTab(2);
  EXPECT_EQ(program.focus(), id::TABMAIN) << "the focus leaves a hidden page";
  for (const auto& [key, page] : {std::pair<WORD, int>{VK_LEFT, 1}, {VK_LEFT, 0}, {VK_RIGHT, 1}}) {
    program.key(key);
    expectPage(page);
  }
}

TEST_F(Commands, AccessKeysGoToTheBoxesOfTheVisiblePage) {
  const struct {
    int page;
    WORD key;
    int box;
  } rows[] = {{0, 'N', namesBox},           {0, 'S', surnameBox},       {0, 'D', id::textItem(2)},
              {0, 'J', id::textItem(3)},    {0, 'T', id::textItem(21)}, {0, 'C', commentsBox},
              {1, 'A', id::textItem(6)},    {1, 'I', id::textItem(8)},  {1, 'M', id::CBOPEMAIL},
              {1, 'W', id::CBOPWEBSITE},    {1, 'S', id::TABMAIN},      {2, 'C', id::textItem(23)},
              {2, 'A', id::textItem(13)},   {2, 'X', id::textItem(19)}, {2, 'M', id::CBOPWORKEMAIL},
              {2, 'W', id::CBOPWORKWEBSITE}};
  const Program& program = start();
  for (const auto& row : rows) {
    SCOPED_TRACE(std::string("page ") + std::to_string(row.page) + ", " +
                 static_cast<char>(row.key));
    program.clickTab(row.page);
    program.focusOn(id::TABMAIN);
    program.key(row.key, VK_MENU);
    EXPECT_EQ(program.focus(), row.box);
  }
}

TEST_F(Commands, PointingAtTheToolbarDescribesItsCommands) {
  const Program& program = startOn(fullContacts(3));
  program.bringToFront();
  const struct {
    int command;
    const char* description;
    const char* tip;
  } rows[] = {{id::NEW, "Create a new tellary.", "New"},
              {id::SAVEAS, "Save current tellary under a new name.", "Save As"},
              {id::PRINTPREVIEW, "Show a preview before printing.", "Print Preview"},
              {id::LAST, "Show the last page.", "Last Page"}};
  for (const auto& row : rows) {
    program.hover(row.command);
    EXPECT_EQ(program.status(), row.description);
  }
  EXPECT_EQ(program.tooltip(), "Last Page");
  program.pointAway();
  drive::waitFor("the description to go", [&program] { return program.status().empty(); });
  program.command(id::NEXT);
  EXPECT_EQ(program.status(), place(2, 3));
}

TEST_F(Commands, HiddenBarsStayHiddenOverARestart) {
  const auto height = [this] {
    RECT window{};
    GetWindowRect(program().window(), &window);
    return window.bottom - window.top;
  };
  const auto stored = [](const char* value) { return setting("frmMain\\View", value); };
  start();
  EXPECT_FALSE(stored("Status Bar")) << "stored when switched, not before";
  const LONG full = height();
  const int dpi = GetDeviceCaps(GetDC(nullptr), LOGPIXELSY);
  const auto pixels = [dpi](int twips) { return twips * dpi / 1440; };

  program().command(id::STATUSBAR);
  EXPECT_FALSE(program().visible(id::SBMAIN));
  EXPECT_EQ(stored("Status Bar"), "False");
  EXPECT_EQ(stored("Standard Toolbar"), "True");
  EXPECT_EQ(height(), full - pixels(330));
  close();
  start();
  EXPECT_FALSE(program().visible(id::SBMAIN));
  EXPECT_TRUE(program().visible(id::PICMAINTBAR));
  program().command(id::STANDARDBAR);
  EXPECT_FALSE(program().visible(id::TBARMAIN));
  EXPECT_FALSE(program().visible(id::CBOTBARBOX));
  EXPECT_EQ(stored("Standard Toolbar"), "False");
  EXPECT_EQ(height(), full - pixels(330) - pixels(480));
  close();
  start();
  EXPECT_FALSE(program().visible(id::PICMAINTBAR));
  // The hidden status bar stays in step with what it would show.
  program().command(id::ADD);
  program().command(id::STATUSBAR);
  program().command(id::STANDARDBAR);
  EXPECT_EQ(program().status(), place(2, 2));
  EXPECT_EQ(height(), full) << "nothing creeps";
  EXPECT_EQ(stored("Status Bar"), "True");
  EXPECT_EQ(stored("Standard Toolbar"), "True");
}

// Without a contact every box is closed, yet the keyboard still reaches the commands.
TEST_F(Commands, TheKeyboardLivesOnAnEmptyDocument) {
  const Program& program = start();
  program.focusOn(surnameBox);
  program.command(id::REMOVE);
  EXPECT_EQ(program.status(), "");
  EXPECT_EQ(program.focus(), id::TABMAIN);
  program.key(VK_INSERT);
  EXPECT_EQ(program.status(), place(1, 1));
  EXPECT_EQ(program.focus(), namesBox);
}

}  // namespace
