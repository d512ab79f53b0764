// The pictures of commands. They stand side by side in one row, in the same order in each size.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace library {

/// The keys of the pictures in the order of the row. tools/render_icons.sh reads this table.
inline constexpr std::array<std::string_view, 22> imageKeys{
    "NEW",       "OPEN",      "SAVE",          "SAVE AS",    "PRINT",      "PRINT PREVIEW",
    "ADD",       "REMOVE",    "HEADERFOOTER",  "PROPERTIES", "FIRST PAGE", "PREVIOUS PAGE",
    "NEXT PAGE", "LAST PAGE", "ZANDOR ONLINE", "ABOUT",      "PAGE SETUP", "EXIT",
    "ZOOM IN",   "ZOOM OUT",  "MAIL",          "WEB",
};

/// The place of the picture of `key` in the row, from 0; -1 for a key without one.
[[nodiscard]] constexpr int imageIndex(std::string_view key) {
  const auto found = std::find(imageKeys.begin(), imageKeys.end(), key);
  return found == imageKeys.end() ? -1 : static_cast<int>(found - imageKeys.begin());
}

namespace detail {
constexpr bool imageKeysAreUnique() {
  for (std::size_t i = 0; i < imageKeys.size(); ++i)
    if (imageIndex(imageKeys[i]) != static_cast<int>(i)) return false;
  return true;
}
}  // namespace detail
static_assert(detail::imageKeysAreUnique());
static_assert(imageIndex("") == -1, "a key is missing from the table");

/// The height (and width) in pixels of the row's pictures, smallest first.
inline constexpr std::array<int, 4> imageSizes{16, 20, 24, 32};

/// The largest of those sizes that is not above 16 pixels at 96 dpi, scaled to `dpi`
/// dots per inch; never less than the smallest.
[[nodiscard]] constexpr int imageSize(int dpi) {
  int best = imageSizes.front();
  for (const int size : imageSizes)
    if (size * 96 <= 16 * dpi) best = size;
  return best;
}

}  // namespace library
