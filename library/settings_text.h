// Root keys of the settings store as texts, and the text of a value that was read from it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace library {

/// HKEY_CURRENT_USER and HKEY_LOCAL_MACHINE as texts.
constexpr char currentUserRoot[] = "-2147483647";
constexpr char localMachineRoot[] = "-2147483646";

/// The text of a root key: the decimal text of its signed 32-bit handle.
[[nodiscard]] std::string rootText(std::int32_t root);
/// The root key in `text`. Raises type mismatch where `text` is no number, overflow where it is too
/// large.
[[nodiscard]] std::int32_t rootOfText(std::string_view text);

/// Size of the buffer for a text setting. Reading fails for a text that is longer with its
/// terminator.
constexpr std::size_t settingBufferSize = 255;

/// Result of reading one value: whether that succeeded, the value's type, and its `size` bytes in
/// `buffer`.
struct SettingRead {
  bool succeeded = false;
  std::uint32_t type = 0;
  std::string_view buffer;
  std::uint32_t size = 0;
};

/// Text of a setting: all bytes but the last (the terminator) of a text value, empty where it has
/// no bytes. `defaultText` where reading failed or the value is not a text.
[[nodiscard]] std::string settingText(const SettingRead& read, std::string_view defaultText);

/// Version as users see it: major and minor number with a point between ("5.3").
[[nodiscard]] std::string versionText(int major, int minor);

}  // namespace library
