#include "windowing/system_library_win.h"

#include <gtest/gtest.h>

#include "tests/support/scratch_folder_win.h"

namespace {

TEST(SystemLibraries, AreLookedForInTheSystemsFolderOnly) {
  const test_support::ScratchFolder folder;
  char system[MAX_PATH] = {};
  GetSystemDirectoryA(system, sizeof system);
  const std::string real = std::string(system) + "\\msimg32.dll";
  ASSERT_TRUE(CopyFileA(real.c_str(), (folder / "planted.dll").c_str(), TRUE));
  char before[MAX_PATH] = {};
  GetCurrentDirectoryA(sizeof before, before);
  SetCurrentDirectoryA(folder.path().c_str());
  const HMODULE anywhere = LoadLibraryA("planted.dll");
  EXPECT_NE(anywhere, nullptr) << "by its name alone it is found";
  FreeLibrary(anywhere);
  EXPECT_EQ(windowing::loadSystemLibrary("planted.dll"), nullptr);

  windowing::loadLibrariesFromSystemOnly();
  EXPECT_EQ(LoadLibraryA("planted.dll"), nullptr);
  SetCurrentDirectoryA(before);
}

}  // namespace
