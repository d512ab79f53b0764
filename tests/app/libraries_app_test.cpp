// Whose libraries the program loads.
#include <windows.h>

#include <tlhelp32.h>

#include "tests/app/support/fixture_win.h"
#include "tests/support/printers_win.h"

namespace {

namespace id = library::id;

class Libraries : public drive::AppTest {
 protected:
  /// Folder that the library `name` was loaded from into the program; empty where it was not.
  [[nodiscard]] std::string origin(const std::string& name) const {
    std::string found;
    const HANDLE list = CreateToolhelp32Snapshot(TH32CS_SNAPMODULE, program().processId());
    MODULEENTRY32 module{};
    module.dwSize = sizeof module;
    for (BOOL more = Module32First(list, &module); more; more = Module32Next(list, &module))
      if (lstrcmpiA(module.szModule, name.c_str()) == 0) found = module.szExePath;
    CloseHandle(list);
    return found.substr(0, found.find_last_of('\\'));
  }
};

TEST_F(Libraries, ComeFromTheSystemEvenWhereOthersLieBesideTheProgram) {
  const test_support::TestPrinters printers;
  // One that the program loads itself, and one that the system loads for it. Where to look for
  // imported ones, and for what these bring along, Windows knows by itself; Wine does not.
  const std::string names[] = {"riched20.dll", "localspl.dll"};
  const std::string exe = path("Tellary.exe");
  ASSERT_TRUE(CopyFileA(drive::programUnderTest().c_str(), exe.c_str(), TRUE));
  for (const std::string& name : names)
    ASSERT_TRUE(CopyFileA(exe.c_str(), path(name).c_str(), TRUE));

  const drive::Program& program = start("", exe);
  program.clickButton(id::PRINT);
  char system[MAX_PATH] = {};
  GetSystemDirectoryA(system, sizeof system);
  for (const std::string& name : names) EXPECT_STRCASEEQ(origin(name).c_str(), system) << name;
}

}  // namespace
