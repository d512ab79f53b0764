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
std::string longer() {
  return std::string(4000, 'a') + std::string(4000, 'b') + std::string(4000, 'c');
}

// Whether the save succeeded.
bool save(const std::string& path, const std::string& bytes, FileCalls& calls) {
  try {
    replaceFile(
        path,
        [&](const FileSink& sink) {
          for (std::size_t at = 0; at < bytes.size(); at += 4000) sink(bytes.substr(at, 4000));
        },
        calls);
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}

struct FailureCase {
  const char* what;
  Failure failure;
};

constexpr FailureCase failures[] = {
    {"refused", {ERROR_ACCESS_DENIED, false, false}},
    {"refused from then on", {ERROR_ACCESS_DENIED, false, true}},
    {"disk full", {ERROR_DISK_FULL, false, false}},
    {"disk full, told by the count alone", {ERROR_DISK_FULL, true, false}},
    {"disk full from then on", {ERROR_DISK_FULL, true, true}},
    {"broken device", {ERROR_IO_DEVICE, false, false}},
    {"broken device from then on", {ERROR_IO_DEVICE, false, true}},
};

// Lets each call of a save fail in turn, until a save needs no such call. `oldContent` empty:
// there is no file yet. Answers how many of the calls the save could do without.
int failEveryCall(FailingFiles& files, const FailureCase& one, const std::string& oldContent,
                  const std::string& newContent, int leastCalls) {
  const ScratchFolder folder;
  const std::string path = folder / "Friends.tly";
  const std::string before = oldContent.empty() ? "(none)" : oldContent;
  int call = 1;
  int needless = 0;
  for (;; ++call) {
    SCOPED_TRACE(std::string(one.what) + ", call " + std::to_string(call));
    DeleteFileA(path.c_str());
    if (!oldContent.empty()) putFile(path, oldContent);
    files.failAt(call, one.failure);
    const bool saved = save(path, newContent, files);
    EXPECT_EQ(bytesOf(path), saved ? newContent : before);
    const std::size_t expected = bytesOf(path) == "(none)" ? 0 : 1;
    // A file that nobody can delete stays until the next save.
    if (!one.failure.onwards) {
      EXPECT_EQ(folder.names().size(), expected);
    }
    const bool reached = files.calls() >= call;
    files.failAt(0);
    EXPECT_TRUE(save(path, newContent, files));
    EXPECT_EQ(bytesOf(path), newContent);
    EXPECT_EQ(folder.names().size(), 1U);
    if (!reached) break;
    needless += saved ? 1 : 0;
  }
  EXPECT_GT(call, leastCalls);
  return needless;
}

TEST(SafeFile, WhateverCallFailsTheOldBytesStayAndNothingIsLeftBehind) {
  FailingFiles files;
  for (const FailureCase& one : failures) {
    int needless = failEveryCall(files, one, oldBytes, longer(), 8);
    needless += failEveryCall(files, one, oldBytes, "", 6);
    EXPECT_EQ(failEveryCall(files, one, "", longer(), 6), 0) << one.what;
    // Only owners that cannot be taken over do not matter; where no file can be made, the
    // document is written in place.
    const int each = one.failure.onwards ? 0 : one.failure.error == ERROR_ACCESS_DENIED ? 2 : 1;
    EXPECT_EQ(needless, 2 * each) << one.what;
  }
}

TEST(SafeFile, AFolderThatTakesNoNewFileHasTheOldBytesPutBack) {
  FailingFiles files;
  files.noNewFiles = true;
  for (const FailureCase& one : failures) {
    // Bytes half written cannot be put back where nothing can be written any more.
    if (one.failure.onwards) continue;
    failEveryCall(files, one, oldBytes, longer(), 8);
    failEveryCall(files, one, oldBytes, "short", 8);
  }
}

TEST(SafeFile, WhatKeepsAFileFromBeingWrittenLeavesItAlone) {
  FileCalls files;
  const ScratchFolder folder;
  const std::string path = folder / "Friends.tly";
  putFile(path, oldBytes);

  SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_FALSE(save(path, longer(), files));
  EXPECT_EQ(bytesOf(path), oldBytes);
  EXPECT_EQ(GetFileAttributesA(path.c_str()) & FILE_ATTRIBUTE_READONLY, FILE_ATTRIBUTE_READONLY);
  SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);

  const HANDLE held =
      CreateFileA(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  EXPECT_FALSE(save(path, longer(), files));
  CloseHandle(held);
  EXPECT_EQ(bytesOf(path), oldBytes);

  EXPECT_FALSE(save(folder.path(), longer(), files));
  EXPECT_FALSE(save(folder.path() + "\\", longer(), files));
  EXPECT_FALSE(save(folder / "gone\\Friends.tly", longer(), files));
  EXPECT_EQ(folder.names(), std::vector<std::string>{"Friends.tly"});

  // A producer that gives up counts as a failure too.
  EXPECT_THROW(replaceFile(
                   path,
                   [](const FileSink& sink) {
                     sink("begun");
                     throw std::bad_alloc();
                   },
                   files),
               std::bad_alloc);
  EXPECT_EQ(bytesOf(path), oldBytes);
  EXPECT_EQ(folder.names(), std::vector<std::string>{"Friends.tly"});

  EXPECT_TRUE(save(path, longer(), files));
  EXPECT_EQ(bytesOf(path), longer());
}

TEST(SafeFile, TheNewFileTakesOverTheAttributesOfTheOld) {
  FailingFiles files;
  const ScratchFolder folder;
  const std::string path = folder / "Friends.tly";
  constexpr DWORD kept = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_SYSTEM;
  for (const DWORD attributes : {FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_ARCHIVE,
                                 FILE_ATTRIBUTE_HIDDEN, FILE_ATTRIBUTE_ARCHIVE}) {
    putFile(path, oldBytes);
    SetFileAttributesA(path.c_str(), attributes);
    const DWORD before = GetFileAttributesA(path.c_str()) & kept;
    for (const bool newFiles : {true, false}) {
      files.noNewFiles = !newFiles;
      EXPECT_TRUE(save(path, newFiles ? longer() : "in place", files));
      EXPECT_EQ(bytesOf(path), newFiles ? longer() : "in place");
      EXPECT_EQ(GetFileAttributesA(path.c_str()) & kept, before) << attributes;
    }
  }
}

TEST(SafeFile, WhatACrashLeftBehindIsClearedByTheNextSave) {
  FailingFiles files;
  const ScratchFolder folder;
  const std::string path = folder / "Friends.tly";
  for (const DWORD attributes :
       {FILE_ATTRIBUTE_NORMAL, FILE_ATTRIBUTE_HIDDEN, FILE_ATTRIBUTE_READONLY}) {
    putFile(path, oldBytes);
    putFile(temporaryName(path), "half a docum");
    SetFileAttributesA(temporaryName(path).c_str(), attributes);
    EXPECT_TRUE(save(path, longer(), files)) << attributes;
    EXPECT_EQ(bytesOf(path), longer());
    EXPECT_EQ(folder.names(), std::vector<std::string>{"Friends.tly"}) << attributes;
  }
}

TEST(SafeFile, TheTemporaryFileLiesBesideTheDocumentHoweverItsPathIsWritten) {
  const ScratchFolder folder;
  const std::string wanted = temporaryName(folder / "Friends.tly");
  EXPECT_TRUE(wanted.starts_with(folder.path() + '\\'));
  EXPECT_EQ(wanted.find('\\', folder.path().size() + 1), std::string::npos);
  EXPECT_NE(wanted, temporaryName(folder / "Friend.tly"));

  std::string slashes = folder / "FRIENDS.tly";
  for (char& c : slashes)
    if (c == '\\') c = '/';
  EXPECT_EQ(temporaryName(slashes), wanted);

  char old[MAX_PATH] = {};
  GetCurrentDirectoryA(sizeof old, old);
  SetCurrentDirectoryA(folder.path().c_str());
  const char bareDrive[] = {folder.path()[0], ':', '\0'};
  EXPECT_EQ(temporaryName("Friends.tly"), wanted);
  EXPECT_EQ(temporaryName(bareDrive + std::string("Friends.tly")), wanted);
  SetCurrentDirectoryA(old);
  EXPECT_THROW((void)temporaryName(folder.path() + "\\"), RuntimeError);
}

}  // namespace
}  // namespace windowing
