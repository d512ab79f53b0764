// The settings store. Values are read from the registry and written to it at once; none is kept in
// memory.
#include <array>

#include "library/clsLibrary_win.h"
#include "library/path_utilities.h"
#include "library/settings_text.h"
#include "library/stored_settings_win.h"
#include "values/handles_win.h"
#include "values/runtime_error.h"
#include "values/user_locale_win.h"
#include "windowing/application_win.h"
#include "windowing/seams_win.h"

namespace library {
namespace {

using values::RegistryKey;

HKEY rootKey(std::int32_t number) {
  return windowing::seams().settingsRoot(reinterpret_cast<HKEY>(static_cast<LONG_PTR>(number)));
}

HKEY rootKey(const std::string& number) {
  return rootKey(rootOfText(number));
}

RegistryKey createdKey(HKEY root, const std::string& path) {
  SECURITY_ATTRIBUTES inheritable{sizeof inheritable, nullptr, TRUE};
  HKEY key = nullptr;
  const LSTATUS result =
      RegCreateKeyExA(root, path.c_str(), 0, nullptr, 0, KEY_WRITE, &inheritable, &key, nullptr);
  return RegistryKey(result == ERROR_SUCCESS ? key : nullptr);
}

std::string readText(HKEY root, const std::string& path, const std::string& name,
                     const std::string& otherwise) {
  // Deliberately with full access: a setting that the user may not write counts as missing.
  HKEY opened = nullptr;
  if (RegOpenKeyExA(root, path.c_str(), 0, KEY_ALL_ACCESS, &opened) != ERROR_SUCCESS)
    return otherwise;
  const RegistryKey key(opened);

  std::array<char, settingBufferSize> buffer{};
  buffer.fill(' ');
  SettingRead read{false, REG_NONE, {buffer.data(), buffer.size()}, buffer.size()};
  DWORD type = REG_NONE;
  DWORD size = buffer.size();
  read.succeeded = RegQueryValueExA(key.get(), name.c_str(), nullptr, &type,
                                    reinterpret_cast<BYTE*>(buffer.data()), &size) == ERROR_SUCCESS;
  read.type = type;
  read.size = size;
  return settingText(read, otherwise);
}

}  // namespace

std::string clsLibrary::REGSTRREAD(const std::string& hKey, const std::string& SUBKEY,
                                   const std::string& VALNAME, const std::string& SDEFAULT) {
  try {
    return readText(rootKey(hKey), SUBKEY, VALNAME, SDEFAULT);
  } catch (const values::RuntimeError&) {
    // Deliberately not the default, which is for a missing value only.
    return {};
  }
}

bool clsLibrary::REGSTRWRITE(const std::string& hKey, const std::string& SUBKEY,
                             const std::string& VALNAME, const std::string& SDATAVAL) {
  try {
    RegistryKey key = createdKey(rootKey(hKey), SUBKEY);
    if (!key) return false;
    // The size does not count the terminator, but Windows finds it behind the text and stores it
    // too.
    const LSTATUS result = RegSetValueExA(key.get(), VALNAME.c_str(), 0, REG_SZ,
                                          reinterpret_cast<const BYTE*>(SDATAVAL.c_str()),
                                          static_cast<DWORD>(SDATAVAL.size()));
    if (result == ERROR_SUCCESS) return true;
    // Deliberate: the key stays open after a failed write.
    (void)key.release();
    return false;
  } catch (const values::RuntimeError&) {
    return false;
  }
}

bool clsLibrary::REGBINARYREAD(const std::string& hKey, const std::string& SUBKEY,
                               const std::string& VALNAME, const std::vector<std::uint8_t>& DATA) {
  try {
    const RegistryKey key = createdKey(rootKey(hKey), SUBKEY);
    return key && RegSetValueExA(key.get(), VALNAME.c_str(), 0, REG_BINARY, DATA.data(),
                                 static_cast<DWORD>(DATA.size())) == ERROR_SUCCESS;
  } catch (const values::RuntimeError&) {
    return false;
  }
}

void clsLibrary::REGBINARYWRITE() {
  // Only other products of the maker call this.
  const SettingRow& buttons = settingRow(Setting::toolbarButtons);
  REGBINARYREAD(currentUserRoot, keyOf(buttons.setting), buttons.name, {100, 0, 0, 0, 101});
}

std::int32_t clsLibrary::REGDWORDREAD(std::int32_t hKey, const std::string& SUBKEY,
                                      const std::string& VALNAME, std::int32_t DATA) {
  HKEY created = nullptr;
  if (RegCreateKeyA(rootKey(hKey), SUBKEY.c_str(), &created) == ERROR_SUCCESS) {
    const RegistryKey key(created);
    RegSetValueExA(key.get(), VALNAME.c_str(), 0, REG_DWORD, reinterpret_cast<const BYTE*>(&DATA),
                   sizeof DATA);
  }
  return 0;
}

std::string clsLibrary::FILESLOCATION() {
  const std::string own = FILENAMELENCHK(windowing::programFolder());
  std::string folder = FILENAMELENCHK(readText(Setting::filesLocation, own));
  if (!FOLDEREXIST(folder)) {
    folder = own;
    // Written elsewhere, not over the setting itself: if the missing folder exists again later, it
    // is used again.
    writeText(Setting::missingFilesLocation, folder);
  }
  return folder;
}

std::string clsLibrary::FILENAMELENCHK(const std::string& PATHSTR) {
  return fileNameLengthCheck(PATHSTR, values::isLeadByte);
}

std::string clsLibrary::GETCOMPANYNAME() {
  return readText(Setting::registeredOwner);
}

std::string clsLibrary::GETCOMPANYREG() {
  return readText(Setting::registeredOrganization);
}

std::string clsLibrary::GETAPPNUMBER() {
  const windowing::Version version = windowing::programVersion();
  return versionText(version.major, version.minor);
}

std::string clsLibrary::GETWINDOWSDIR() {
  std::array<char, 255> buffer{};
  const UINT length = GetWindowsDirectoryA(buffer.data(), buffer.size());
  // Where the buffer is too small, the result is the size that it would need.
  return length < buffer.size() ? std::string(buffer.data(), length) : std::string();
}

std::string clsLibrary::GETDESKTOPDIR() {
  std::string folder = GETWINDOWSDIR() + "\\Desktop\\";
  return FOLDEREXIST(folder) ? folder : windowing::programFolder();
}

std::string clsLibrary::GETFOLDERPATH(const std::string& PATHSTR) {
  return folderPath(PATHSTR, values::isLeadByte);
}

}  // namespace library
