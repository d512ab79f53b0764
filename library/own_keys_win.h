// Keys of this program's settings, composed from its version information at every use.
#pragma once

#include <string>
#include <string_view>

#include "library/settings_text.h"
#include "windowing/application_win.h"

namespace library {

/// Key of a section of this product's settings; `section` begins with a backslash.
[[nodiscard]] inline std::string ownKey(std::string_view section) {
  return productKey(windowing::companyName(), windowing::productName(), section);
}

/// Key of a section shared with the maker's other products; `section` begins with "\\GLOBAL\\".
[[nodiscard]] inline std::string familyKey(std::string_view section) {
  return sharedKey(windowing::companyName(), section);
}

}  // namespace library
