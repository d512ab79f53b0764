// Whole files, read and written at once.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "values/handles_win.h"

namespace test_support {

/// All bytes of a file, though others have it open; nothing when there is none.
[[nodiscard]] inline std::optional<std::string> readFile(const std::string& path) {
  constexpr DWORD share = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const values::FileHandle file(
      CreateFileA(path.c_str(), GENERIC_READ, share, nullptr, OPEN_EXISTING, 0, nullptr));
  if (!file) return std::nullopt;
  std::string bytes(GetFileSize(file.get(), nullptr), '\0');
  DWORD done = 0;
  ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &done, nullptr);
  bytes.resize(done);
  return bytes;
}

/// Makes or replaces a file, whatever its attributes are. False where the disk took less.
inline bool writeFile(const std::string& path, const std::string& bytes) {
  SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
  const values::FileHandle file(CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                            FILE_ATTRIBUTE_NORMAL, nullptr));
  DWORD done = 0;
  return file &&
         WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &done, nullptr) &&
         done == bytes.size();
}

}  // namespace test_support
