#include "windowing/seams_win.h"

#include <cderr.h>
#include <shellapi.h>

#include <algorithm>
#include <vector>

#include "values/runtime_error.h"
#include "windowing/modal_win.h"
#include "windowing/shell_win.h"
#include "windowing/wine/shell_lengths_win.h"

namespace windowing {
namespace {

// The dialog expects a NUL after each part of the filter and one more at its end.
std::string filterOf(std::string filter) {
  std::replace(filter.begin(), filter.end(), '|', '\0');
  filter.append(2, '\0');
  return filter;
}

std::optional<std::string> askForFile(HWND owner, const FileDialog& wanted) {
  const DisabledOthers others(owner);
  constexpr std::size_t longestPath = 32768;
  std::vector<char> path(longestPath, '\0');
  wanted.fileName.copy(path.data(), path.size() - 1);
  const std::string filter = filterOf(wanted.filter);

  OPENFILENAMEA dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = owner;
  dialog.lpstrFilter = filter.c_str();
  dialog.nFilterIndex = 1;
  dialog.lpstrFile = path.data();
  dialog.nMaxFile = static_cast<DWORD>(path.size());
  dialog.lpstrInitialDir = wanted.folder.empty() ? nullptr : wanted.folder.c_str();
  dialog.lpstrTitle = wanted.title.c_str();
  dialog.lpstrDefExt = wanted.extension.empty() ? nullptr : wanted.extension.c_str();
  // The dialog must not change the program's current folder.
  dialog.Flags = wanted.flags | OFN_NOCHANGEDIR;
  const BOOL chosen = wanted.save ? GetSaveFileNameA(&dialog) : GetOpenFileNameA(&dialog);
  if (chosen) return std::string(path.data());
  const DWORD error = CommDlgExtendedError();
  if (error == FNERR_INVALIDFILENAME && path.front() != '\0') {
    // The dialog does not open with a proposed name that it finds invalid, so ask without one.
    FileDialog again = wanted;
    again.fileName.clear();
    return askForFile(owner, again);
  }
  if (error != 0)
    throw values::RuntimeError(
        values::ErrorNumber::invalidCall,
        "The file dialog could not be opened (" + std::to_string(error) + ")");
  return std::nullopt;
}

Seams realSeams() {
  Seams real;
  real.messageBox = [](HWND owner, const std::string& text, const std::string& title, UINT flags) {
    const DisabledOthers others(owner);
    return MessageBoxA(owner, text.c_str(), title.c_str(), flags);
  };
  real.beep = [] { MessageBeep(MB_OK); };
  real.fileDialog = askForFile;
  real.printDialog = [](PRINTDLGA& dialog) { return PrintDlgA(&dialog); };
  real.shellOpen = [](HWND owner, const std::string& verb, const std::string& file,
                      const std::string& folder) {
    if (!wine::shellTakesAddress(file)) return;
    prepareShell();
    ShellExecuteA(owner, verb.c_str(), file.c_str(), nullptr, folder.c_str(), SW_SHOWNORMAL);
  };
  real.localTime = [] {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    return now;
  };
  real.settingsRoot = [](HKEY root) { return root; };
  return real;
}

}  // namespace

Seams& seams() {
  static Seams current = realSeams();
  return current;
}

}  // namespace windowing
