#include <gtest/gtest.h>

#include <windows.h>

#include <shellapi.h>

#include "library/clsLibrary_win.h"
#include "library/modLibrary_win.h"
#include "library/proper_case_win.h"
#include "tests/support/dialog_driver_win.h"
#include "tests/support/plain_form_win.h"
#include "tests/support/scratch_folder_win.h"
#include "windowing/application_win.h"
#include "windowing/modal_win.h"
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

std::string contents(const std::string& path) {
  const windowing::FileHandle file(CreateFileA(
      path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
      OPEN_EXISTING, 0, nullptr));
  std::string bytes(70000, '\0');
  DWORD got = 0;
  if (!file || !ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &got, nullptr))
    return "(none)";
  bytes.resize(got);
  return bytes;
}

TEST(Files, FilesAndFoldersAreToldApart) {
  const ScratchFolder folder;
  const std::string file = folder.file("Book.tly");
  const std::string inner = folder.folder("Inner");
  SetFileAttributesA(file.c_str(),
                     FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
  const struct {
    std::string path;
    bool file, folder;
  } rows[] = {
      {file, true, false},
      {folder / "BOOK.TLY", true, false},
      {inner, false, true},
      {inner + "\\", false, true},
      {"C:\\", false, true},
      {"C:", false, true},
      {"", false, false},
      {"C:\\\\*", false, false},
      {folder / "Bo?k.tly", false, false},
      {folder / "*", false, false},
      {folder / "Book", false, false},
      {file + "\\", false, false},
      {file + std::string("\0junk", 5), false, false},
      {folder.path() + "\\" + std::string(259 - folder.path().size() - 1, 'x'), false, false},
      {folder.path() + "\\" + std::string(260 - folder.path().size() - 1, 'x'), false, false},
      {"C:\\" + std::string(32767 - 3, 'x'), false, false},
      {"C:\\\"<>|", false, false},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(LIBRARY().FILEEXISTS(row.path), row.file) << row.path.substr(0, 300);
    EXPECT_EQ(LIBRARY().FOLDEREXIST(row.path), row.folder) << row.path.substr(0, 300);
  }
  EXPECT_EQ(LIBRARY().FILECHK(""), "Untitled");
  EXPECT_EQ(LIBRARY().FILECHK(" "), " ");
}

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

TEST(Files, DeletingRefusesWhatIsNoFullPathOfOneFile) {
  const ScratchFolder folder;
  const std::string file = folder.file("a.tly");
  char old[MAX_PATH] = {};
  GetCurrentDirectoryA(sizeof old, old);
  SetCurrentDirectoryA(folder.path().c_str());
  DialogDriver driver(IDYES);
  for (const std::string& path : {std::string(), std::string("a.tly"), folder / "*.tly",
                                  folder / "?.tly", std::string("C:\\"), std::string("C:a.tly"),
                                  file + std::string("\0x", 2), folder / std::string("\0x", 2)}) {
    LIBRARY().FILEDELETE(path);
    LIBRARY().FILEMOVE(path, folder / "moved.tly");
    LIBRARY().FILERENAME(path, folder / "renamed.tly");
  }
  for (const std::string& target : {std::string(), std::string("b.tly"), folder / "*"}) {
    LIBRARY().FILEMOVE(file, target);
    LIBRARY().FILERENAME(file, target);
  }
  SetCurrentDirectoryA(old);
  EXPECT_TRUE(ScratchFolder::exists(file));
  EXPECT_TRUE(driver.seen().empty());
  // Paths longer than the shell takes do not reach it, shorter ones find nothing.
  for (const std::size_t length : {std::size_t{259}, std::size_t{260}, std::size_t{32767}}) {
    const std::string path = "C:\\" + std::string(length - 3, 'x');
    LIBRARY().FILEDELETE(path);
    LIBRARY().FILEMOVE(path, file);
    LIBRARY().FILERENAME(file, path);
  }
  EXPECT_TRUE(ScratchFolder::exists(file));
}

TEST(Files, MovingAndRenaming) {
  const ScratchFolder folder;
  const std::string file = folder.file("one.tly", "text");
  const std::string inner = folder.folder("inner");
  DialogDriver driver(IDYES);
  LIBRARY().FILERENAME(file, folder / "two.tly");
  EXPECT_FALSE(ScratchFolder::exists(file));
  LIBRARY().FILEMOVE(folder / "two.tly", inner);
  EXPECT_EQ(contents(inner + "\\two.tly"), "text");
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

TEST(Files, BrowsingHandsOwnerAndFolderToTheModalForm) {
  class Browser : public PlainForm {
   public:
    using PlainForm::PlainForm;
    HWND owner = nullptr;
    std::string folder;
    windowing::Form* asking = nullptr;

   protected:
    void onLoad() override { PostMessageA(handle(), WM_CLOSE, 0, 0); }
    void onUnload() override {
      owner = GetWindow(handle(), GW_OWNER);
      asking = windowing::formOf(modLibrary().folderBrowseOwner);
      folder = modLibrary().folderBrowseFolder;
    }
  };
  class Broken : public PlainForm {
    void onLoad() override { windowing::raiseOverflow(); }
  };
  PlainForm form;
  form.show();
  Browser browser;
  LIBRARY().FOLDERBROWSE(form, "C:\\Data", browser);
  EXPECT_EQ(browser.owner, form.handle());
  EXPECT_EQ(browser.asking, &form);
  EXPECT_EQ(browser.folder, "C:\\Data");
  Broken broken;
  EXPECT_NO_THROW(LIBRARY().FOLDERBROWSE(form, "", broken));
}

TEST(Files, AddressesAreHandedToTheShellAsTheyStand) {
  std::vector<std::string> handed;
  const Replaced open(seams().shellOpen, [&](HWND owner, const std::string& verb,
                                             const std::string& file, const std::string& folder) {
    EXPECT_EQ(owner, reinterpret_cast<HWND>(66));
    EXPECT_EQ(folder, windowing::programFolder());
    handed.push_back(verb + " " + file);
  });
  LIBRARY().INTERNETACCESS("66", "mailto:", "");
  LIBRARY().INTERNETACCESS("66", "", "");
  EXPECT_TRUE(handed.empty());
  for (const std::string& address :
       {std::string("a@b.c"), std::string(" two words "), std::string("\"quoted\""),
        std::string("100%20%"), std::string("javascript:x"), std::string(2000, 'x'),
        std::string(32767, 'x')}) {
    LIBRARY().INTERNETACCESS("66", "mailto:", address);
    EXPECT_EQ(handed.back(), "Open mailto:" + address);
    LIBRARY().INTERNETACCESS("66", "", LIBRARY().HTMLFORMATCHECK(address));
    EXPECT_EQ(handed.back(), "Open http://" + address);
  }
  EXPECT_THROW(LIBRARY().INTERNETACCESS("none", "mailto:", "a"), windowing::RuntimeError);
}

// A scheme whose addresses go to the recording program, as mail and web addresses go to
// theirs; what stood there before comes back.
class Handler {
 public:
  Handler(const std::string& scheme, const std::string& command)
      : scheme_(scheme), saved_("Software\\TellaryTests\\saved " + scheme) {
    copyTree(HKEY_CLASSES_ROOT, scheme_, HKEY_CURRENT_USER, saved_);
    RegDeleteTreeA(HKEY_CLASSES_ROOT, scheme_.c_str());
    set("", "", "URL:Test");
    set("", "URL Protocol", "");
    set("\\shell\\open\\command", "", command);
  }
  Handler(const Handler&) = delete;
  Handler& operator=(const Handler&) = delete;
  ~Handler() {
    RegDeleteTreeA(HKEY_CLASSES_ROOT, scheme_.c_str());
    copyTree(HKEY_CURRENT_USER, saved_, HKEY_CLASSES_ROOT, scheme_);
    RegDeleteTreeA(HKEY_CURRENT_USER, saved_.c_str());
  }

 private:
  static void copyTree(HKEY from, const std::string& source, HKEY to, const std::string& target) {
    HKEY opened = nullptr;
    if (RegOpenKeyExA(from, source.c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS) return;
    const windowing::RegistryKey key(opened);
    HKEY created = nullptr;
    RegCreateKeyExA(to, target.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &created, nullptr);
    const windowing::RegistryKey copy(created);
    RegCopyTreeA(opened, nullptr, created);
  }
  void set(const std::string& key, const std::string& name, const std::string& text) const {
    RegSetKeyValueA(HKEY_CLASSES_ROOT, (scheme_ + key).c_str(), name.c_str(), REG_SZ, text.c_str(),
                    static_cast<DWORD>(text.size() + 1));
  }
  std::string scheme_, saved_;
};

TEST(Files, AddressesReachTheRegisteredProgram) {
  // The mail program and browser of a real machine are left alone.
  if (GetProcAddress(GetModuleHandleA("ntdll.dll"), "wine_get_version") == nullptr)
    GTEST_SKIP() << "needs a Windows of its own";
  const std::string recorder = windowing::programFolder() + "\\recorder.exe";
  ASSERT_TRUE(ScratchFolder::exists(recorder)) << recorder;
  char temp[MAX_PATH] = {};
  GetTempPathA(sizeof temp, temp);
  const std::string record =
      std::string(temp) + "tellary" + std::to_string(GetCurrentProcessId()) + ".record";
  char shortRecord[MAX_PATH] = {};
  windowing::FileHandle(
      CreateFileA(record.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
  GetShortPathNameA(record.c_str(), shortRecord, sizeof shortRecord);
  DeleteFileA(record.c_str());
  const std::string command = "\"" + recorder + "\" " + shortRecord + " %1";
  const Handler mail("mailto", command), web("http", command);

  const auto handedOver = [&](const std::string& prefix, const std::string& address) {
    LIBRARY().INTERNETACCESS("0", prefix, address);
    if (!pumpUntil([&] { return ScratchFolder::exists(shortRecord); }))
      return std::string("(none)");
    std::string got = contents(shortRecord);
    DeleteFileA(shortRecord);
    return got;
  };
  EXPECT_EQ(handedOver("mailto:", "anna@example.org"), "mailto:anna@example.org");
  EXPECT_EQ(handedOver("mailto:", "anna b@example.org"), "mailto:anna b@example.org");
  EXPECT_EQ(handedOver("", LIBRARY().HTMLFORMATCHECK("www.example.org/a?b=c&d=%20")),
            "http://www.example.org/a?b=c&d=%20");
  // Some shells have 1,024 characters for the program's path and the address together.
  const std::string longAddress = "http://" + std::string(800, 'x');
  EXPECT_EQ(handedOver("", longAddress), longAddress);
  // A program's path typed as a web address starts nothing but the browser.
  EXPECT_EQ(handedOver("", LIBRARY().HTMLFORMATCHECK("C:\\windows\\notepad.exe")),
            "http://C:\\windows\\notepad.exe");
}

TEST(Files, AddressesThatNothingHandlesAreSilent) {
  DialogDriver driver(IDOK);
  LIBRARY().INTERNETACCESS("0", "", "nosuchscheme:x");
  for (const std::size_t length : {955, 990, 2000, 32767})
    LIBRARY().INTERNETACCESS("0", "zz:", std::string(length, 'x'));
  pumpUntil([] { return false; }, 300);
  EXPECT_TRUE(driver.seen().empty()) << driver.seen()[0].text;
}

TEST(ProperCase, LettersComeFromTheDisk) {
  const ScratchFolder folder;
  const std::string file = LIBRARY().GETFOLDERPATH(folder.file("x")) + "\\Book of Anna.tly";
  folder.folder("Inner Folder");
  folder.file("Inner Folder\\Long Name of a File.tly");
  MoveFileA((folder / "x").c_str(), file.c_str());
  const auto upper = [](std::string text) {
    CharUpperA(text.data());
    return text;
  };
  const std::string inner = folder / "Inner Folder\\Long Name of a File.tly";
  char alias[MAX_PATH] = {};
  GetShortPathNameA(inner.c_str(), alias, sizeof alias);
  const std::pair<std::string, std::string> rows[] = {
      {upper(file), file},
      {upper(inner), inner},
      {alias, inner},
      {upper(folder.path()) + "\\", folder.path() + "\\"},
      {upper(folder.path()) + "\\MISSING\\A.TLY", folder.path() + "\\MISSING\\A.TLY"},
      {upper(folder.path()) + "\\*.TLY", folder.path() + "\\*.TLY"},
      {upper(folder.path()) + "\\BOOK?OF?ANNA.TLY", folder.path() + "\\BOOK?OF?ANNA.TLY"},
      {"C:\\", "C:\\"},
      {"c:\\", "c:\\"},
      {"\\\\server\\share\\A\\b", "\\\\server\\share\\A\\b"},
      {"", ""},
      {"C", "C"},
      {"\\\\", "\\\\"},
      {std::string("C:\\x\0y", 6), std::string("C:\\x\0y", 6)},
      {"C:\\" + std::string(257, 'x'), "C:\\" + std::string(257, 'x')},
      {"C:\\" + std::string(32764, 'x'), "C:\\" + std::string(32764, 'x')},
  };
  for (const auto& [given, expected] : rows) EXPECT_EQ(PROPERCASEPATH(given), expected);
  EXPECT_EQ(TRIMNULL(std::string("a\0b", 3)), "a");
  EXPECT_EQ(TRIMNULL("ab"), "ab");
}

}  // namespace
}  // namespace library
