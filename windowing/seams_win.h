// The few places where the program asks the outside world something that a test must be
// able to answer: message boxes, dialogs, the shell, the clock, the settings' root.
// The defaults are the real ones; a test replaces one at a time.
#pragma once

#include <windows.h>

#include <commdlg.h>

#include <functional>
#include <optional>
#include <string>

namespace windowing {

/// What a file dialog shows, and how it asks.
struct FileDialog {
  bool save = false;
  std::string title;
  std::string filter;     ///< pairs "Text (*.ext)|*.ext", joined by "|"
  std::string folder;     ///< where it starts; empty: the system's choice
  std::string fileName;   ///< proposed name, without a folder
  std::string extension;  ///< appended to a name typed without one, no dot
  DWORD flags = 0;        ///< OFN_ flags
};

struct Seams {
  /// Shows a box; returns the button pressed (IDYES, IDNO, ...).
  std::function<int(HWND owner, const std::string& text, const std::string& title, UINT flags)>
      messageBox;
  std::function<void()> beep;
  /// Asks for a file. No value when the user cancels; raises any other error of the dialog.
  std::function<std::optional<std::string>(HWND owner, const FileDialog&)> fileDialog;
  /// Shows the system's print dialog; true for OK.
  std::function<BOOL(PRINTDLGA&)> printDialog;
  /// Opens a file or an address with the program registered for it. Nobody is told whether that
  /// worked. Does nothing where the address is so long that Wine's shell would end the program.
  std::function<void(HWND owner, const std::string& verb, const std::string& file,
                     const std::string& folder)>
      shellOpen;
  std::function<SYSTEMTIME()> localTime;
  /// The key to use for a predefined root (HKEY_CURRENT_USER, ...); a test gives one of its own.
  std::function<HKEY(HKEY root)> settingsRoot;
};

[[nodiscard]] Seams& seams();

/// Replaces one seam until the end of the scope:
/// `Replaced box(seams().messageBox, [](auto&&...) { return IDYES; });`
template <typename Function>
class Replaced {
 public:
  template <typename Stand>
  Replaced(Function& seam, Stand stand) : seam_(seam), old_(std::move(seam)) {
    seam_ = std::move(stand);
  }
  Replaced(const Replaced&) = delete;
  Replaced& operator=(const Replaced&) = delete;
  ~Replaced() { seam_ = std::move(old_); }

 private:
  Function& seam_;
  Function old_;
};

}  // namespace windowing
