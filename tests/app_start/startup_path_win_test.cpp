#include "app/startup_path_win.h"

#include <gtest/gtest.h>

#include "tests/support/scratch_folder_win.h"

namespace app {
namespace {

using test_support::ScratchFolder;

TEST(StartupPath, NamesTheDocumentAsTheDiskDoes) {
  const ScratchFolder folder;
  const std::string inner = folder.folder("My Papers");
  const std::string file = folder.file("My Papers\\Anna's Book.tly");
  const std::string twin = folder.file("My Papers\\No Extension");
  char old[MAX_PATH] = {};
  GetCurrentDirectoryA(sizeof old, old);
  SetCurrentDirectoryA(folder.path().c_str());
  char alias[MAX_PATH] = {};
  GetShortPathNameA(file.c_str(), alias, sizeof alias);
  const std::pair<std::string, std::string> rows[] = {
      {alias, file},
      {"\\\\server\\share\\A\\b", "\\\\server\\share\\A\\b"},
      {file, file},
      {"MY PAPERS\\ANNA'S BOOK.TLY", file},
      {"my papers\\..\\my papers\\anna's book.tly", file},
      {"MY PAPERS\\NO EXTENSION", twin},
      {"MY PAPERS\\Not There.TLY", inner + "\\Not There.TLY"},
      {"New Folder\\a.tly", folder / "New Folder\\a.tly"},
      {"MY PAPERS\\*.tly", inner + "\\*.tly"},
      {"my*\\a.tly", folder / "my*\\a.tly"},
      {"my papers", inner},
      {"C:\\", "C:\\"},
  };
  for (const auto& [tail, expected] : rows) EXPECT_EQ(documentPathOf(tail), expected) << tail;
  SetCurrentDirectoryA(old);
}

TEST(StartupPath, PathsTooLongStayNamed) {
  for (const std::size_t length : {3U, 259U, 260U, 261U, 32767U}) {
    const std::string path = "C:\\" + std::string(length - 3, 'x');
    EXPECT_EQ(documentPathOf(path), path) << length;
  }
}

}  // namespace
}  // namespace app
