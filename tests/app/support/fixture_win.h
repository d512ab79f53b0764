// What every test of the finished program stands on: a scratch folder, settings as on the
// first start, and one program at a time.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

#include "tests/app/support/documents.h"
#include "tests/app/support/program_win.h"
#include "tests/support/scratch_folder_win.h"
#include "tests/support/scratch_registry_win.h"

namespace drive {

class AppTest : public testing::Test {
 protected:
  /// Reads and writes the texts of the real registry.
  using Registry = test_support::ScratchRegistry;

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

  [[nodiscard]] const std::string& folder() const { return scratch_.path(); }
  /// Full path of a file in the scratch folder.
  [[nodiscard]] std::string path(const std::string& name) const { return scratch_ / name; }
  /// Writes a file in the scratch folder; its full path.
  std::string write(const std::string& name, const std::string& bytes) const {
    return scratch_.file(name, bytes);
  }
  /// All bytes of a file; nothing when there is none.
  [[nodiscard]] static std::optional<std::string> read(const std::string& file) {
    return test_support::readFile(file);
  }
  /// The sample document that comes with the program.
  [[nodiscard]] static std::string sample() {
    return windowsPath(environment("TELLARY_SAMPLES")) + "\\friends.tly";
  }

  /// What the title shows of a document.
  [[nodiscard]] static std::string titleOf(const std::string& file) {
    return "Tellary - (" + file + ")";
  }
  /// Expects the texts of `contact` on screen.
  void expectShown(const Contact& contact) const;
  /// Expects what a new document looks like: one empty contact, unmodified, no name.
  void expectUntitled() const;

  /// A text of the program's settings; "(none)" when there is none.
  [[nodiscard]] static std::string setting(const std::string& section, const std::string& value);

 private:
  test_support::ScratchFolder scratch_;
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

}  // namespace drive
