#include <gtest/gtest.h>

#include <windows.h>

#include <shellapi.h>

#include "library/clsLibrary_win.h"
#include "library/modLibrary_win.h"
#include "library/proper_case_win.h"
#include "tests/support/dialog_driver_win.h"
#include "tests/support/failing_files_win.h"
#include "tests/support/plain_form_win.h"
#include "tests/support/scratch_folder_win.h"
#include "windowing/application_win.h"
#include "windowing/runtime_error.h"
#include "windowing/seams_win.h"

namespace library {
namespace {

using test_support::DialogDriver;
using test_support::PlainForm;
using test_support::pumpUntil;
using test_support::ScratchFolder;
using windowing::Replaced;
using windowing::seams;

TEST(Files, DeletingAsksAndPutsIntoTheRecycleBin) {
  const ScratchFolder folder;
  const std::string kept = folder.file("kept.tly", "a");
  const std::string deleted = folder.file("deleted.tly", "b");
  const auto binned = [] {
    SHQUERYRBINFO info{};
    info.cbSize = sizeof info;
    return SUCCEEDED(SHQueryRecycleBinA("C:\\", &info)) ? info.i64NumItems : -1;
  };
  const auto before = binned();
  ASSERT_GE(before, 0) << "there is no recycle bin";
  {
    DialogDriver no(IDNO);
    LIBRARY().FILEDELETE(kept);
    EXPECT_EQ(no.seen().size(), 1U);
  }
  EXPECT_TRUE(ScratchFolder::exists(kept));
  EXPECT_EQ(binned(), before);
  {
    DialogDriver yes(IDYES);
    LIBRARY().FILEDELETE(deleted);
    EXPECT_EQ(yes.seen().size(), 1U);
  }
  EXPECT_FALSE(ScratchFolder::exists(deleted));
  EXPECT_EQ(binned(), before + 1);
}

TEST(Files, MovingAndRenaming) {
  const ScratchFolder folder;
  const std::string file = folder.file("one.tly", "text");
  const std::string inner = folder.folder("inner");
  DialogDriver driver(IDYES);
  LIBRARY().FILERENAME(file, folder / "two.tly");
  EXPECT_FALSE(ScratchFolder::exists(file));
  LIBRARY().FILEMOVE(folder / "two.tly", inner);
  EXPECT_EQ(support::bytesOf(inner + "\\two.tly"), "text");
}

TEST(Files, OverwritingIsAskedForExistingFilesOnly) {
  const ScratchFolder folder;
  const std::string file = folder.file("a.tly");
  {
    DialogDriver driver(IDYES);
    EXPECT_TRUE(LIBRARY().OVERWRITECHK(folder / "new.tly"));
    EXPECT_TRUE(LIBRARY().OVERWRITECHK(""));
    EXPECT_TRUE(driver.seen().empty());
    EXPECT_TRUE(LIBRARY().OVERWRITECHK(file));
    ASSERT_EQ(driver.seen().size(), 1U);
    EXPECT_NE(driver.seen()[0].text.find(file), std::string::npos);
  }
  DialogDriver driver(IDNO);
  EXPECT_FALSE(LIBRARY().OVERWRITECHK(file));
}

TEST(Files, AddressesThatNothingHandlesAreSilent) {
  DialogDriver driver(IDOK);
  LIBRARY().INTERNETACCESS("0", "", "nosuchscheme:x");
  for (const std::size_t length : {955, 990, 2000, 32767})
    LIBRARY().INTERNETACCESS("0", "zz:", std::string(length, 'x'));
  pumpUntil([] { return false; }, 300);
  EXPECT_TRUE(driver.seen().empty()) << driver.seen()[0].text;
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
              {folder / "*", false, false},
              {file + "\\", false, false},
              {file + std::string("\0junk", 5), false, false},
              {"C:\\" + std::string(32767 - 3, 'x'), false, false}};
  for (const auto& row : rows) {
    EXPECT_EQ(LIBRARY().FILEEXISTS(row.path), row.file) << row.path.substr(0, 300);
    EXPECT_EQ(LIBRARY().FOLDEREXIST(row.path), row.folder) << row.path.substr(0, 300);
  }
}

// Nothing but one file with its full path ever reaches the shell, which takes patterns.
TEST(Files, PatternsAndPartialPathsAreLeftAlone) {
  const ScratchFolder folder;
  const std::string file = folder.file("a.tly");
  DialogDriver driver(IDYES);
  for (const std::string& path : {folder / "*.tly", std::string("C:a.tly"),
                                  "C:\\" + std::string(32764, 'x'), file + std::string("\0x", 2)}) {
    LIBRARY().FILEDELETE(path);
    LIBRARY().FILEMOVE(path, folder / "moved.tly");
    LIBRARY().FILERENAME(file, path);
  }
  EXPECT_TRUE(ScratchFolder::exists(file));
  EXPECT_TRUE(driver.seen().empty());
}

TEST(Files, BrowsingHandsTheFolderOnAndOutlivesABrokenForm) {
  class Browser : public PlainForm {
   protected:
    void onLoad() override {
      EXPECT_EQ(modLibrary().folderBrowseFolder, "C:\\Data");
      windowing::raiseOverflow();
    }
  };
  PlainForm form;
  form.show();
  Browser browser;
  EXPECT_NO_THROW(LIBRARY().FOLDERBROWSE(form, "C:\\Data", browser));
}

TEST(Files, AddressesAreHandedToTheShellAsTheyStand) {
  std::vector<std::string> handed;
  const Replaced open(seams().shellOpen,
                      [&](HWND, const std::string& verb, const std::string& file,
                          const std::string&) { handed.push_back(verb + " " + file); });
  LIBRARY().INTERNETACCESS("66", "mailto:", "");
  EXPECT_TRUE(handed.empty());
  for (const std::string& address :
       {std::string(" two \"words\" "), std::string("100%20%"), std::string(32767, 'x')}) {
    LIBRARY().INTERNETACCESS("66", "mailto:", address);
    EXPECT_EQ(handed.back(), "Open mailto:" + address);
  }
  EXPECT_THROW(LIBRARY().INTERNETACCESS("none", "mailto:", "a"), windowing::RuntimeError);
}

TEST(ProperCase, LettersComeFromTheDisk) {
  const ScratchFolder folder;
  folder.folder("Inner Folder");
  const std::string inner = folder.file("Inner Folder\\Long Name of a File.tly");
  std::string upper = inner;
  CharUpperA(upper.data());
  char alias[MAX_PATH] = {};
  GetShortPathNameA(inner.c_str(), alias, sizeof alias);
  EXPECT_EQ(PROPERCASEPATH(upper), inner);
  EXPECT_EQ(PROPERCASEPATH(alias), inner);
  for (const std::string& kept : {folder / "MISSING\\A.TLY", folder / "*.TLY", std::string("c:\\"),
                                  std::string("\\\\server\\share\\A\\b"), std::string(),
                                  std::string("\\\\"), "C:\\" + std::string(32764, 'x')})
    EXPECT_EQ(PROPERCASEPATH(kept), kept);
}

}  // namespace
}  // namespace library
