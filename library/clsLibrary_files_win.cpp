// Files, folders and the shell. No function here reports a failure; the shell reports its own.
#include <windows.h>

#include <shellapi.h>

#include "library/clsLibrary_win.h"
#include "library/message_numbers.h"
#include "library/modLibrary_win.h"
#include "library/path_utilities.h"
#include "library/text_utilities.h"
#include "values/runtime_error.h"
#include "values/system_error_win.h"
#include "windowing/application_win.h"
#include "windowing/handle_text_win.h"
#include "windowing/modal_win.h"
#include "windowing/seams_win.h"
#include "windowing/shell_win.h"
#include "windowing/wine/shell_lengths_win.h"

namespace library {
namespace {

// The attributes of a file or folder. A path with a wildcard or a NUL has none, because Windows
// would look for another file.
DWORD attributesOf(const std::string& path) {
  const bool plain = !path.empty() && !hasWildcards(path) && path.find('\0') == std::string::npos;
  return plain ? GetFileAttributesA(path.c_str()) : INVALID_FILE_ATTRIBUTES;
}

// Only the flag that allows undoing is set, so the shell itself asks the user, shows its progress
// and reports errors. The result is ignored.
void shellOperation(UINT function, const std::string& from, const std::string& to) {
  const HWND owner = windowing::dialogOwner();
  if (!windowing::wine::shellTakesPath(from) || !windowing::wine::shellTakesPath(to)) {
    windowing::seams().messageBox(owner, values::systemError(ERROR_FILENAME_EXCED_RANGE).what(),
                                  windowing::productName(), MB_OK | MB_ICONSTOP);
    return;
  }
  const std::string fromList = doubleNulList(from);
  const std::string toList = doubleNulList(to);
  SHFILEOPSTRUCTA operation{};
  operation.hwnd = owner;
  operation.wFunc = function;
  operation.pFrom = fromList.data();
  operation.pTo = function == FO_DELETE ? nullptr : toList.data();
  operation.fFlags = FOF_ALLOWUNDO;
  const windowing::DisabledOthers others(operation.hwnd);
  windowing::prepareShell();
  (void)SHFileOperationA(&operation);
}

// The shell puts an address between double quotes on a command line. A double quote inside would
// end the address, and the rest would become further arguments.
std::string withoutQuotes(const std::string& address) {
  std::string safe;
  for (const char letter : address) {
    if (letter == '"') {
      safe += "%22";
    } else {
      safe += letter;
    }
  }
  return safe;
}

}  // namespace

std::string clsLibrary::FILECHK(const std::string& FILENAME) {
  return fileCheck(FILENAME);
}

bool clsLibrary::FILEEXISTS(const std::string& FILEPATH) {
  const DWORD attributes = attributesOf(FILEPATH);
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool clsLibrary::FOLDEREXIST(const std::string& FILELOCATION) {
  const DWORD attributes = attributesOf(FILELOCATION);
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// Full paths only: without one, the shell deletes for good instead of moving to the recycle bin.
void clsLibrary::FILEDELETE(const std::string& FILEPATH) {
  if (isSafeToDelete(FILEPATH)) shellOperation(FO_DELETE, FILEPATH, "");
}

// Both paths go to the shell as they are, also patterns and names in the current folder.
void clsLibrary::FILEMOVE(const std::string& FILELOCATION, const std::string& FILEDESTINATION) {
  shellOperation(FO_MOVE, FILELOCATION, FILEDESTINATION);
}

void clsLibrary::FILERENAME(const std::string& CURRENTFILENAME, const std::string& NEWFILENAME) {
  shellOperation(FO_RENAME, CURRENTFILENAME, NEWFILENAME);
}

bool clsLibrary::OVERWRITECHK(const std::string& CURRENTFILENAME) {
  if (!LIBRARY().FILEEXISTS(CURRENTFILENAME)) return true;
  return LIBRARY().MESSAGEBOXFCN(question::overwrite, CURRENTFILENAME, "", "", "") == IDYES;
}

void clsLibrary::FOLDERBROWSE(windowing::Form& CURRENTFORM, const std::string& CURRENTFLDRLOCATION,
                              windowing::Form& MODALFORM) {
  modLibrary().folderBrowseOwner = CURRENTFORM.handle();
  modLibrary().folderBrowseFolder = CURRENTFLDRLOCATION;
  try {
    // A modal form is owned by the active window.
    SetActiveWindow(CURRENTFORM.handle());
    MODALFORM.showModal();
  } catch (const values::RuntimeError&) {
    // Where the form cannot be shown, the folder stays as it was.
  }
}

void clsLibrary::INTERNETACCESS(const std::string& HWNDTEXT, const std::string& LINKTYPESTR,
                                const std::string& ADDRESS) {
  if (ADDRESS.empty()) return;
  windowing::seams().shellOpen(windowing::handleOfText(HWNDTEXT), "Open",
                               withoutQuotes(LINKTYPESTR + ADDRESS), windowing::programFolder());
}

std::string clsLibrary::HTMLFORMATCHECK(const std::string& ADDRESS) {
  return htmlFormatCheck(ADDRESS);
}

}  // namespace library
