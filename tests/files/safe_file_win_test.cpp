#include "files/safe_file_win.h"

#include <gtest/gtest.h>
#include <sddl.h>

#include "files/save_target_win.h"
#include "tests/support/failing_files_win.h"
#include "values/runtime_error.h"

namespace files {
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

// What tells one file from another: its number.
std::pair<DWORD, DWORD> identityOf(const std::string& path) {
  FileCalls calls;
  const values::FileHandle file(calls.open(path, FILE_READ_ATTRIBUTES, OPEN_EXISTING));
  BY_HANDLE_FILE_INFORMATION facts{};
  calls.information(file.get(), facts);
  return {facts.nFileIndexHigh, facts.nFileIndexLow};
}

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
    } catch (const values::RuntimeError&) {
      return false;
    }
  }
  void expectOnly(const std::string& bytes) const {
    EXPECT_EQ(bytesOf(path), bytes);
    EXPECT_EQ(folder.names(), std::vector<std::string>{"Friends.tly"});
  }
  void failEveryCall(const Failure& failure, const std::string& before, const std::string& after);

  FailingFiles files;
  const ScratchFolder folder;
  const ScratchFolder elsewhere;
  const std::string path = folder / "Friends.tly";
  const std::string other = elsewhere / "other name.tly";
  bool twoNames = false;  // `other` is another name of the file
};

constexpr Failure failures[] = {
    {ERROR_ACCESS_DENIED, false, false}, {ERROR_ACCESS_DENIED, false, true},
    {ERROR_DISK_FULL, false, false},     {ERROR_DISK_FULL, true, false},
    {ERROR_DISK_FULL, true, true},       {ERROR_IO_DEVICE, false, false},
    {ERROR_IO_DEVICE, false, true}};

// Lets each call of a save fail in turn, until a save needs no such call. `before` empty:
// there is no file yet.
void SafeFile::failEveryCall(const Failure& failure, const std::string& before,
                             const std::string& after) {
  int call = 1;
  for (bool reached = true; reached; ++call) {
    SCOPED_TRACE("error " + std::to_string(failure.error) + (failure.onwards ? " from" : " in") +
                 " call " + std::to_string(call));
    for (const std::string& name : {path, other, path + ".old", elsewhere / "Friends.tly.old"})
      DeleteFileA(name.c_str());
    if (!before.empty()) putFile(path, before);
    if (twoNames) CreateHardLinkA(other.c_str(), path.c_str(), nullptr);
    files.failAt(call, failure);
    const bool saved = save(after);
    reached = files.calls() >= call;
    const bool gone = before.empty() && !saved;
    const std::string wanted = saved ? after : gone ? "(none)" : before;
    // Where nothing works any more, a file written in place may be half written.
    const std::string kept = bytesOf(elsewhere / "Friends.tly.old");
    const bool torn = files.noNewFiles && failure.onwards && kept == before;
    EXPECT_TRUE(torn || bytesOf(path) == wanted) << saved;
    // A file that nobody can delete stays until the next save.
    if (!failure.onwards) {
      EXPECT_EQ(folder.names().size(), gone ? 0U : 1U);
      EXPECT_TRUE(kept == "(none)" || (saved && kept == before));
      EXPECT_TRUE(!twoNames || bytesOf(other) == wanted);
    }
    // The other file does where the old one could not come back: on Wine, or as the only way left.
    const bool strict = files.wholeSecurity && !files.noNewFiles && !(twoNames && failure.onwards);
    EXPECT_FALSE(strict && saved && files.bytesAtRisk());
    files.failAt(0);
    EXPECT_TRUE(save(after));
    expectOnly(after);
    EXPECT_TRUE(!twoNames || failure.onwards || bytesOf(other) == after);
  }
  EXPECT_GT(call, 7) << "calls in a save";
}

TEST_F(SafeFile, WhateverCallFailsTheOldBytesStayAndNothingIsLeftBehind) {
  for (const Failure& failure : failures) {
    for (const bool whole : {false, true}) {
      files.wholeSecurity = whole;
      failEveryCall(failure, oldBytes, newBytes);
    }
    failEveryCall(failure, "", newBytes);
    twoNames = true;
    failEveryCall(failure, oldBytes, newBytes);
    failEveryCall(failure, oldBytes, "");
    twoNames = false;
  }
}

TEST_F(SafeFile, AFolderThatTakesNoNewFileHasTheOldBytesKeptElsewhereMeanwhile) {
  files.noNewFiles = true;
  files.keepFolder = elsewhere.path();
  for (const Failure& failure : failures)
    failEveryCall(failure, oldBytes, failure.shortCount ? newBytes : "short");
  // What a crash left there is nobody's to overwrite.
  putFile(elsewhere / "Friends.tly.old", "of a crash");
  files.failAt(0);
  EXPECT_TRUE(save());
  EXPECT_FALSE(files.bytesAtRisk());
  EXPECT_EQ(bytesOf(elsewhere / "Friends.tly.old"), "of a crash");
  EXPECT_EQ(elsewhere.names().size(), 1U);
  // Nothing is written where nothing can be kept.
  files.keepFolder = elsewhere / "gone";
  EXPECT_FALSE(save("more"));
  expectOnly(newBytes);
  // A file that can be written no more is half written; its copy stays.
  files.keepFolder = elsewhere.path();
  files.noWritesOver = true;
  EXPECT_FALSE(save("more"));
  EXPECT_TRUE(bytesOf(elsewhere / "Friends.tly.old2") == newBytes);
}

TEST_F(SafeFile, WhatANewFileCannotTakeOverStaysWithTheOld) {
  const struct {
    const char* what;
    bool names, streams, owners, links, same;
    DWORD storedAs;
  } cases[] = {{"an ordinary file is another one", false, false, true, true, false, 0},
               {"other names", true, false, true, true, true, 0},
               {"streams", false, true, true, true, true, 0},
               {"encryption", false, false, true, true, true, FILE_ATTRIBUTE_ENCRYPTED},
               {"encryption in place", false, false, true, false, true, FILE_ATTRIBUTE_ENCRYPTED},
               {"compression", false, false, true, true, true, FILE_ATTRIBUTE_COMPRESSED},
               {"what the system does not tell", false, false, false, true, true, 0},
               {"streams where files have one name", false, true, true, false, true, 0},
               {"the same where there are no streams", false, false, false, false, false, 0}};
  for (const auto& given : cases) {
    SCOPED_TRACE(given.what);
    DeleteFileA(path.c_str());
    DeleteFileA(other.c_str());
    putFile(path, oldBytes);
    if (given.names) CreateHardLinkA(other.c_str(), path.c_str(), nullptr);
    files.streams = given.streams;
    files.wholeSecurity = given.owners;
    files.noLinks = !given.links;
    files.storedAs = given.storedAs;
    files.securityCopies = 0;
    const auto before = identityOf(path);
    EXPECT_TRUE(save());
    expectOnly(newBytes);
    EXPECT_EQ(identityOf(path) == before, given.same);
    // What holds its bytes meanwhile is as private as the file.
    EXPECT_EQ(files.securityCopies != 0, given.same);
    EXPECT_EQ(files.created & FILE_ATTRIBUTE_ENCRYPTED, given.storedAs & FILE_ATTRIBUTE_ENCRYPTED);
    EXPECT_TRUE(!given.names || bytesOf(other) == newBytes);
  }
}

TEST_F(SafeFile, AccessRightsAreCopiedWhereTheyDiffer) {
  files.wholeSecurity = true;
  putFile(path, oldBytes);
  EXPECT_TRUE(save());
  EXPECT_EQ(files.securityCopies, 0);
  PSECURITY_DESCRIPTOR everyone = nullptr;
  ASSERT_TRUE(ConvertStringSecurityDescriptorToSecurityDescriptorA("D:(A;;FA;;;WD)", SDDL_REVISION,
                                                                   &everyone, nullptr));
  EXPECT_TRUE(SetFileSecurityA(path.c_str(), DACL_SECURITY_INFORMATION, everyone));
  LocalFree(everyone);
  const std::string before = files.security(path);
  const auto identity = identityOf(path);
  EXPECT_TRUE(save());
  EXPECT_FALSE(identityOf(path) == identity);
  EXPECT_TRUE(files.security(path) == before);
  expectOnly(newBytes);
  // Where they cannot be copied whole, and a file has one name only, it is written over itself.
  files.wholeSecurity = false;
  files.noLinks = true;
  const auto own = identityOf(path);
  EXPECT_TRUE(save("in place"));
  expectOnly("in place");
  EXPECT_TRUE(identityOf(path) == own);
}

TEST_F(SafeFile, ALinkStaysOneAndTheFileBehindItIsRenewed) {
  putFile(path, "a link's own bytes");
  putFile(other, oldBytes);
  files.leadsTo = LR"(\\?\)" + std::wstring(other.begin(), other.end());
  EXPECT_TRUE(save());
  expectOnly("a link's own bytes");
  EXPECT_TRUE(bytesOf(other) == newBytes);
  EXPECT_EQ(elsewhere.names().size(), 1U);
  // Where no name leads there, it is written through the link.
  const std::wstring unknown = L"\\\\?\\C:\\\u4e00.tly";
  files.leadsTo = unknown;
  const auto before = identityOf(path);
  EXPECT_TRUE(save());
  expectOnly(newBytes);
  EXPECT_TRUE(identityOf(path) == before);
  // A new file is no link, whatever the full name of its folder is.
  DeleteFileA(path.c_str());
  EXPECT_TRUE(save());
  expectOnly(newBytes);

  const struct {
    std::wstring full;
    std::string plain;
  } names[] = {{LR"(\\?\C:\a b\x.tly)", R"(C:\a b\x.tly)"},
               {LR"(\\?\UNC\server\share\x.tly)", R"(\\server\share\x.tly)"},
               {LR"(\\?\C:\)" + std::wstring(300, L'x'), ""},
               {LR"(\Device\x.tly)", ""},
               {LR"(\\?\unix\home\x.tly)", ""},
               {LR"(\\?\Volume{1}\x.tly)", ""},
               {unknown, ""}};
  for (const auto& name : names) EXPECT_EQ(plainName(name.full), name.plain);
}

TEST_F(SafeFile, ALinkThatLeadsToNothingYetLeavesNothingThereWhereASaveFails) {
  files.dangling = other;
  files.leadsTo = LR"(\\?\)" + std::wstring(other.begin(), other.end());
  for (const bool works : {false, true}) {
    files.moveError = works ? ERROR_SUCCESS : ERROR_DISK_FULL;
    EXPECT_EQ(save(), works);
    EXPECT_TRUE(bytesOf(other) == (works ? newBytes : "(none)"));
    EXPECT_TRUE(folder.names().empty());
  }
}

TEST_F(SafeFile, AFileThatAnotherProgramHasOpenIsWaitedForAMoment) {
  for (const bool inPlace : {false, true}) {
    files.noNewFiles = inPlace;
    files.keepFolder = elsewhere.path();
    putFile(path, oldBytes);
    values::FileHandle held(
        CreateFileA(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    files.waited = 0;
    EXPECT_FALSE(save());
    EXPECT_EQ(files.waited, 248U) << "milliseconds";
    int waits = 0;
    files.onWait = [&] {
      if (++waits == 3) held.reset();
    };
    EXPECT_TRUE(save());
    EXPECT_EQ(waits, 3);
    expectOnly(newBytes);
    files.onWait = nullptr;
  }
}

TEST_F(SafeFile, AMoveThatIsRefusedForAMomentIsTriedAgain) {
  files.wholeSecurity = true;
  const struct {
    DWORD error;
    int waits;
  } cases[] = {{ERROR_SHARING_VIOLATION, 2},
               {ERROR_ACCESS_DENIED, 2},
               {ERROR_LOCK_VIOLATION, 2},
               {ERROR_DISK_FULL, 0}};
  for (const auto& given : cases) {
    putFile(path, oldBytes);
    int waits = 0;
    files.onWait = [&] {
      if (++waits == 2) files.moveError = ERROR_SUCCESS;
    };
    files.moveError = given.error;
    EXPECT_EQ(save(), given.waits != 0) << given.error;
    EXPECT_EQ(waits, given.waits) << given.error;
    expectOnly(given.waits != 0 ? newBytes : oldBytes);
  }
}

TEST_F(SafeFile, WhatKeepsAFileFromBeingWrittenLeavesItAlone) {
  putFile(path, oldBytes);
  SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_FALSE(save());
  EXPECT_EQ(GetFileAttributesA(path.c_str()) & FILE_ATTRIBUTE_READONLY, FILE_ATTRIBUTE_READONLY);
  SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
  {
    const values::FileHandle held(
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
  files.wholeSecurity = true;
  files.keepFolder = elsewhere.path();
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
  // The second name of a file that was to come back, before and after the first was taken.
  const std::string second = temporaryName(path).substr(0, temporaryName(path).size() - 3) + "old";
  CreateHardLinkA(second.c_str(), path.c_str(), nullptr);
  EXPECT_TRUE(save("next"));
  expectOnly("next");
  putFile(second, "torn");
  EXPECT_TRUE(save());
  expectOnly(newBytes);
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
}  // namespace files
