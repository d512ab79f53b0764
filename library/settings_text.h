// Root keys of the settings store as texts, and what a value read from it means.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace library {

/// Root keys as the text they travel as: HKEY_CURRENT_USER and HKEY_LOCAL_MACHINE.
constexpr char currentUserRoot[] = "-2147483647";
constexpr char localMachineRoot[] = "-2147483646";

/// A root key travels as the decimal text of its signed 32-bit handle.
[[nodiscard]] std::string rootText(std::int32_t root);
/// The root key in `text`; raises type mismatch where it is no number, or overflow.
[[nodiscard]] std::int32_t rootOfText(std::string_view text);

/// Bytes that a read of a text setting offers; with its terminator a longer text fails.
constexpr std::size_t settingBufferSize = 255;

/// Answer of the store to one read: whether it succeeded, the value's type, and `size` bytes
/// reported in `buffer`.
struct SettingRead {
  bool succeeded = false;
  std::uint32_t type = 0;
  std::string_view buffer;
  std::uint32_t size = 0;
};

/// Text of a setting: all but the last reported byte (the terminator) of a text value, kept as
/// they are, and empty for one of no bytes; `defaultText` for anything else.
[[nodiscard]] std::string settingText(const SettingRead& read, std::string_view defaultText);

/// Version as users see it: major and minor number with a point between ("5.3").
[[nodiscard]] std::string versionText(int major, int minor);

}  // namespace library
