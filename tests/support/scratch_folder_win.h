// A scratch folder of a test; it vanishes with all it holds.
#pragma once

#include <windows.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/support/files_win.h"

namespace test_support {

class ScratchFolder {
 public:
  /// Below `parent`; empty: where the user's temporary files are.
  explicit ScratchFolder(const std::string& parent = {}) {
    char temp[MAX_PATH] = {};
    GetTempPathA(sizeof temp, temp);
    if (!parent.empty()) lstrcpynA(temp, (parent + "\\").c_str(), sizeof temp);
    char full[MAX_PATH] = {};
    GetLongPathNameA(temp, full, sizeof full);
    // A run that was killed may have left its folder behind.
    for (int number = 1; number < 1000; ++number) {
      path_ = std::string(full) + "tellary test " + std::to_string(GetCurrentProcessId()) + " " +
              std::to_string(number);
      if (CreateDirectoryA(path_.c_str(), nullptr)) return;
    }
    throw std::runtime_error("no scratch folder");
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder() { removeTree(path_); }

  /// Full path, without a final backslash; its last part holds blanks.
  [[nodiscard]] const std::string& path() const { return path_; }
  [[nodiscard]] std::string operator/(const std::string& name) const { return path_ + "\\" + name; }

  std::string folder(const std::string& name) const {
    if (!CreateDirectoryA((*this / name).c_str(), nullptr))
      throw std::runtime_error("no folder " + name);
    return *this / name;
  }
  std::string file(const std::string& name, const std::string& bytes = {}) const {
    if (!writeFile(*this / name, bytes)) throw std::runtime_error("no file " + name);
    return *this / name;
  }

  /// Names of all that is in it, sorted.
  [[nodiscard]] std::vector<std::string> names() const { return namesIn(path_); }
  /// Removes a folder with all that is in it.
  static void removeTree(const std::string& folder) {
    for (const std::string& name : namesIn(folder)) {
      std::string path = folder;
      path.append("\\").append(name);
      SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
      if (!DeleteFileA(path.c_str())) removeTree(path);
    }
    RemoveDirectoryA(folder.c_str());
  }
  [[nodiscard]] static bool exists(const std::string& path) {
    return GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES;
  }

 private:
  [[nodiscard]] static std::vector<std::string> namesIn(const std::string& folder) {
    std::vector<std::string> found;
    WIN32_FIND_DATAA data{};
    const values::FindHandle search(FindFirstFileA((folder + "\\*").c_str(), &data));
    if (search) do {
        const std::string name = data.cFileName;
        if (name != "." && name != "..") found.push_back(name);
      } while (FindNextFileA(search.get(), &data));
    std::sort(found.begin(), found.end());
    return found;
  }

  std::string path_;
};

}  // namespace test_support
