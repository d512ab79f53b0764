// Measures how long the program takes from its start until it waits for the user, with and without
// a full document, and how much memory it takes; against an empty window and against the system's
// own text editor:
//   bench_start_win TELLARY.EXE EMPTY_WINDOW.EXE FULL_DOCUMENT
#include <windows.h>

#include <psapi.h>

#include <cstdlib>
#include <string>

#include "bench/big_document.h"
#include "bench/measuring.h"

namespace {

[[noreturn]] void fail(const std::string& what) {
  std::printf("%s: error %lu\n", what.c_str(), GetLastError());
  std::exit(1);
}

struct Search {
  DWORD process;
  HWND found;
};

BOOL CALLBACK lookAt(HWND window, LPARAM data) {
  auto& search = *reinterpret_cast<Search*>(data);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  if (process != search.process || !IsWindowVisible(window)) return TRUE;
  search.found = window;
  return FALSE;
}

HWND windowOf(DWORD process) {
  Search search{process, nullptr};
  EnumWindows(lookAt, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

BOOL CALLBACK noteUnpainted(HWND window, LPARAM data) {
  if (IsWindowVisible(window) && GetUpdateRect(window, nullptr, FALSE))
    *reinterpret_cast<bool*>(data) = true;
  return TRUE;
}

/// Whether a window and all in it have been painted.
bool painted(HWND window) {
  bool unpainted = false;
  noteUnpainted(window, reinterpret_cast<LPARAM>(&unpainted));
  EnumChildWindows(window, noteUnpainted, reinterpret_cast<LPARAM>(&unpainted));
  return !unpainted;
}

struct Start {
  double milliseconds = 0;
  double peakBytes = 0;
};

/// Starts a program, waits until its window is painted and it waits for input, and closes it.
Start start(const std::string& command) {
  Start result;
  std::string line = command;
  STARTUPINFOA info{};
  info.cb = sizeof info;
  PROCESS_INFORMATION child{};
  HWND window = nullptr;
  // The end of the program before must not be measured with this one.
  Sleep(500);
  result.milliseconds = bench::milliseconds([&] {
    if (!CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &info,
                        &child))
      fail(command);
    do {
      if (WaitForInputIdle(child.hProcess, 120000) != 0) fail(command);
      window = windowOf(child.dwProcessId);
      if (window == nullptr) Sleep(1);
    } while (window == nullptr);
    // WaitForInputIdle returns before the program is back in its message loop and has painted.
    SendMessageA(window, WM_NULL, 0, 0);
    while (!painted(window)) Sleep(1);
  });
  PROCESS_MEMORY_COUNTERS memory{};
  if (!GetProcessMemoryInfo(child.hProcess, &memory, sizeof memory)) fail("memory");
  result.peakBytes = static_cast<double>(memory.PeakWorkingSetSize);
  PostMessageA(window, WM_CLOSE, 0, 0);
  if (WaitForSingleObject(child.hProcess, 10000) != WAIT_OBJECT_0) fail("closing " + command);
  CloseHandle(child.hThread);
  CloseHandle(child.hProcess);
  return result;
}

/// One read and a scan for line ends. Returns the file's size.
double readAndScan(const std::string& path) {
  const HANDLE file = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                  OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
  if (file == INVALID_HANDLE_VALUE) fail(path);
  document::Bytes bytes(GetFileSize(file, nullptr));
  DWORD got = 0;
  if (!ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &got, nullptr)) fail(path);
  CloseHandle(file);
  if (bench::countNewlines(bytes.view()) == 0) fail("an empty document");
  return static_cast<double>(got);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) return 2;
  const std::string program = argv[1];
  const std::string empty = argv[2];
  const std::string document = argv[3];
  for (const std::string& once : {empty, program, std::string("notepad.exe")}) start(once);

  bench::Figure overEmpty;
  bench::Figure overNotepad;
  bench::Figure opening;
  bench::Figure memory;
  std::vector<double> full;
  for (int round = 0; round < bench::rounds; ++round) {
    const Start nothing = start(empty);
    const Start bare = start(program);
    const Start notepad = start("notepad.exe");
    const Start big = start(program + " " + document);
    double size = 0;
    const double floor = bench::milliseconds([&] { size = readAndScan(document); });
    overEmpty.add(bare.milliseconds, nothing.milliseconds);
    overNotepad.add(bare.milliseconds, notepad.milliseconds);
    opening.add(big.milliseconds - bare.milliseconds, floor);
    memory.add((big.peakBytes - nothing.peakBytes) / 1e6, size / 1e6);
    full.push_back(big.milliseconds);
    std::printf("round %d: empty %.0f, program %.0f, notepad %.0f, full document %.0f ms\n",
                round + 1, nothing.milliseconds, bare.milliseconds, notepad.milliseconds,
                big.milliseconds);
  }
  overEmpty.tell("start to idle / empty window (ms)", 2.0);
  overNotepad.tell("start to idle / notepad (ms)", 1.5);
  opening.tell("opening 32,767 contacts / reading floor (ms)", 4.5);
  memory.tell("peak memory over the empty window / file (MB)", 4.0);

  // Measured only once, because it takes long.
  bench::Figure editor;
  editor.add(bench::median(full), start("notepad.exe " + document).milliseconds);
  editor.tell("start with 32,767 contacts / notepad (ms, once)", 0.02);
  return 0;
}
