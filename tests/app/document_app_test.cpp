// New, Open, Save, Save As, Exit, and everything they ask.
#include <future>

#include "tests/app/support/fixture_win.h"

namespace {

using drive::bytesOf;
using drive::Contact;
using drive::Dialog;
using drive::fullContacts;
using drive::place;
using drive::Program;
namespace id = mainwindow::id;

constexpr char saveFirst[] = "New|You have unsaved work, do you want to save first ?";

std::string saveBeforeClose(const std::string& name) {
  return "Tellary|Do you wish to save '" + name + "' before you close ?";
}

std::string overwrite(const std::string& file) {
  return "Save As|The document '" + file +
         "' already exists.\r\nDo you really want to overwrite this ?";
}

class Document : public drive::AppTest {
 protected:
  /// Starts on three contacts and changes the first; `contacts_` is what is on screen.
  const Program& startModified() {
    contacts_ = fullContacts(3);
    startOn(contacts_);
    change("changed");
    return program();
  }
  void change(const std::string& text) {
    program().enter(id::textItem(0), text);
    contacts_[0][drive::surname] = text;
  }
  /// Chooses a file in the dialog that is open.
  void choose(const std::string& file) {
    program().dialog().choose(file);
    program().settle();
  }
  /// Cancels a file dialog, which has to have this title and propose this name.
  void cancel(const std::string& title, const std::string& fileName) {
    const Dialog dialog = program().dialog();
    EXPECT_EQ(dialog.title(), title);
    EXPECT_EQ(dialog.fileName(), fileName);
    dialog.press(IDCANCEL);
    program().settle();
  }
  /// Expects the changed document still there, unsaved.
  void expectStillThere() const {
    EXPECT_EQ(program().title(), titleOf(file_));
    EXPECT_EQ(program().status(), place(1, 3));
    EXPECT_EQ(program().text(id::textItem(0)), contacts_[0][drive::surname]);
    EXPECT_TRUE(program().modified());
    EXPECT_EQ(read(file_), original_);
  }
  [[nodiscard]] std::string saved() const { return bytesOf(contacts_); }

  std::vector<Contact> contacts_;
  const std::string file_ = path("list.tly");
  const std::string original_ = bytesOf(fullContacts(3));
};

TEST_F(Document, NewOnAnUntitledDocumentSavesThroughSaveAs) {
  const Program& program = start();
  program.enter(id::textItem(0), "Somebody");
  program.command(id::NEW);
  EXPECT_EQ(program.answer(IDYES), saveFirst);
  cancel("Save As", "");
  EXPECT_EQ(program.text(id::textItem(0)), "Somebody") << "cancelling keeps the document";
  EXPECT_TRUE(program.modified());

  program.command(id::NEW);
  program.answer(IDYES);
  choose(path("somebody"));
  expectUntitled();
  Contact contact;
  contact[drive::surname] = "Somebody";
  EXPECT_EQ(read(path("somebody.tly")), bytesOf({contact})) << "the extension is appended";
  EXPECT_FALSE(read(path("somebody")));
}

TEST_F(Document, OpenAsksFirstShowsTheChosenFileAndRemembersItsFolder) {
  ASSERT_TRUE(CreateDirectoryA(path("sub folder").c_str(), nullptr));
  const std::string file = write("sub folder\\other.tly", bytesOf(fullContacts(5)));
  const Program& program = startModified();
  // Cancelling either question changes nothing; the title of the first is "New" here too.
  program.command(id::OPEN);
  EXPECT_EQ(program.answer(IDCANCEL), saveFirst);
  expectStillThere();
  program.command(id::OPEN);
  EXPECT_EQ(program.answer(IDNO), saveFirst);
  EXPECT_EQ(program.dialog().folder(), folder()) << "where the document came from";
  cancel("Open", "");
  expectStillThere();
  program.command(id::SAVE);
  EXPECT_EQ(read(file_), saved()) << "Save still knows the file";

  program.command(id::OPEN);
  choose(file);
  EXPECT_EQ(program.title(), titleOf(file));
  EXPECT_EQ(program.status(), place(1, 5));
  EXPECT_FALSE(program.modified());
  expectShown(fullContacts(1)[0]);
  EXPECT_EQ(setting("frmMain\\Items", "CMD Open Folder"), path("sub folder"));
  EXPECT_EQ(setting("frmMain\\Items", "CMD Save Folder"), "(none)") << "Save remembers no folder";
}

TEST_F(Document, SaveAsAsksBeforeOverwritingUntilItIsAnswered) {
  ASSERT_TRUE(CreateDirectoryA(path("there").c_str(), nullptr));
  const std::string taken = write("there\\taken.tly", "old");
  const Program& program = startModified();
  program.command(id::SAVEAS);
  EXPECT_EQ(program.dialog().fileName(), "list.tly");
  // Typed without its extension: the question is about the name that is written.
  program.dialog().choose(path("there\\taken"));
  EXPECT_EQ(program.answer(IDNO), overwrite(taken));
  EXPECT_EQ(program.dialog().folder(), path("there")) << "the folder of the first choice";
  EXPECT_EQ(setting("frmMain\\Items", "CMD Save Folder"), path("there"));
  cancel("Save As", "list.tly");
  expectStillThere();
  EXPECT_EQ(read(taken), "old");

  program.command(id::SAVEAS);
  program.dialog().choose(taken);
  EXPECT_EQ(program.answer(IDYES), overwrite(taken));
  EXPECT_FALSE(program.hasDialog()) << "asked once";
  EXPECT_EQ(program.title(), titleOf(taken));
  EXPECT_FALSE(program.modified());
  EXPECT_EQ(read(file_), original_);
  // From now on Save goes there.
  change("more");
  program.command(id::SAVE);
  EXPECT_EQ(read(taken), saved());
}

TEST_F(Document, ClosingAsksForUnsavedWorkInEveryWay) {
  const auto askToClose = [this](int way) {
    if (way == 0) PostMessageA(program().window(), WM_CLOSE, 0, 0);
    if (way == 1) PostMessageA(program().window(), WM_COMMAND, id::EXIT, 0);
    if (way == 2) program().key(VK_F4, VK_MENU);
    program().settle();
  };
  startModified();
  for (const int way : {0, 1, 2}) {
    askToClose(way);
    EXPECT_EQ(program().answer(IDCANCEL), saveBeforeClose(file_)) << "way " << way;
    expectStillThere();
  }
  EXPECT_EQ(setting("frmMain\\Window", "Left"), "(none)")
      << "no place is stored while the window stays";
  for (const int answer : {IDNO, IDYES}) {
    startModified();
    askToClose(2);
    EXPECT_EQ(program().answer(answer), saveBeforeClose(file_));
    EXPECT_EQ(program().waitForEnd(), 0U);
    EXPECT_EQ(read(file_), answer == IDYES ? saved() : original_);
  }
  start();
  program().enter(id::textItem(0), "x");
  askToClose(0);
  EXPECT_EQ(program().answer(IDYES), saveBeforeClose("Untitled"));
  cancel("Save As", "");
  EXPECT_TRUE(program().modified()) << "the window stays when saving is called off";
}

TEST_F(Document, ShutdownAsksOnceAndDiscardsNothingBeforeItsTime) {
  const Program& program = startModified();
  // What Windows is told when the box that it brings up is answered with `button`.
  const auto shutdown = [&](int button) {
    auto asked = std::async(std::launch::async, [window = program.window()] {
      DWORD_PTR answer = 99;
      SendMessageTimeoutA(window, WM_QUERYENDSESSION, 0, 0, SMTO_NORMAL, drive::limit, &answer);
      return answer;
    });
    if (button != 0) {
      EXPECT_EQ(program.answer(button), saveBeforeClose(file_));
    }
    return asked.get();
  };
  EXPECT_EQ(shutdown(IDCANCEL), 0U);
  EXPECT_EQ(shutdown(IDNO), 1U);
  program.send(program.window(), WM_ENDSESSION, FALSE);
  expectStillThere();
  EXPECT_EQ(shutdown(IDYES), 1U);
  EXPECT_EQ(read(file_), saved());
  EXPECT_EQ(shutdown(0), 1U) << "nothing left to ask about";
}

}  // namespace
