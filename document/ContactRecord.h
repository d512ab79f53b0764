// The texts of one contact.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "document/fields.h"

namespace document {

/// 28 plain texts, empty by default and never validated.
struct ContactRecord {
  std::array<std::string, fieldCount> fields;

  [[nodiscard]] std::string& operator[](Slot slot) {
    return fields[static_cast<std::size_t>(slot)];
  }
  [[nodiscard]] const std::string& operator[](Slot slot) const {
    return fields[static_cast<std::size_t>(slot)];
  }
  friend bool operator==(const ContactRecord&, const ContactRecord&) = default;
};

}  // namespace document
