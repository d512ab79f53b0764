#include "windowing/system_library_win.h"

#include <delayimp.h>

#include <string>

namespace windowing {
namespace {

// Asked by the calls that load their library late, before they look for it themselves.
FARPROC WINAPI loadLate(unsigned event, DelayLoadInfo* wanted) {
  if (event != dliNotePreLoadLibrary) return nullptr;
  return reinterpret_cast<FARPROC>(loadSystemLibrary(wanted->szDll));
}

}  // namespace

void loadLibrariesFromSystemOnly() {
  __pfnDliNotifyHook2 = loadLate;
  const auto restrict = reinterpret_cast<BOOL(WINAPI*)(DWORD)>(reinterpret_cast<void*>(
      GetProcAddress(GetModuleHandleA("kernel32.dll"), "SetDefaultDllDirectories")));
  if (restrict != nullptr) restrict(LOAD_LIBRARY_SEARCH_SYSTEM32);
}

HMODULE loadSystemLibrary(const char* name) {
  char folder[MAX_PATH] = {};
  const UINT length = GetSystemDirectoryA(folder, sizeof folder);
  if (length == 0 || length >= sizeof folder) return nullptr;
  // What it needs itself is looked for beside it, not beside the program.
  return LoadLibraryExA((std::string(folder) + '\\' + name).c_str(), nullptr,
                        LOAD_WITH_ALTERED_SEARCH_PATH);
}

}  // namespace windowing
