// Whose libraries the program loads.
#include <windows.h>

#include <tlhelp32.h>

#include "tests/app/support/fixture_win.h"
#include "tests/support/print_job_win.h"
#include "tests/support/printers_win.h"

namespace {

namespace id = mainwindow::id;

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
  EXPECT_EQ(test_support::pagesOf(test_support::TestPrinters::letterJob()).size(), 1U);
  char system[MAX_PATH] = {};
  GetSystemDirectoryA(system, sizeof system);
  for (const std::string& name : names) EXPECT_STRCASEEQ(origin(name).c_str(), system) << name;
}

// The compiler's library asks for a random number before the program's first line, and Windows
// loads a library for it, which is gone again when the window comes up.
TEST_F(Libraries, ComeFromTheSystemBeforeTheFirstLine) {
  const std::string exe = path("Tellary.exe");
  for (const char* name : {"Tellary.exe", "bcrypt.dll"})
    ASSERT_TRUE(CopyFileA(drive::programUnderTest().c_str(), path(name).c_str(), TRUE));
  STARTUPINFOA start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION made{};
  ASSERT_TRUE(CreateProcessA(exe.c_str(), nullptr, nullptr, nullptr, FALSE, DEBUG_ONLY_THIS_PROCESS,
                             nullptr, nullptr, &start, &made));
  const std::string name = path("bcrypt.dll");
  const std::wstring planted(name.begin(), name.end());  // plain ASCII
  DEBUG_EVENT event{};
  constexpr DWORD patience = 2000;  // of a program that loads nothing more
  while (WaitForDebugEvent(&event, patience)) {
    if (event.dwDebugEventCode == LOAD_DLL_DEBUG_EVENT) {
      const void* at = nullptr;
      wchar_t from[MAX_PATH] = {};
      const LOAD_DLL_DEBUG_INFO& library = event.u.LoadDll;
      ReadProcessMemory(made.hProcess, library.lpImageName, &at, sizeof at, nullptr);
      ReadProcessMemory(made.hProcess, at, from, sizeof from - sizeof *from, nullptr);
      EXPECT_NE(lstrcmpiW(from, planted.c_str()), 0);
      CloseHandle(library.hFile);
    }
    ContinueDebugEvent(event.dwProcessId, event.dwThreadId, DBG_CONTINUE);
  }
  TerminateProcess(made.hProcess, 0);
  for (const HANDLE handle : {made.hThread, made.hProcess}) CloseHandle(handle);
}

}  // namespace
