#include <gtest/gtest.h>

#include <windows.h>

#include <shellapi.h>

#include "library/clsLibrary_win.h"
#include "library/modLibrary_win.h"
#include "tests/support/dialog_driver_win.h"
#include "tests/support/plain_form_win.h"
#include "tests/support/scratch_folder_win.h"
#include "values/runtime_error.h"
#include "windowing/seams_win.h"

namespace library {
namespace {

using test_support::DialogDriver;
using test_support::PlainForm;
using test_support::ScratchFolder;

const std::string overlong = "C:\\" + std::string(32764, 'x');

std::int64_t binned() {
  SHQUERYRBINFO info{};
  info.cbSize = sizeof info;
  return SUCCEEDED(SHQueryRecycleBinA("C:\\", &info)) ? info.i64NumItems : -1;
}

TEST(Files, DeletingAsksAndPutsIntoTheRecycleBin) {
  const ScratchFolder folder;
  const std::string file = folder.file("a.tly", "a");
  const auto before = binned();
  ASSERT_GE(before, 0) << "there is no recycle bin";
  for (const int answer : {IDNO, IDYES}) {
    DialogDriver driver(answer);
    LIBRARY().FILEDELETE(file);
    EXPECT_EQ(driver.seen().size(), 1U);
    EXPECT_EQ(ScratchFolder::exists(file), answer == IDNO);
    EXPECT_EQ(binned(), before + (answer == IDYES ? 1 : 0));
  }
}

TEST(Files, OverwritingIsAskedForExistingFilesOnly) {
  const ScratchFolder folder;
  const std::string file = folder.file("a.tly");
  for (const int answer : {IDNO, IDYES}) {
    DialogDriver driver(answer);
    EXPECT_TRUE(LIBRARY().OVERWRITECHK(folder / "new.tly"));
    EXPECT_TRUE(driver.seen().empty());
    EXPECT_EQ(LIBRARY().OVERWRITECHK(file), answer == IDYES);
    ASSERT_EQ(driver.seen().size(), 1U);
    EXPECT_NE(driver.seen()[0].text.find(file), std::string::npos);
  }
}

TEST(Files, FilesAndFoldersAreToldApart) {
  const ScratchFolder folder;
  const std::string file = folder.file("Book.tly");
  SetFileAttributesA(file.c_str(), FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN);
  const struct {
    std::string path;
    bool file, folder;
  } rows[] = {{folder / "BOOK.TLY", true, false},
              {folder.path() + "\\", false, true},
              {"C:", false, true},
              {"", false, false},
              {folder / "Bo?k.tly", false, false},
              {file + "\\", false, false},
              {file + std::string("\0junk", 5), false, false},
              {overlong, false, false}};
  for (const auto& row : rows) {
    EXPECT_EQ(LIBRARY().FILEEXISTS(row.path), row.file) << row.path.substr(0, 300);
    EXPECT_EQ(LIBRARY().FOLDEREXIST(row.path), row.folder) << row.path.substr(0, 300);
  }
}

// The shell takes patterns and names in the current folder: what is deleted is named in full.
TEST(Files, OnlyAWholePathIsDeleted) {
  const ScratchFolder folder;
  const std::string file = folder.file("a.tly");
  DialogDriver driver(IDYES);
  for (const std::string& path :
       {folder / "*.tly", std::string("C:a.tly"), file + std::string("\0x", 2)})
    LIBRARY().FILEDELETE(path);
  EXPECT_TRUE(ScratchFolder::exists(file));
  EXPECT_TRUE(driver.seen().empty());
}

TEST(Files, WhateverTheShellTakesIsMovedAndRenamed) {
  const ScratchFolder folder;
  const std::string inner = folder.folder("inner");
  for (const char* name : {"a.tly", "c.one"}) folder.file(name);
  SetCurrentDirectoryA(folder.path().c_str());
  LIBRARY().FILERENAME("a.tly", "b.tly");
  LIBRARY().FILEMOVE("b.tly", "inner");
  LIBRARY().FILEMOVE(folder / "*.one", inner);
  SetCurrentDirectoryA("C:\\");
  for (const char* name : {"\\b.tly", "\\c.one"})
    EXPECT_TRUE(ScratchFolder::exists(inner + name)) << name;
}

TEST(Files, APathTooLongForTheShellIsReported) {
  const ScratchFolder folder;
  const std::string file = folder.file("a.tly");
  DialogDriver driver(IDOK);
  LIBRARY().FILEMOVE(overlong, folder.path());
  LIBRARY().FILERENAME(file, overlong);
  LIBRARY().FILEDELETE(overlong);
  EXPECT_EQ(driver.seen().size(), 3U);
  EXPECT_TRUE(ScratchFolder::exists(file));
}

TEST(Files, BrowsingHandsTheFolderOnAndOutlivesABrokenForm) {
  class Browser : public PlainForm {
   protected:
    void onLoad() override {
      EXPECT_EQ(modLibrary().folderBrowseFolder, "C:\\Data");
      values::raiseOverflow();
    }
  };
  PlainForm form;
  form.show();
  Browser browser;
  EXPECT_NO_THROW(LIBRARY().FOLDERBROWSE(form, "C:\\Data", browser));
}

TEST(Files, AddressesAreHandedToTheShellWithoutQuotesOrFailInSilence) {
  {
    DialogDriver driver(IDOK);
    LIBRARY().INTERNETACCESS("0", "", "nosuchscheme:x");
    LIBRARY().INTERNETACCESS("0", "zz:", std::string(32767, 'x'));
    MSG message{};
    const UINT_PTR timer = SetTimer(nullptr, 0, 300, nullptr);
    while (GetMessageA(&message, nullptr, 0, 0) && message.wParam != timer)
      DispatchMessageA(&message);
    KillTimer(nullptr, timer);
    EXPECT_TRUE(driver.seen().empty());
  }
  std::string handed;
  const windowing::Replaced open(windowing::seams().shellOpen,
                                 [&](HWND, const std::string& verb, const std::string& file,
                                     const std::string&) { handed = verb + " " + file; });
  LIBRARY().INTERNETACCESS("66", "mailto:", "");
  EXPECT_EQ(handed, "");
  const struct {
    std::string address, handed;
  } rows[] = {{" two words 100%20%", " two words 100%20%"},
              {"x\" -evil \"y", "x%22 -evil %22y"},
              {overlong, overlong}};
  for (const auto& row : rows) {
    LIBRARY().INTERNETACCESS("66", "mailto:", row.address);
    EXPECT_EQ(handed, "Open mailto:" + row.handed);
  }
  EXPECT_THROW(LIBRARY().INTERNETACCESS("none", "mailto:", "a"), values::RuntimeError);
}

}  // namespace
}  // namespace library
