// Drives the finished program from outside, as a user does: starts it, reads and fills its
// controls, types, clicks, answers its dialogs. Every wait has a limit; what does not come in
// time raises a std::runtime_error that says what was waited for.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <functional>
#include <string>
#include <vector>

#include "mainwindow/frmMain_ids.h"

namespace drive {

/// Milliseconds that anything may take.
constexpr DWORD limit = 20000;

/// Waits until `met` answers true.
void waitFor(const std::string& what, const std::function<bool()>& met);

/// A dialog of the program: a message box or a file dialog.
class Dialog {
 public:
  explicit Dialog(HWND window) : window_(window) {}
  [[nodiscard]] std::string title() const;
  /// The text of a message box.
  [[nodiscard]] std::string message() const;
  /// The name that a file dialog proposes, and the folder that it shows.
  [[nodiscard]] std::string fileName() const;
  [[nodiscard]] std::string folder() const;
  /// Presses a button (IDYES, IDCANCEL ...) and waits until the dialog is gone.
  void press(int button) const;
  /// Types a name into a file dialog and presses its OK button; waits until it is gone.
  void choose(const std::string& file) const;

 private:
  HWND window_;
};

class Program {
 public:
  /// Starts the program with `tail` behind its name, exactly as written, and waits until its
  /// main window is idle. `exe` is the program under test where it is empty.
  explicit Program(const std::string& tail = "", const std::string& exe = "");
  /// Takes over a program that something else started, as the process with the main window
  /// `window`.
  explicit Program(HWND window);
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;
  /// Ends the program, gently or not.
  ~Program();

  [[nodiscard]] HWND window() const { return window_; }
  [[nodiscard]] DWORD processId() const { return processId_; }
  [[nodiscard]] bool running() const;
  /// Waits until the program has ended by itself, asking nothing; its exit code.
  DWORD waitForEnd() const;
  /// Waits until the program has done all that was asked of it: posted messages, keys and mouse.
  void settle() const;

  /// Its windows on screen that have a title bar, in their order from the front.
  [[nodiscard]] std::vector<HWND> windows() const;

  // Controls by identifier, wherever they lie.
  [[nodiscard]] HWND control(int id) const;
  [[nodiscard]] std::string text(int id) const;
  [[nodiscard]] bool enabled(int id) const { return IsWindowEnabled(control(id)) != FALSE; }
  [[nodiscard]] bool visible(int id) const { return IsWindowVisible(control(id)) != FALSE; }
  /// Replaces the text of a box as typing over all of it does.
  void enter(int id, const std::string& newText) const;
  LRESULT send(HWND to, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;

  // The main window at a glance.
  [[nodiscard]] std::string title() const { return text(mainwindow::id::LBLDESC); }
  [[nodiscard]] std::string status() const;
  [[nodiscard]] std::vector<std::string> names() const;
  [[nodiscard]] int chosenName() const;
  [[nodiscard]] bool buttonEnabled(int command) const;
  [[nodiscard]] bool modified() const { return buttonEnabled(mainwindow::id::SAVE); }
  /// Identifier of the control with the focus, 0 for none.
  [[nodiscard]] int focus() const;

  // What a user does; each waits until the program is idle again.
  void command(int id) const;
  void chooseName(int index) const;
  void focusOn(int id) const;
  void key(WORD key, WORD with = 0) const;
  void holdKey(WORD key, int repeats, WORD with = 0) const;
  void type(const std::string& text) const;
  void clickButton(int command) const;
  void clickTab(int index) const;
  /// Shows each page, the first one last, unless that was done: only then are all boxes there.
  void lookAtAllPages() const;
  /// Moves the pointer over a button of the toolbar without pressing it.
  void hover(int command) const;
  /// Moves the pointer to a far corner of the screen.
  void pointAway() const;
  void bringToFront() const;

  // Dialogs of the program.
  [[nodiscard]] Dialog dialog() const;
  [[nodiscard]] bool hasDialog() const { return findDialog() != nullptr; }
  /// Waits for a message box, checks nothing, presses `button`; its title, "|", and its text.
  std::string answer(int button) const;

 private:
  /// A control; null where there is none.
  [[nodiscard]] HWND find(int id) const;
  void click(HWND at, POINT place) const;
  [[nodiscard]] HWND findDialog() const;
  void attach();
  [[nodiscard]] POINT buttonPlace(int command) const;

  HANDLE process_ = nullptr;
  DWORD processId_ = 0;
  DWORD threadId_ = 0;
  HWND window_ = nullptr;
};

/// Waits for a main window of the program, whoever started it.
[[nodiscard]] HWND waitForMainWindow();

/// Path of the program under test as Windows names it.
[[nodiscard]] std::string programUnderTest();
/// `path` of this machine as Windows names it; paths that are Windows' already stay.
[[nodiscard]] std::string windowsPath(const std::string& path);
/// Value of an environment variable; raises when it is not set.
[[nodiscard]] std::string environment(const char* name);
/// Number in an environment variable; `otherwise` where it is not set.
[[nodiscard]] int numberFrom(const char* name, int otherwise);

}  // namespace drive
