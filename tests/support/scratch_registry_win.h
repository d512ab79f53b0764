// A scratch root for the settings of a test: the predefined keys are mapped to keys below
// HKCU\Software\TellaryTests, which vanish with the test.
#pragma once

#include <windows.h>

#include <cstring>
#include <optional>
#include <stdexcept>
#include <string>

#include "library/stored_settings_win.h"
#include "values/handles_win.h"
#include "windowing/seams_win.h"

namespace test_support {

/// A value as it lies in the registry.
struct RawValue {
  DWORD type = REG_NONE;
  std::string bytes;
};

class ScratchRegistry {
 public:
  ScratchRegistry() {
    path_ = "Software\\TellaryTests\\" + std::to_string(GetCurrentProcessId());
    RegDeleteTreeA(HKEY_CURRENT_USER, path_.c_str());
    classes_ = make("Classes");
    user_ = make("User");
    machine_ = make("Machine");
    mapped_.emplace(windowing::seams().settingsRoot, [this](HKEY root) { return mapped(root); });
  }
  ScratchRegistry(const ScratchRegistry&) = delete;
  ScratchRegistry& operator=(const ScratchRegistry&) = delete;
  ~ScratchRegistry() {
    mapped_.reset();
    classes_.reset();
    user_.reset();
    machine_.reset();
    RegDeleteTreeA(HKEY_CURRENT_USER, path_.c_str());
  }

  /// What stands for HKEY_CLASSES_ROOT, HKEY_CURRENT_USER and HKEY_LOCAL_MACHINE.
  [[nodiscard]] HKEY classes() const { return classes_.get(); }
  [[nodiscard]] HKEY user() const { return user_.get(); }
  [[nodiscard]] HKEY machine() const { return machine_.get(); }

  /// Writes exactly these bytes; a text's terminator has to be among them.
  static void put(HKEY root, const std::string& key, const std::string& name, DWORD type,
                  const std::string& bytes) {
    HKEY opened = nullptr;
    if (RegCreateKeyExA(root, key.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &opened, nullptr) !=
        ERROR_SUCCESS)
      throw std::runtime_error("no scratch key " + key);
    const values::RegistryKey owner(opened);
    if (RegSetValueExA(opened, name.c_str(), 0, type, reinterpret_cast<const BYTE*>(bytes.data()),
                       static_cast<DWORD>(bytes.size())) != ERROR_SUCCESS)
      throw std::runtime_error("no scratch value " + name);
  }
  static void putText(HKEY root, const std::string& key, const std::string& name,
                      const std::string& text) {
    put(root, key, name, REG_SZ, text + '\0');
  }

  /// The value as stored; nothing where there is none.
  [[nodiscard]] static std::optional<RawValue> get(HKEY root, const std::string& key,
                                                   const std::string& name) {
    HKEY opened = nullptr;
    if (RegOpenKeyExA(root, key.c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS)
      return std::nullopt;
    const values::RegistryKey owner(opened);
    RawValue value;
    DWORD size = 0;
    if (RegQueryValueExA(opened, name.c_str(), nullptr, &value.type, nullptr, &size) !=
        ERROR_SUCCESS)
      return std::nullopt;
    value.bytes.resize(size);
    RegQueryValueExA(opened, name.c_str(), nullptr, &value.type,
                     reinterpret_cast<BYTE*>(value.bytes.data()), &size);
    return value;
  }
  /// A stored text without its terminator; "(none)" where there is no text.
  [[nodiscard]] static std::string text(HKEY root, const std::string& key,
                                        const std::string& name) {
    const std::optional<RawValue> value = get(root, key, name);
    if (!value || value->type != REG_SZ) return "(none)";
    return value->bytes.substr(0, value->bytes.find('\0'));
  }

  /// The same two for a setting of the program.
  void store(library::Setting setting, const std::string& text, const std::string& form = {}) {
    putText(rootOf(setting), library::keyOf(setting, form), library::settingRow(setting).name,
            text);
  }
  [[nodiscard]] std::string stored(library::Setting setting, const std::string& form = {}) const {
    return text(rootOf(setting), library::keyOf(setting, form), library::settingRow(setting).name);
  }
  [[nodiscard]] HKEY rootOf(library::Setting setting) const {
    return library::settingRow(setting).scope == library::Scope::machine ? machine() : user();
  }

  /// Takes every right away from a key for the length of a scope.
  class Locked {
   public:
    Locked(HKEY root, const std::string& key) {
      HKEY opened = nullptr;
      RegOpenKeyExA(root, key.c_str(), 0, READ_CONTROL | WRITE_DAC, &opened);
      key_.reset(opened);
      ACL empty{};
      InitializeAcl(&empty, sizeof empty, ACL_REVISION);
      SECURITY_DESCRIPTOR nobody{};
      InitializeSecurityDescriptor(&nobody, SECURITY_DESCRIPTOR_REVISION);
      SetSecurityDescriptorDacl(&nobody, TRUE, &empty, FALSE);
      result_ = RegSetKeySecurity(opened, DACL_SECURITY_INFORMATION, &nobody);
    }
    Locked(const Locked&) = delete;
    Locked& operator=(const Locked&) = delete;
    ~Locked() {
      SECURITY_DESCRIPTOR everybody{};
      InitializeSecurityDescriptor(&everybody, SECURITY_DESCRIPTOR_REVISION);
      SetSecurityDescriptorDacl(&everybody, TRUE, nullptr, FALSE);
      RegSetKeySecurity(key_.get(), DACL_SECURITY_INFORMATION, &everybody);
    }
    [[nodiscard]] LSTATUS result() const { return result_; }

   private:
    values::RegistryKey key_;
    LSTATUS result_ = ERROR_SUCCESS;
  };

 private:
  [[nodiscard]] values::RegistryKey make(const char* name) const {
    HKEY key = nullptr;
    if (RegCreateKeyExA(HKEY_CURRENT_USER, (path_ + "\\" + name).c_str(), 0, nullptr, 0,
                        KEY_ALL_ACCESS, nullptr, &key, nullptr) != ERROR_SUCCESS)
      throw std::runtime_error("no scratch registry");
    return values::RegistryKey(key);
  }
  [[nodiscard]] HKEY mapped(HKEY root) const {
    if (root == HKEY_CLASSES_ROOT) return classes();
    if (root == HKEY_CURRENT_USER) return user();
    if (root == HKEY_LOCAL_MACHINE) return machine();
    return nullptr;
  }

  std::string path_;
  values::RegistryKey classes_, user_, machine_;
  std::optional<windowing::Replaced<std::function<HKEY(HKEY)>>> mapped_;
};

}  // namespace test_support
