#include "library/settings.h"

namespace library {

std::string settingKey(const SettingRow& row, std::string_view company, std::string_view product,
                       std::string_view form) {
  std::string section = row.section;
  if (const std::size_t mark = section.find(formMark); mark != std::string::npos)
    section.replace(mark, 1, form);
  const std::string software = "SOFTWARE\\";
  const std::string ownProduct = '\\' + std::string(product);
  switch (row.scope) {
    case Scope::product:
      return software + std::string(company) + ownProduct + section;
    case Scope::family:
      return software + std::string(company) + section;
    case Scope::literal:
      return software + "Zandor Software Development" + ownProduct + section;
    case Scope::machine:
    case Scope::user:
      break;
  }
  return section;
}

}  // namespace library
