// Variables that the whole program shares.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "library/clsLibrary_win.h"
#include "library/flat_combo_win.h"
#include "windowing/form_win.h"

namespace library {

/// Program-wide variables. They are never stored and belong to the user-interface thread.
struct ProgramVariables {
  std::string documentPath;  ///< current document; empty while it has no file
  std::string documentKind;  ///< for the properties: "DOCUMENT", "UNTITLED", "PICTURE", "TEMPLATE"

  HWND folderBrowseOwner = nullptr;  ///< window of the form that asked for a folder
  std::string folderBrowseFolder;    ///< where the browsing starts

  // Choices of the page setup, as decimal texts; empty until it was opened.
  std::string orientation;  ///< "1" portrait, "2" landscape
  std::string printerName;
  std::string paperCode;

  /// Shows the about box. For forms that cannot include it, such as the preview.
  std::function<void()> showAbout = [] {};

  int preparedCombos = 0;  ///< how many combo boxes COMBOINIT has prepared, flat or not
  std::vector<std::unique_ptr<FlatCombo>> flatCombos;  ///< entry n for the combo box n + 1
};

/// The only object of these variables.
[[nodiscard]] ProgramVariables& modLibrary();

}  // namespace library
