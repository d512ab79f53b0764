#include "library/stored_settings_win.h"

#include "library/clsLibrary_win.h"
#include "library/settings_text.h"
#include "values/number_text.h"
#include "values/runtime_error.h"
#include "values/user_locale_win.h"
#include "windowing/application_win.h"

namespace library {
namespace {

const char* rootOf(Setting setting) {
  return settingRow(setting).scope == Scope::machine ? localMachineRoot : currentUserRoot;
}

}  // namespace

std::string keyOf(Setting setting, std::string_view form) {
  return settingKey(settingRow(setting), windowing::companyName(), windowing::productName(), form);
}

std::string readText(Setting setting, const std::string& otherwise, std::string_view form) {
  return LIBRARY().REGSTRREAD(rootOf(setting), keyOf(setting, form), settingRow(setting).name,
                              otherwise);
}

std::string readText(Setting setting) {
  const char* otherwise = settingRow(setting).otherwise;
  return readText(setting, otherwise == computed ? "" : otherwise);
}

double readNumber(Setting setting) {
  return values::storedNumber(readText(setting), values::userDecimalSign());
}

bool readTruth(Setting setting) {
  try {
    return values::booleanOfText(readText(setting));
  } catch (const values::RuntimeError&) {
    return true;
  }
}

void writeText(Setting setting, const std::string& text, std::string_view form) {
  LIBRARY().REGSTRWRITE(rootOf(setting), keyOf(setting, form), settingRow(setting).name, text);
}

void writeTruth(Setting setting, bool value) {
  writeText(setting, values::textOfBoolean(value));
}

}  // namespace library
