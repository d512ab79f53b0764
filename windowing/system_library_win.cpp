#include "windowing/system_library_win.h"

#include <string>

#include "values/system_error_win.h"

namespace windowing {

void loadLibrariesFromSystemOnly() {
  const auto restrict = reinterpret_cast<BOOL(WINAPI*)(DWORD)>(reinterpret_cast<void*>(
      GetProcAddress(GetModuleHandleA("kernel32.dll"), "SetDefaultDllDirectories")));
  if (restrict != nullptr) restrict(LOAD_LIBRARY_SEARCH_SYSTEM32);
}

HMODULE loadSystemLibrary(const char* name) {
  char folder[MAX_PATH] = {};
  const UINT length = GetSystemDirectoryA(folder, sizeof folder);
  if (length == 0 || length >= sizeof folder) return nullptr;
  // The flag makes Windows look for the library's own libraries in its folder, not in the
  // program's.
  return LoadLibraryExA((std::string(folder) + '\\' + name).c_str(), nullptr,
                        LOAD_WITH_ALTERED_SEARCH_PATH);
}

SystemLibrary::SystemLibrary(const char* name) : module_(loadSystemLibrary(name)) {
  if (module_ == nullptr) values::raiseLastError();
}

SystemLibrary::Function SystemLibrary::function(const char* name) const {
  const FARPROC found = GetProcAddress(module_, name);
  if (found == nullptr) values::raiseLastError();
  return Function(found);
}

}  // namespace windowing
