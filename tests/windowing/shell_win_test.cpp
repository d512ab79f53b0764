#include "windowing/shell_win.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <objbase.h>

#include <functional>
#include <thread>

#include "app/startup_path_win.h"
#include "dialogs/file_facts_win.h"
#include "library/clsLibrary_win.h"
#include "tests/support/scratch_folder_win.h"
#include "windowing/seams_win.h"

namespace {

bool comIsReady() {
  const auto asked = reinterpret_cast<HRESULT(WINAPI*)(int*, int*)>(
      reinterpret_cast<void*>(GetProcAddress(LoadLibraryA("ole32.dll"), "CoGetApartmentType")));
  int type = 0;
  int qualifier = 0;
  return asked != nullptr && asked(&type, &qualifier) == S_OK;
}

// On threads of their own: one call would ready COM for all that follow on the same.
TEST(Shell, EveryCallFindsComReady) {
  const test_support::ScratchFolder folder;
  const std::string file = folder.file("a.tly");
  const struct {
    const char* name;
    std::function<void()> run;
  } calls[] = {
      {"name at start", [&] { (void)app::documentPathOf(file); }},
      {"facts of a file", [&] { (void)dialogs::fileFacts(file); }},
      {"opening", [] { windowing::seams().shellOpen(nullptr, "Open", "nosuchscheme:x", ""); }},
      {"renaming", [&] { library::LIBRARY().FILERENAME(file, folder / "b.tly"); }},
  };
  for (const auto& call : calls) {
    bool before = true;
    bool after = false;
    std::thread([&] {
      before = comIsReady();
      call.run();
      after = comIsReady();
    }).join();
    EXPECT_FALSE(before) << call.name;
    EXPECT_TRUE(after) << call.name;
  }
}

}  // namespace
