#include "app/modAssociate_win.h"

#include <windows.h>

#include <cstdint>
#include <limits>

#include "library/clsLibrary_win.h"
#include "library/path_utilities.h"
#include "library/settings_text.h"
#include "values/handles_win.h"
#include "values/number_text.h"
#include "values/user_locale_win.h"
#include "windowing/application_win.h"
#include "windowing/seams_win.h"

namespace app {
namespace {

using values::RegistryKey;

constexpr std::int32_t classesRoot = std::numeric_limits<std::int32_t>::min();
constexpr REGSAM keyAccess = 63;  // the six rights that only keys have; no standard rights

void makeKey(HKEY root, const std::string& path) {
  HKEY key = nullptr;
  if (RegCreateKeyExA(root, path.c_str(), 0, nullptr, 0, keyAccess, nullptr, &key, nullptr) ==
      ERROR_SUCCESS)
    RegCloseKey(key);
}

// An empty name is the key's default value.
void setText(HKEY root, const std::string& path, const std::string& name, const std::string& text) {
  HKEY opened = nullptr;
  if (RegOpenKeyExA(root, path.c_str(), 0, keyAccess, &opened) != ERROR_SUCCESS) return;
  const RegistryKey key(opened);
  RegSetValueExA(key.get(), name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                 static_cast<DWORD>(text.size()) + 1);
}

void write(HKEY root, const std::string& path, const std::string& name, const std::string& text) {
  const HKEY key = windowing::seams().settingsRoot(root);
  makeKey(key, path);
  setText(key, path, name, text);
}

}  // namespace

void Associate(const std::string& extension, const std::string& typeName,
               const std::string& iconIndex) {
  const std::string exe = windowing::programName();
  const std::string file = exe + ".exe";
  const std::string program =
      library::composePath(windowing::programFolder(), file, values::isLeadByte);
  const std::string document = exe + ".Document";
  // Deliberately no quotes around the program or "%1": start-up takes everything that follows the
  // program's name as one path.
  const std::string command = program + " %1";
  library::clsLibrary& library = library::LIBRARY();

  write(HKEY_CLASSES_ROOT, "." + extension, "", document);
  write(HKEY_CLASSES_ROOT, document, "", typeName);
  write(HKEY_CLASSES_ROOT, document + "\\shell\\open\\command", "", command);
  library.REGDWORDREAD(classesRoot, document, "EDITFLAGS", values::toInteger32("0000", '.'));
  library.REGSTRWRITE(library::rootText(classesRoot), document + "\\DefaultIcon", "",
                      program + "," + iconIndex);
  write(HKEY_CURRENT_USER,
        "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\FileExts\\." + extension,
        "Application", file);
  write(HKEY_CLASSES_ROOT, "Applications\\" + file + "\\shell\\open\\command", "", command);
}

}  // namespace app
