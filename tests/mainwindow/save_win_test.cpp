// What the main window makes of a document that cannot be written, or was not read whole.
#include <gtest/gtest.h>

#include "document/reader.h"
#include "library/identifiers.h"
#include "mainwindow/document_file_win.h"
#include "mainwindow/frmMain_win.h"
#include "tests/support/failing_files_win.h"
#include "windowing/runtime_error.h"
#include "windowing/seams_win.h"

namespace mainwindow {
namespace {

namespace id = library::id;
using support::bytesOf;
using support::FailingFiles;
using support::Failure;
using support::putFile;
using test_support::ScratchFolder;
using windowing::Replaced;

std::string contacts(int count, const std::string& mark) {
  std::string text;
  for (int i = 0; i < count; ++i)
    for (int line = 0; line < document::fieldCount; ++line)
      text += '"' + mark + std::to_string(i) + "\"\r\n";
  return text;
}

// A window on a document of its own; boxes and file dialogs answer for themselves.
class Saving : public testing::Test {
 protected:
  Saving() {
    RegCreateKeyA(HKEY_CURRENT_USER, "Software\\Tellary tests", &settings_);
    form_.load();
  }
  ~Saving() override {
    answer_ = IDNO;
    form_.unload();
    MSG message{};  // the window has told the program to quit
    PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
    RegCloseKey(settings_);
  }

  void open(const std::string& content) {
    form_.setFileCalls(files_);
    files_.failAt(0);
    putFile(path_, content);
    form_.openNamedAtStart(path_);
    boxes_.clear();
  }
  void edit(const std::string& jobTitle) { form_.control(id::TXTITEMS + 3).setText(jobTitle); }
  /// Runs Save with the n-th call failing.
  void save(int call, const Failure& failure = {}) {
    boxes_.clear();
    files_.failAt(call, failure);
    form_.runCommand(id::SAVE);
  }
  [[nodiscard]] int failuresTold() const {
    int told = 0;
    for (const std::string& text : boxes_)
      told += text.find("There is a problem saving the document '") == 0 ? 1 : 0;
    return told;
  }

  ScratchFolder folder_;
  const std::string path_ = folder_ / "Friends.tly";
  FailingFiles files_;
  HKEY settings_ = nullptr;
  int answer_ = IDYES;
  std::vector<std::string> boxes_;
  std::vector<std::string> chosen_;  ///< answers of the file dialog; empty is its Cancel
  Replaced<decltype(windowing::Seams::settingsRoot)> root_{windowing::seams().settingsRoot,
                                                           [this](HKEY) { return settings_; }};
  Replaced<decltype(windowing::Seams::messageBox)> box_{
      windowing::seams().messageBox,
      [this](HWND, const std::string& text, const std::string&, UINT) {
        boxes_.push_back(text);
        return answer_;
      }};
  Replaced<decltype(windowing::Seams::fileDialog)> dialog_{
      windowing::seams().fileDialog,
      [this](HWND, const windowing::FileDialog&) -> std::optional<std::string> {
        if (chosen_.empty()) return std::nullopt;
        const std::string next = chosen_.front();
        chosen_.erase(chosen_.begin());
        return next;
      }};
  frmMain form_;
};

TEST_F(Saving, WhateverCallFailsTheDocumentStaysModifiedAndTheUserIsToldOnce) {
  const Failure failures[] = {{ERROR_ACCESS_DENIED, false, false},
                              {ERROR_DISK_FULL, true, false},
                              {ERROR_DISK_FULL, true, true},
                              {ERROR_IO_DEVICE, false, true}};
  int edits = 0;
  for (const Failure& failure : failures) {
    int call = 1;
    for (bool reached = true; reached; ++call) {
      SCOPED_TRACE(std::to_string(failure.error) + ", call " + std::to_string(call));
      const std::string before = contacts(3, "a");
      open(before);
      const std::string typed = "typed" + std::to_string(++edits);
      edit(typed);
      std::string after = before;
      after.replace(before.find("\"a0\"\r\n") + 3 * 6 + 1, 2, typed);
      save(call, failure);
      reached = files_.calls() >= call;
      const bool saved = !form_.modified();
      EXPECT_EQ(bytesOf(path_), saved ? after : before);
      EXPECT_EQ(failuresTold(), saved ? 0 : 1);
      EXPECT_EQ(boxes_.size(), saved ? 0U : 1U);
      if (!failure.onwards) {
        EXPECT_EQ(folder_.names().size(), 1U);
      }
      // The cause is gone: what was typed has not been lost.
      edit(typed + "!");
      after.replace(after.find(typed), typed.size(), typed + "!");
      save(0);
      EXPECT_FALSE(form_.modified());
      EXPECT_TRUE(boxes_.empty());
      EXPECT_EQ(bytesOf(path_), after);
      EXPECT_EQ(folder_.names().size(), 1U);
    }
    EXPECT_GT(call, 7);
  }
}

TEST_F(Saving, AReadOnlyOrHeldFileIsKeptAndSavedOnceItIsFree) {
  const std::string before = contacts(2, "b");
  open(before);
  edit("typed");
  SetFileAttributesA(path_.c_str(), FILE_ATTRIBUTE_READONLY);
  save(0);
  EXPECT_EQ(failuresTold(), 1);
  SetFileAttributesA(path_.c_str(), FILE_ATTRIBUTE_NORMAL);

  const HANDLE held =
      CreateFileA(path_.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  save(0);
  EXPECT_EQ(failuresTold(), 1);
  CloseHandle(held);
  EXPECT_EQ(bytesOf(path_), before);
  EXPECT_TRUE(form_.modified());

  // Closing asks, is answered Yes, and stays when the save fails.
  SetFileAttributesA(path_.c_str(), FILE_ATTRIBUTE_READONLY);
  boxes_.clear();
  form_.runCommand(id::EXIT);
  EXPECT_EQ(boxes_.size(), 2U);
  EXPECT_TRUE(form_.loaded());
  SetFileAttributesA(path_.c_str(), FILE_ATTRIBUTE_NORMAL);
  save(0);
  EXPECT_FALSE(form_.modified());
  EXPECT_NE(bytesOf(path_).find("\"typed\""), std::string::npos);
}

TEST_F(Saving, ASaveAsThatFailsKeepsPathAndTitle) {
  open(contacts(1, "c"));
  edit("typed");
  const std::string title = form_.control(id::LBLDESC).text();
  boxes_.clear();
  folder_.folder("Folder.tly");
  for (const std::string& target : {(folder_ / "gone\\Other.tly"), (folder_ / "Folder.tly")}) {
    chosen_ = {target};
    form_.runCommand(id::SAVEAS);
    EXPECT_EQ(form_.documentPath(), path_);
    EXPECT_EQ(form_.control(id::LBLDESC).text(), title);
    EXPECT_TRUE(form_.modified());
  }
  EXPECT_EQ(failuresTold(), 2);
  EXPECT_EQ(folder_.names(), (std::vector<std::string>{"Folder.tly", "Friends.tly"}));
}

TEST_F(Saving, WhatWasNotReadWholeIsNeverWrittenOver) {
  const std::string before = contacts(2, "d") + "\"broken off\"\r\n";
  std::string otherSpelling = folder_ / ".\\FRIENDS.tly";
  const std::string copy = folder_ / "Copy.tly";
  for (const bool shorterThanItSaid : {false, true}) {
    files_.pretendedBytes = shorterThanItSaid ? 100 : 0;
    open(shorterThanItSaid ? contacts(2, "d") : before);
    files_.pretendedBytes = 0;
    const std::string kept = bytesOf(path_);
    EXPECT_EQ(form_.contacts().count(), 2);
    edit("typed");
    // Cancelled, then the same file by its own and by another name, then a file of its own.
    save(0);
    EXPECT_TRUE(form_.modified());
    chosen_ = {path_, otherSpelling, copy};
    save(0);
    EXPECT_EQ(boxes_.size(), 2U);
    EXPECT_EQ(bytesOf(path_), kept);
    EXPECT_NE(bytesOf(copy).find("\"typed\""), std::string::npos);
    EXPECT_EQ(form_.documentPath(), copy);
    EXPECT_FALSE(form_.modified());
    DeleteFileA(copy.c_str());
  }
}

TEST_F(Saving, AFileThatCouldNotBeOpenedIsNotWrittenOverEither) {
  open(contacts(1, "e"));
  const HANDLE held =
      CreateFileA(path_.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  form_.openNamedAtStart(path_);
  EXPECT_EQ(form_.contacts().count(), 0);
  form_.runCommand(id::ADD);
  chosen_ = {path_};
  save(0);
  CloseHandle(held);
  EXPECT_TRUE(form_.modified());
  chosen_ = {path_};
  save(0);
  EXPECT_EQ(bytesOf(path_), contacts(1, "e"));

  // A name that no file has yet may be written to without a question.
  DeleteFileA(path_.c_str());
  form_.openNamedAtStart(path_);
  form_.runCommand(id::ADD);
  save(0);
  EXPECT_TRUE(boxes_.empty());
  EXPECT_EQ(bytesOf(path_).size(), 28U * 4);

  // A drive that was away when the document was opened may be back by now.
  const std::string away = path_ + ".away\\e.tly";
  form_.openNamedAtStart(away);
  form_.runCommand(id::ADD);
  CreateDirectoryA((path_ + ".away").c_str(), nullptr);
  putFile(away, contacts(1, "e"));
  save(0);
  EXPECT_EQ(bytesOf(away), contacts(1, "e"));
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
  const LONGLONG size = static_cast<LONGLONG>(before.size());
  ULARGE_INTEGER space{};
  for (const LONGLONG left : {LONGLONG{0}, LONGLONG{4096}, size / 2, size - 4096}) {
    SCOPED_TRACE(left);
    open(before);
    ASSERT_TRUE(putFile(path, before));
    form_.openNamedAtStart(path);
    edit("typed");
    ASSERT_TRUE(GetDiskFreeSpaceExA(disk.path().c_str(), &space, nullptr, nullptr));
    const auto room = static_cast<LONGLONG>(space.QuadPart);
    ASSERT_GT(room, size) << "the disk is too small for one save";
    ASSERT_LT(room, 64 << 20) << "this is no small disk";
    ASSERT_TRUE(putFile(filler, std::string(static_cast<std::size_t>(room - left), '#')));
    save(0);
    EXPECT_EQ(bytesOf(path), before);
    EXPECT_EQ(failuresTold(), 1);
    EXPECT_TRUE(form_.modified());
    EXPECT_EQ(disk.names().size(), 2U);
    DeleteFileA(filler.c_str());
    save(0);
    EXPECT_FALSE(form_.modified());
    EXPECT_TRUE(boxes_.empty());
    EXPECT_NE(bytesOf(path), before);
    EXPECT_NE(bytesOf(path).find("\"typed\""), std::string::npos);
    EXPECT_EQ(bytesOf(path).size(), before.size());  // "typed" is as long as "full0"
    EXPECT_EQ(disk.names().size(), 1U);
  }
}

}  // namespace
}  // namespace mainwindow
