#include "library/settings_text.h"

#include <algorithm>

#include "values/number_text.h"

namespace library {
std::string rootText(std::int32_t root) {
  return values::integerText(root);
}

std::int32_t rootOfText(std::string_view text) {
  return values::toInteger32(text, '.');
}

std::string settingText(const SettingRead& read, std::string_view defaultText) {
  constexpr std::uint32_t text = 1, expandableText = 2;
  if (!read.succeeded || (read.type != text && read.type != expandableText))
    return std::string(defaultText);
  // A value of no bytes is an empty text; it is not missing.
  if (read.size == 0) return {};
  // The last byte counts as the terminator, whatever it is. NULs before it belong to the text, so
  // that a text with NULs is read as it was written.
  return std::string(
      read.buffer.substr(0, std::min<std::size_t>(read.size, read.buffer.size()) - 1));
}

std::string versionText(int major, int minor) {
  return values::integerText(major) + '.' + values::integerText(minor);
}

}  // namespace library
