// What the main window makes of a document that cannot be written, or was not read whole.
#include <gtest/gtest.h>

#include "document/fields.h"
#include "mainwindow/frmMain_ids.h"
#include "tests/support/failing_files_win.h"
#include "tests/support/main_window_win.h"

namespace mainwindow {
namespace {

using support::bytesOf;
using support::FailingFiles;
using support::Failure;
using support::putFile;
using test_support::ScratchFolder;

std::string contacts(int count, const std::string& mark) {
  std::string text;
  for (int i = 0; i < count; ++i)
    for (int line = 0; line < document::fieldCount; ++line)
      text += '"' + mark + std::to_string(i) + "\"\r\n";
  return text;
}

/// The document with another job title, the fourth text, in its first contact.
std::string withJobTitle(const std::string& document, const std::string& title) {
  const std::size_t lineSize = document.find('\n') + 1;
  return document.substr(0, 3 * lineSize) + '"' + title + "\"\r\n" + document.substr(4 * lineSize);
}

class Saving : public test_support::MainWindowTest {
 protected:
  Saving() { form.setFileCalls(calls_); }
  ~Saving() override {
    form.SETSAVE("False");
    form.unload();  // while its file calls are there
  }

  void open(const std::string& content) {
    calls_.failAt(0);
    putFile(path_, content);
    form.openNamedAtStart(path_);
  }
  void edit(const std::string& jobTitle) { type(id::textItem(3), jobTitle); }
  /// Runs Save with the n-th call failing.
  void save(int call = 0, const Failure& failure = {}) {
    boxes.clear();
    calls_.failAt(call, failure);
    run(id::SAVE);
  }
  /// Keeps everybody else from the file.
  [[nodiscard]] HANDLE hold() const {
    return CreateFileA(path_.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  }
  /// Whether the only box so far tells that the document could not be saved.
  [[nodiscard]] bool failureTold() const {
    return boxes.size() == 1 &&
           boxes[0].text.starts_with("There is a problem saving the document '");
  }

  const std::string path_ = scratch / "Friends.tly";
  FailingFiles calls_;
};

TEST_F(Saving, WhateverCallFailsTheDocumentStaysModifiedAndTheUserIsToldOnce) {
  const Failure failures[] = {{ERROR_ACCESS_DENIED, false, false},
                              {ERROR_DISK_FULL, true, false},
                              {ERROR_DISK_FULL, true, true},
                              {ERROR_IO_DEVICE, false, true}};
  const std::string before = contacts(3, "a");
  for (const Failure& failure : failures) {
    int call = 1;
    for (bool reached = true; reached; ++call) {
      SCOPED_TRACE(std::to_string(failure.error) + ", call " + std::to_string(call));
      open(before);
      edit("typed");
      save(call, failure);
      reached = calls_.calls() >= call;
      const bool saved = !form.modified();
      EXPECT_EQ(bytesOf(path_), saved ? withJobTitle(before, "typed") : before);
      EXPECT_EQ(boxes.empty(), saved);
      EXPECT_NE(failureTold(), saved);
      if (!failure.onwards) {
        EXPECT_EQ(scratch.names().size(), 1U);
      }
      // The cause is gone: what was typed has not been lost.
      edit("more");
      save();
      EXPECT_FALSE(form.modified());
      EXPECT_TRUE(boxes.empty());
      EXPECT_EQ(bytesOf(path_), withJobTitle(before, "more"));
      EXPECT_EQ(scratch.names().size(), 1U);
    }
    EXPECT_GT(call, 7);
  }
}

TEST_F(Saving, AReadOnlyOrHeldFileIsKeptAndSavedOnceItIsFree) {
  const std::string before = contacts(2, "b");
  open(before);
  edit("typed");
  SetFileAttributesA(path_.c_str(), FILE_ATTRIBUTE_READONLY);
  save();
  EXPECT_TRUE(failureTold());
  SetFileAttributesA(path_.c_str(), FILE_ATTRIBUTE_NORMAL);

  const HANDLE held = hold();
  save();
  EXPECT_TRUE(failureTold());
  CloseHandle(held);
  EXPECT_EQ(bytesOf(path_), before);
  EXPECT_TRUE(form.modified());

  // Closing asks, is answered Yes, and stays when the save fails.
  SetFileAttributesA(path_.c_str(), FILE_ATTRIBUTE_READONLY);
  boxes.clear();
  answers = {IDYES};
  run(id::EXIT);
  EXPECT_EQ(boxes.size(), 2U);
  EXPECT_TRUE(form.loaded());
  SetFileAttributesA(path_.c_str(), FILE_ATTRIBUTE_NORMAL);
  save();
  EXPECT_FALSE(form.modified());
  EXPECT_EQ(bytesOf(path_), withJobTitle(before, "typed"));
}

TEST_F(Saving, ASaveAsThatFailsKeepsPathAndTitle) {
  open(contacts(1, "c"));
  edit("typed");
  const std::string title = text(id::LBLDESC);
  scratch.folder("Folder.tly");
  for (const char* target : {"gone\\Other.tly", "Folder.tly"}) {
    boxes.clear();
    files = {scratch / target};
    run(id::SAVEAS);
    EXPECT_TRUE(failureTold());
    EXPECT_EQ(form.documentPath(), path_);
    EXPECT_EQ(text(id::LBLDESC), title);
    EXPECT_TRUE(form.modified());
  }
  EXPECT_EQ(scratch.names(), (std::vector<std::string>{"Folder.tly", "Friends.tly"}));
}

TEST_F(Saving, WhatWasNotReadWholeIsNeverWrittenOver) {
  const std::string copy = scratch / "Copy.tly";
  for (const bool shorterThanItSaid : {false, true}) {
    calls_.pretendedBytes = shorterThanItSaid ? 100 : 0;
    open(contacts(2, "d") + (shorterThanItSaid ? "" : "\"broken off\"\r\n"));
    calls_.pretendedBytes = 0;
    const std::string kept = bytesOf(path_);
    EXPECT_EQ(form.contacts().count(), 2);
    edit("typed");
    // Cancelled, then the same file by its own and by another name, then a file of its own.
    save();
    EXPECT_TRUE(form.modified());
    files = {path_, scratch / ".\\FRIENDS.tly", copy};
    answers = {IDOK, IDYES};  // who is asked to overwrite would agree
    save();
    EXPECT_EQ(boxes.size(), 2U);
    EXPECT_EQ(bytesOf(path_), kept);
    EXPECT_EQ(bytesOf(copy), withJobTitle(contacts(2, "d"), "typed"));
    EXPECT_EQ(form.documentPath(), copy);
    EXPECT_FALSE(form.modified());
    DeleteFileA(copy.c_str());
  }
}

TEST_F(Saving, AFileThatCouldNotBeOpenedIsNotWrittenOverEither) {
  open(contacts(1, "e"));
  const HANDLE held = hold();
  form.openNamedAtStart(path_);
  EXPECT_EQ(form.contacts().count(), 0);
  run(id::ADD);
  files = {path_};
  save();
  CloseHandle(held);
  EXPECT_TRUE(form.modified());
  files = {path_};
  save();
  EXPECT_EQ(bytesOf(path_), contacts(1, "e"));

  // A name that no file has yet may be written to without a question.
  DeleteFileA(path_.c_str());
  form.openNamedAtStart(path_);
  run(id::ADD);
  save();
  EXPECT_TRUE(boxes.empty());
  EXPECT_EQ(bytesOf(path_).size(), 28U * 4);

  // A drive that was away when the document was opened may be back by now.
  const std::string away = path_ + ".away\\e.tly";
  form.openNamedAtStart(away);
  run(id::ADD);
  CreateDirectoryA((path_ + ".away").c_str(), nullptr);
  putFile(away, contacts(1, "e"));
  save();
  EXPECT_EQ(bytesOf(away), contacts(1, "e"));

  // A folder without the file has nothing to be kept.
  DeleteFileA(away.c_str());
  files = {away};
  save();
  EXPECT_EQ(bytesOf(away).size(), 28U * 4);
  EXPECT_TRUE(boxes.empty());
}

TEST_F(Saving, AsksBeforeItWritesOverWhatSomebodyElseWrote) {
  const std::string mine = contacts(1, "f");
  const std::string theirs = contacts(2, "g");
  const std::string alike = contacts(1, "h");  // as long as mine
  const struct {
    std::string before;  // what the document is opened on; nothing where it is not there
    std::string then;
  } rows[] = {{"", theirs}, {mine, theirs}, {mine, alike}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.before + " -> " + row.then);
    DeleteFileA(path_.c_str());
    if (!row.before.empty()) putFile(path_, row.before);
    form.openNamedAtStart(path_);
    if (row.before.empty()) run(id::ADD);
    edit("typed");
    Sleep(20);  // files on some disks know no shorter time
    putFile(path_, row.then);
    for (const int answer : {IDNO, IDYES}) {
      answers = {answer};
      save();
      ASSERT_EQ(boxes.size(), 1U);
      EXPECT_EQ(boxes[0].text, "The document '" + path_ +
                                   "' already exists.\r\nDo you really want to overwrite this ?");
      EXPECT_EQ(form.modified(), answer == IDNO);
      EXPECT_EQ(bytesOf(path_) == row.then, answer == IDNO);
    }
    // What this window has written, or what has vanished, needs no question.
    edit("more");
    save();
    DeleteFileA(path_.c_str());
    save();
    edit("again");
    save();
    EXPECT_TRUE(boxes.empty());
    EXPECT_FALSE(form.modified());
  }
}

TEST_F(Saving, AsksWhereverTheFileIsNotTheOneThatWasRead) {
  const auto asked = [this] {
    return !boxes.empty() && boxes[0].text.find("already exists") != std::string::npos;
  };
  const std::string theirs = contacts(2, "k");
  open(contacts(1, "j"));
  edit("typed");
  // Others have it open, and have left it its time.
  HANDLE held = hold();
  FILETIME time{};
  GetFileTime(held, nullptr, nullptr, &time);
  CloseHandle(held);
  putFile(path_, theirs);
  held = CreateFileA(path_.c_str(), FILE_WRITE_ATTRIBUTES, FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                     0, nullptr);
  SetFileTime(held, nullptr, nullptr, &time);
  CloseHandle(held);
  held = hold();
  save();
  EXPECT_TRUE(asked());
  CloseHandle(held);
  // A save that was agreed to and failed makes the file no less another's.
  for (const int call : {1, 0}) {
    answers = {IDYES, IDOK};
    if (call == 0) answers = {IDNO};
    save(call);
    EXPECT_TRUE(asked());
  }
  // So does the save that a closing question leads to.
  boxes.clear();
  answers = {IDYES, IDNO};
  run(id::EXIT);
  EXPECT_EQ(boxes.size(), 2U);
  EXPECT_TRUE(form.loaded() && form.modified());
  EXPECT_EQ(bytesOf(path_), theirs);
  // What is saved under another name is known from then on.
  files = {scratch / "Own.tly"};
  run(id::SAVEAS);
  edit("more");
  save();
  EXPECT_TRUE(boxes.empty());
  // A file that was not there is not the one that was open before, however alike.
  open(contacts(1, "j"));
  const std::string late = scratch / "Late.tly";
  form.openNamedAtStart(late);
  run(id::ADD);
  CopyFileA(path_.c_str(), late.c_str(), FALSE);
  save();
  EXPECT_TRUE(asked());
}

// Nobody else has written to a file that a failing save has put back.
TEST_F(Saving, AFileThatWasPutBackIsSavedWithoutAQuestion) {
  for (const bool inPlace : {false, true}) {
    for (int call = 1, reached = 1; reached != 0; ++call) {
      SCOPED_TRACE(std::to_string(inPlace) + ", call " + std::to_string(call));
      calls_.streams = true;
      calls_.noLinks = inPlace;
      open(contacts(1, "i"));
      edit("typed");
      Sleep(5);
      save(call, {ERROR_DISK_FULL, false, false});
      reached = calls_.calls() >= call ? 1 : 0;
      calls_.streams = calls_.noLinks = false;
      edit("more");
      save();
      EXPECT_TRUE(boxes.empty());
      EXPECT_FALSE(form.modified());
    }
  }
}

// A disk that is really full. It takes a small file system, which tools/full_disk.sh makes.
TEST_F(Saving, AFullDiskKeepsTheOldDocumentUntilThereIsRoom) {
  char small[MAX_PATH] = {};
  if (GetEnvironmentVariableA("TELLARY_SMALL_DISK", small, sizeof small) == 0)
    GTEST_SKIP() << "no small disk to fill; tools/full_disk.sh runs this with one";
  const ScratchFolder disk(small);
  const std::string path = disk / "Friends.tly";
  const std::string filler = disk / "filler";
  const std::string before = contacts(8000, "full");
  const auto size = static_cast<LONGLONG>(before.size());
  ULARGE_INTEGER space{};
  for (const LONGLONG left : {LONGLONG{0}, LONGLONG{4096}, size / 2, size - 4096}) {
    SCOPED_TRACE(left);
    open(before);
    ASSERT_TRUE(putFile(path, before));
    form.openNamedAtStart(path);
    edit("typed");
    ASSERT_TRUE(GetDiskFreeSpaceExA(disk.path().c_str(), &space, nullptr, nullptr));
    const auto room = static_cast<LONGLONG>(space.QuadPart);
    ASSERT_GT(room, size) << "the disk is too small for one save";
    ASSERT_LT(room, 64 << 20) << "this is no small disk";
    ASSERT_TRUE(putFile(filler, std::string(static_cast<std::size_t>(room - left), '#')));
    save();
    EXPECT_TRUE(bytesOf(path) == before);
    EXPECT_TRUE(failureTold());
    EXPECT_TRUE(form.modified());
    EXPECT_EQ(disk.names().size(), 2U);
    DeleteFileA(filler.c_str());
    save();
    EXPECT_FALSE(form.modified());
    EXPECT_TRUE(boxes.empty());
    EXPECT_TRUE(bytesOf(path) == withJobTitle(before, "typed"));
    EXPECT_EQ(disk.names().size(), 1U);
  }
}

}  // namespace
}  // namespace mainwindow
