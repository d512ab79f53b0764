// The real main window in a test: with settings of its own, and with boxes and dialogs that
// the test answers.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "mainwindow/frmMain_win.h"
#include "tests/support/scratch_folder_win.h"
#include "tests/support/scratch_registry_win.h"
#include "windowing/seams_win.h"

namespace test_support {

using Names = std::vector<std::string>;

/// A box that the program showed.
struct Box {
  std::string text;
  std::string title;
  UINT flags;
};

class MainWindowTest : public testing::Test {
 protected:
  MainWindowTest();
  ~MainWindowTest() override;

  [[nodiscard]] std::string text(int id) const { return form.control(id).text(); }
  void type(int id, const std::string& text) { form.control(id).setText(text); }
  void run(int command) { SendMessageA(form.handle(), WM_COMMAND, MAKEWPARAM(command, 0), 0); }
  /// Runs a command that shows a modal form, `look` once it is there, and closes it.
  void runModal(int command, const std::function<void(windowing::Form&)>& look);
  void notice(int id, int code);
  /// Shows a page (0 to 2), as a click on its tab does.
  void turnTo(int page);
  [[nodiscard]] std::string status() const;
  [[nodiscard]] Names names() const;
  [[nodiscard]] bool enabled(int command) const { return form.commandEnabled(command); }
  /// Opens a file through the Open command; unsaved work is given up.
  void open(const std::string& path);

  /// A file's content: contacts, each of 28 texts in file order.
  [[nodiscard]] static std::string fileOf(const std::vector<std::vector<std::string>>& contacts);
  /// A new file of contacts that have a surname only.
  std::string contactsFile(const std::vector<std::string>& surnames);

  ScratchRegistry registry;
  ScratchFolder scratch;
  std::vector<Box> boxes;   ///< boxes shown, oldest first
  std::deque<int> answers;  ///< what the next boxes are answered; then IDOK or IDNO
  std::vector<windowing::FileDialog> dialogs;
  std::deque<std::optional<std::string>> files;  ///< what the next file dialogs give
  mainwindow::frmMain form;

 private:
  windowing::Seams real_ = windowing::seams();
  int files_ = 0;
};

}  // namespace test_support
