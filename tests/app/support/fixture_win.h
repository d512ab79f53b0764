// What every test of the finished program stands on: a scratch folder, settings as on the
// first start, and one program at a time.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

#include "library/identifiers.h"
#include "tests/app/support/documents.h"
#include "tests/app/support/program_win.h"

namespace drive {

class AppTest : public testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  /// Starts the program; one that runs from before is ended first.
  Program& start(const std::string& tail = "", const std::string& exe = "");
  /// Starts the program on a new document of `contacts` in the scratch folder, "list.tly".
  Program& startOn(const std::vector<Contact>& contacts);
  /// Takes over a program that something else started.
  Program& adopt(HWND window);
  [[nodiscard]] Program& program() const { return *program_; }
  /// Closes the program's window, with nothing to ask about, and waits for its end.
  void close();

  /// Full path of a file in the scratch folder.
  [[nodiscard]] std::string path(const std::string& name) const { return folder_ + "\\" + name; }
  [[nodiscard]] const std::string& folder() const { return folder_; }
  /// Writes a file in the scratch folder; its full path.
  std::string write(const std::string& name, const std::string& bytes) const;
  /// All bytes of a file; nothing when there is none.
  [[nodiscard]] static std::optional<std::string> read(const std::string& file);
  [[nodiscard]] static bool exists(const std::string& file);

  /// Expects the texts of `contact` on screen.
  void expectShown(const Contact& contact) const;
  /// Expects what a new document looks like: one empty contact, unmodified, no name.
  void expectUntitled() const;

  /// A text value of the program's settings; nothing when there is none.
  [[nodiscard]] static std::optional<std::string> setting(const std::string& section,
                                                          const std::string& value);
  static void storeSetting(const std::string& section, const std::string& value,
                           const std::string& text);

 private:
  void tellWhatIsThere() const;

  std::string folder_;
  std::unique_ptr<Program> program_;
};

/// Puts a key of the registry aside for as long as it lives, and then back as it was.
class KeyAside {
 public:
  KeyAside(HKEY root, std::string key);
  KeyAside(const KeyAside&) = delete;
  KeyAside& operator=(const KeyAside&) = delete;
  ~KeyAside();

 private:
  HKEY root_;
  std::string key_;
};

/// Writes a text value of the registry, and its key where there is none.
void storeRegistryText(HKEY root, const std::string& key, const std::string& value,
                       const std::string& text);

/// A text value of the registry; nothing when there is none.
[[nodiscard]] std::optional<std::string> registryText(HKEY root, const std::string& key,
                                                      const std::string& value);

}  // namespace drive
