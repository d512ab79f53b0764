#include "windowing/system_library_win.h"

#include <delayimp.h>
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
  DelayLoadInfo late{};
  late.szDll = "msimg32.dll";
  const FARPROC loaded = __pfnDliNotifyHook2(dliNotePreLoadLibrary, &late);
  EXPECT_NE(loaded, nullptr) << "a library that is loaded late has the system's folder put before";
  EXPECT_EQ(reinterpret_cast<HMODULE>(loaded), GetModuleHandleA(real.c_str()));
  SetCurrentDirectoryA(before);
}

}  // namespace
