#include "windowing/safe_file_win.h"

#include <gtest/gtest.h>

#include "tests/support/failing_files_win.h"
#include "windowing/runtime_error.h"

namespace windowing {
namespace {

using support::bytesOf;
using support::FailingFiles;
using support::Failure;
using support::putFile;
using test_support::ScratchFolder;

const std::string oldBytes(5000, 'o');
// Three pieces, so that a write can fail in the middle.
const std::string newBytes =
    std::string(4000, 'a') + std::string(4000, 'b') + std::string(4000, 'c');

class SafeFile : public testing::Test {
 protected:
  // Whether the save succeeded.
  bool save(const std::string& bytes = newBytes) { return saveAs(path, bytes); }
  bool saveAs(const std::string& name, const std::string& bytes = newBytes) {
    try {
      const auto produce = [&](const FileSink& sink) {
        for (std::size_t at = 0; at < bytes.size(); at += 4000) sink(bytes.substr(at, 4000));
      };
      replaceFile(name, produce, files);
      return true;
    } catch (const RuntimeError&) {
      return false;
    }
  }
  void expectOnly(const std::string& bytes) const {
    EXPECT_EQ(bytesOf(path), bytes);
    EXPECT_EQ(folder.names(), std::vector<std::string>{"Friends.tly"});
  }
  int failEveryCall(const Failure& failure, const std::string& before, const std::string& after);

  FailingFiles files;
  const ScratchFolder folder;
  const std::string path = folder / "Friends.tly";
};

constexpr Failure failures[] = {
    {ERROR_ACCESS_DENIED, false, false}, {ERROR_ACCESS_DENIED, false, true},
    {ERROR_DISK_FULL, false, false},     {ERROR_DISK_FULL, true, false},
    {ERROR_DISK_FULL, true, true},       {ERROR_IO_DEVICE, false, false},
    {ERROR_IO_DEVICE, false, true}};

// Lets each call of a save fail in turn, until a save needs no such call. `before` empty:
// there is no file yet. Answers how many of the calls the save could do without.
int SafeFile::failEveryCall(const Failure& failure, const std::string& before,
                            const std::string& after) {
  int needless = 0;
  int call = 1;
  for (bool reached = true; reached; ++call) {
    SCOPED_TRACE("error " + std::to_string(failure.error) + (failure.onwards ? " from" : " in") +
                 " call " + std::to_string(call));
    DeleteFileA(path.c_str());
    if (!before.empty()) putFile(path, before);
    files.failAt(call, failure);
    const bool saved = save(after);
    reached = files.calls() >= call;
    needless += saved && reached ? 1 : 0;
    const bool gone = before.empty() && !saved;
    EXPECT_EQ(bytesOf(path), saved ? after : gone ? "(none)" : before);
    // A file that nobody can delete stays until the next save.
    if (!failure.onwards) {
      EXPECT_EQ(folder.names().size(), gone ? 0U : 1U);
    }
    files.failAt(0);
    EXPECT_TRUE(save(after));
    expectOnly(after);
  }
  EXPECT_GT(call, 7) << "calls in a save";
  return needless;
}

TEST_F(SafeFile, WhateverCallFailsTheOldBytesStayAndNothingIsLeftBehind) {
  for (const Failure& failure : failures) {
    // Only owners that cannot be taken over do not matter; where no file can be made, the
    // document is written in place.
    const int needless = failure.onwards ? 0 : failure.error == ERROR_ACCESS_DENIED ? 2 : 1;
    EXPECT_EQ(failEveryCall(failure, oldBytes, newBytes), needless);
    EXPECT_EQ(failEveryCall(failure, oldBytes, ""), needless);
    EXPECT_EQ(failEveryCall(failure, "", newBytes), 0);
  }
}

TEST_F(SafeFile, AFolderThatTakesNoNewFileHasTheOldBytesPutBack) {
  files.noNewFiles = true;
  for (const Failure& failure : failures) {
    // Bytes half written cannot be put back where nothing can be written any more.
    if (failure.onwards) continue;
    failEveryCall(failure, oldBytes, newBytes);
    failEveryCall(failure, oldBytes, "short");
  }
}

TEST_F(SafeFile, WhatKeepsAFileFromBeingWrittenLeavesItAlone) {
  putFile(path, oldBytes);
  SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_FALSE(save());
  EXPECT_EQ(GetFileAttributesA(path.c_str()) & FILE_ATTRIBUTE_READONLY, FILE_ATTRIBUTE_READONLY);
  SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
  {
    const FileHandle held(
        CreateFileA(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    EXPECT_FALSE(save());
  }
  for (const std::string& name :
       {folder.path(), folder.path() + "\\", folder / "gone\\Friends.tly"})
    EXPECT_FALSE(saveAs(name)) << name;
  // A producer that gives up counts as a failure too.
  const auto giveUp = [](const FileSink& sink) {
    sink("begun");
    throw std::bad_alloc();
  };
  EXPECT_THROW(replaceFile(path, giveUp, files), std::bad_alloc);
  expectOnly(oldBytes);
  EXPECT_TRUE(save());
  expectOnly(newBytes);
}

TEST_F(SafeFile, TheNewFileTakesOverTheAttributesOfTheOld) {
  constexpr DWORD kept = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_SYSTEM;
  for (const DWORD attributes : {DWORD{FILE_ATTRIBUTE_HIDDEN}, DWORD{FILE_ATTRIBUTE_ARCHIVE}}) {
    putFile(path, oldBytes);
    SetFileAttributesA(path.c_str(), attributes);
    const DWORD before = GetFileAttributesA(path.c_str()) & kept;
    for (const bool inPlace : {false, true}) {
      files.noNewFiles = inPlace;
      EXPECT_TRUE(save(inPlace ? "in place" : newBytes));
      expectOnly(inPlace ? "in place" : newBytes);
      EXPECT_EQ(GetFileAttributesA(path.c_str()) & kept, before) << attributes;
    }
  }
}

TEST_F(SafeFile, WhatACrashLeftBehindIsClearedByTheNextSave) {
  for (const DWORD attributes : {DWORD{FILE_ATTRIBUTE_HIDDEN}, DWORD{FILE_ATTRIBUTE_READONLY}}) {
    putFile(path, oldBytes);
    putFile(temporaryName(path), "half a docum");
    SetFileAttributesA(temporaryName(path).c_str(), attributes);
    EXPECT_TRUE(save()) << attributes;
    expectOnly(newBytes);
  }
}

TEST_F(SafeFile, TheTemporaryFileLiesBesideTheDocumentHoweverItsPathIsWritten) {
  const std::string wanted = temporaryName(path);
  EXPECT_EQ(wanted.rfind('\\'), folder.path().size());
  EXPECT_NE(wanted, temporaryName(folder / "Friend.tly"));
  std::string slashes = folder / "FRIENDS.tly";
  for (char& c : slashes)
    if (c == '\\') c = '/';
  EXPECT_EQ(temporaryName(slashes), wanted);
  char old[MAX_PATH] = {};
  GetCurrentDirectoryA(sizeof old, old);
  SetCurrentDirectoryA(folder.path().c_str());
  EXPECT_EQ(temporaryName("Friends.tly"), wanted);
  EXPECT_EQ(temporaryName(path.substr(0, 2) + "Friends.tly"), wanted);
  SetCurrentDirectoryA(old);
}

}  // namespace
}  // namespace windowing
