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
namespace id = library::id;

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
    const Program& program = startOn(contacts_);
    original_ = bytesOf(contacts_);
    change("changed");
    return program;
  }
  void change(const std::string& text) {
    program().enter(id::textItem(0), text);
    contacts_[0][drive::surname] = text;
  }
  [[nodiscard]] std::string titleOf(const std::string& file) const {
    return "Tellary - (" + file + ")";
  }
  /// Expects the changed document still there, unsaved.
  void expectStillThere() const {
    EXPECT_EQ(program().title(), titleOf(file_()));
    EXPECT_EQ(program().status(), place(1, 3));
    EXPECT_EQ(program().text(id::textItem(0)), contacts_[0][drive::surname]);
    EXPECT_TRUE(program().modified());
    EXPECT_EQ(read(file_()), original_);
  }
  [[nodiscard]] std::string file_() const { return path("list.tly"); }
  [[nodiscard]] std::string saved() const { return bytesOf(contacts_); }

  std::vector<Contact> contacts_;
  std::string original_;
};

TEST_F(Document, NewOnAnUntitledDocumentSavesThroughSaveAs) {
  const Program& program = start();
  program.enter(id::textItem(0), "Somebody");
  program.command(id::NEW);
  EXPECT_EQ(program.answer(IDYES), saveFirst);
  Dialog dialog = program.dialog();
  EXPECT_EQ(dialog.title(), "Save As");
  EXPECT_EQ(dialog.fileName(), "");
  dialog.press(IDCANCEL);
  program.settle();
  EXPECT_EQ(program.text(id::textItem(0)), "Somebody") << "cancelling keeps the document";
  EXPECT_TRUE(program.modified());

  program.command(id::NEW);
  program.answer(IDYES);
  program.dialog().choose(path("somebody"));
  program.settle();
  expectUntitled();
  Contact contact;
  contact[drive::surname] = "Somebody";
  EXPECT_EQ(read(path("somebody.tly")), bytesOf({contact})) << "the extension is appended";
  EXPECT_FALSE(exists(path("somebody")));
}

TEST_F(Document, OpenShowsTheChosenFileAndRemembersItsFolder) {
  const std::vector<Contact> other = fullContacts(5);
  ASSERT_TRUE(CreateDirectoryA(path("sub folder").c_str(), nullptr));
  const std::string file = write("sub folder\\other.tly", bytesOf(other));
  const Program& program = startModified();
  // Cancelling either question changes nothing; the title of the first is "New" here too.
  program.command(id::OPEN);
  EXPECT_EQ(program.answer(IDCANCEL), saveFirst);
  expectStillThere();
  program.command(id::OPEN);
  EXPECT_EQ(program.answer(IDNO), saveFirst);
  Dialog dialog = program.dialog();
  EXPECT_EQ(dialog.title(), "Open");
  EXPECT_EQ(dialog.fileName(), "");
  EXPECT_EQ(dialog.folder(), folder()) << "where the document came from";
  dialog.press(IDCANCEL);
  program.settle();
  expectStillThere();
  program.command(id::SAVE);
  EXPECT_EQ(read(file_()), saved()) << "Save still knows the file";

  program.command(id::OPEN);
  program.dialog().choose(file);
  program.settle();
  EXPECT_FALSE(program.hasDialog());
  EXPECT_EQ(program.title(), titleOf(file));
  EXPECT_EQ(program.status(), place(1, 5));
  EXPECT_EQ(program.names().size(), 5U);
  EXPECT_FALSE(program.modified());
  expectShown(other[0]);
  EXPECT_EQ(setting("frmMain\\Items", "CMD Open Folder"), path("sub folder"));
  EXPECT_FALSE(setting("frmMain\\Items", "CMD Save Folder")) << "Save remembers no folder";
  program.command(id::OPEN);
  EXPECT_EQ(program.dialog().folder(), path("sub folder"));
  program.dialog().press(IDCANCEL);
}

TEST_F(Document, OpenOfABrokenFileTellsAndSaveNeverWritesOverIt) {
  std::vector<Contact> whole = fullContacts(2);
  const std::string bytes = bytesOf(whole) + "\"the rest\"\r\n";
  const std::string broken = write("broken.tly", bytes);
  const std::string rescued = path("rescued.tly");
  const Program& program = start();
  program.command(id::OPEN);
  program.dialog().choose(broken);
  const std::string told = program.answer(IDOK);
  EXPECT_TRUE(told.starts_with("Open|")) << told;
  EXPECT_THAT(told, testing::HasSubstr(broken));
  EXPECT_THAT(told, testing::HasSubstr("2 contacts"));
  EXPECT_EQ(program.title(), titleOf(broken));
  EXPECT_EQ(program.status(), place(1, 2));
  EXPECT_FALSE(program.modified());
  expectShown(whole[0]);

  program.enter(id::textItem(0), "changed");
  whole[0][drive::surname] = "changed";
  program.command(id::SAVE);
  EXPECT_EQ(program.dialog().title(), "Save As");
  EXPECT_EQ(program.dialog().fileName(), "broken.tly") << "the name without its folder";
  // The broken file itself is refused, and asked for anew.
  program.dialog().choose(broken);
  EXPECT_TRUE(program.answer(IDOK).starts_with("Save As|"));
  program.dialog().press(IDCANCEL);
  program.settle();
  EXPECT_TRUE(program.modified());
  EXPECT_EQ(read(broken), bytes);

  program.command(id::SAVE);
  program.dialog().choose(rescued);
  program.settle();
  EXPECT_EQ(program.title(), titleOf(rescued));
  EXPECT_EQ(read(rescued), bytesOf(whole));
  program.enter(id::textItem(0), "again");
  whole[0][drive::surname] = "again";
  program.command(id::SAVE);
  EXPECT_FALSE(program.hasDialog()) << "the new file is an ordinary one";
  EXPECT_EQ(read(rescued), bytesOf(whole));
  EXPECT_EQ(read(broken), bytes);
}

TEST_F(Document, SaveAsAsksBeforeOverwritingUntilItIsAnswered) {
  ASSERT_TRUE(CreateDirectoryA(path("there").c_str(), nullptr));
  const std::string taken = write("there\\taken.tly", "old");
  const Program& program = startModified();
  program.command(id::SAVEAS);
  EXPECT_EQ(program.dialog().title(), "Save As");
  EXPECT_EQ(program.dialog().fileName(), "list.tly");
  // Typed without its extension: the question is about the name that is written.
  program.dialog().choose(path("there\\taken"));
  EXPECT_EQ(program.answer(IDNO), overwrite(taken));
  EXPECT_EQ(program.dialog().title(), "Save As");
  EXPECT_EQ(program.dialog().folder(), path("there")) << "the folder of the first choice";
  EXPECT_EQ(setting("frmMain\\Items", "CMD Save Folder"), path("there"));
  program.dialog().press(IDCANCEL);
  program.settle();
  expectStillThere();
  EXPECT_EQ(read(taken), "old");

  program.command(id::SAVEAS);
  program.dialog().choose(taken);
  EXPECT_EQ(program.answer(IDYES), overwrite(taken));
  EXPECT_FALSE(program.hasDialog()) << "asked once";
  EXPECT_EQ(program.title(), titleOf(taken));
  EXPECT_FALSE(program.modified());
  EXPECT_EQ(read(taken), saved());
  EXPECT_EQ(read(file_()), original_);
  EXPECT_EQ(setting("frmMain\\Items", "CMD Open Folder"), folder()) << "opened, not saved";
  // From now on Save goes there, and an unmodified document can be saved as well.
  change("more");
  program.command(id::SAVE);
  EXPECT_EQ(read(taken), saved());
  program.command(id::SAVEAS);
  program.dialog().choose(path("copy.tly"));
  program.settle();
  EXPECT_EQ(read(path("copy.tly")), saved());
}

TEST_F(Document, ClosingAsksForUnsavedWorkInEveryWay) {
  const Program* program = &startModified();
  const auto askToClose = [&program](int way) {
    if (way == 0) PostMessageA(program->window(), WM_CLOSE, 0, 0);
    if (way == 1) PostMessageA(program->window(), WM_COMMAND, id::EXIT, 0);
    if (way == 2) program->key(VK_F4, VK_MENU);
    program->settle();
  };
  for (const int way : {0, 1, 2}) {
    askToClose(way);
    EXPECT_EQ(program->answer(IDCANCEL), saveBeforeClose(file_())) << "way " << way;
    expectStillThere();
  }
  EXPECT_FALSE(setting("frmMain\\Window", "Left")) << "no place is stored while the window stays";
  askToClose(2);
  EXPECT_EQ(program->answer(IDNO), saveBeforeClose(file_()));
  EXPECT_EQ(program->waitForEnd(), 0U);
  EXPECT_EQ(read(file_()), original_);

  program = &startModified();
  askToClose(1);
  EXPECT_EQ(program->answer(IDYES), saveBeforeClose(file_()));
  EXPECT_EQ(program->waitForEnd(), 0U);
  EXPECT_EQ(read(file_()), saved());

  program = &start(file_());
  askToClose(0);
  EXPECT_EQ(program->waitForEnd(), 0U) << "nothing to ask about";

  program = &start();
  program->enter(id::textItem(0), "x");
  askToClose(0);
  EXPECT_EQ(program->answer(IDYES), saveBeforeClose("Untitled"));
  program->dialog().press(IDCANCEL);
  program->settle();
  EXPECT_TRUE(program->modified()) << "the window stays when saving is called off";
}

// The place of the window comes back.
TEST_F(Document, ClosingStoresThePlaceOfTheWindow) {
  const Program& program = start();
  SetWindowPos(program.window(), nullptr, 123, 77, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  program.settle();
  close();
  EXPECT_TRUE(setting("frmMain\\Window", "Left"));
  RECT place{};
  GetWindowRect(start().window(), &place);
  EXPECT_EQ(place.left, 123);
  EXPECT_EQ(place.top, 77);
}

TEST_F(Document, ShutdownAsksOnceAndDiscardsNothingBeforeItsTime) {
  const Program& program = startModified();
  const auto ask = [&program] {
    return std::async(std::launch::async, [window = program.window()] {
      DWORD_PTR answer = 99;
      SendMessageTimeoutA(window, WM_QUERYENDSESSION, 0, 0, SMTO_NORMAL, drive::limit, &answer);
      return answer;
    });
  };
  auto asked = ask();
  EXPECT_EQ(program.answer(IDCANCEL), saveBeforeClose(file_()));
  EXPECT_EQ(asked.get(), 0U);
  expectStillThere();

  asked = ask();
  EXPECT_EQ(program.answer(IDNO), saveBeforeClose(file_()));
  EXPECT_EQ(asked.get(), 1U);
  expectStillThere();
  program.send(program.window(), WM_ENDSESSION, FALSE);
  expectStillThere();

  asked = ask();
  EXPECT_EQ(program.answer(IDYES), saveBeforeClose(file_()));
  EXPECT_EQ(asked.get(), 1U);
  EXPECT_FALSE(program.modified());
  EXPECT_EQ(read(file_()), saved());
  asked = ask();
  EXPECT_EQ(asked.get(), 1U) << "nothing left to ask about";
  program.send(program.window(), WM_ENDSESSION, TRUE);
  EXPECT_FALSE(program.hasDialog());
}

}  // namespace
