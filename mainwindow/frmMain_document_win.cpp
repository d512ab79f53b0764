// The document: reading, writing, and the commands that act on it as a whole.
#include <windows.h>

#include <commdlg.h>

#include "document/reader.h"
#include "document/writer.h"
#include "files/safe_file_win.h"
#include "library/centred_dialog_win.h"
#include "library/clsLibrary_win.h"
#include "library/message_numbers.h"
#include "library/modLibrary_win.h"
#include "library/path_utilities.h"
#include "library/stored_settings_win.h"
#include "mainwindow/document_file_win.h"
#include "mainwindow/frmMain_design_win.h"
#include "mainwindow/frmMain_win.h"
#include "mainwindow/name_box_win.h"
#include "mainwindow/status_text.h"
#include "mainwindow/while.h"
#include "values/runtime_error.h"
#include "values/system_error_win.h"
#include "values/user_locale_win.h"
#include "windowing/application_win.h"
#include "windowing/modal_win.h"
#include "windowing/seams_win.h"

namespace mainwindow {

using library::LIBRARY;
using values::ErrorNumber;
using values::RuntimeError;

namespace {

constexpr char filter[] = "Tellary Document (*.tly)|*.tly";
constexpr char extension[] = "tly";
constexpr DWORD openFlags = OFN_EXPLORER | OFN_LONGNAMES | OFN_HIDEREADONLY;
static_assert(openFlags == 0x280004);

// Whether certainly no file of this name exists. False where the drive does not answer.
bool isFree(const std::string& path, files::FileCalls& calls) {
  return calls.attributes(path) == INVALID_FILE_ATTRIBUTES &&
         GetLastError() == ERROR_FILE_NOT_FOUND;
}

}  // namespace

void frmMain::FILELOAD(const std::string& path) {
  CBOTBARBOX().clear();
  list_.clear();
  std::exception_ptr failure;
  readWhole_ = false;
  onDisk_.reset();
  unshownTold_ = false;
  try {
    FileContent content = readFile(path, *fileCalls_);
    onDisk_ = content.stamp;
    const document::ReadOutcome outcome = document::read(std::move(content.bytes), list_);
    readWhole_ = content.whole && outcome.result == document::ReadResult::whole;
    if (outcome.result == document::ReadResult::overflow) values::raiseOverflow();
    if (!readWhole_) throw RuntimeError(ErrorNumber::inputPastEnd, "Input past end of file");
  } catch (const RuntimeError& error) {
    // Where no file of this name exists, Save may write one: no bytes can be lost. Where the folder
    // is missing too, Save may not: the drive may come back, and the file with it.
    if (error.number() == ErrorNumber::fileNotFound) readWhole_ = true;
    failure = std::current_exception();
  } catch (const std::bad_alloc&) {
    list_.clear();
    failure = std::make_exception_ptr(values::systemError(ERROR_OUTOFMEMORY));
  }
  fillNameBox(CBOTBARBOX(), list_);
  list_.setCurrent(0);
  ShowCurrent();
  SETSAVE("FALSE");
  RefreshCommands();
  if (failure) std::rethrow_exception(failure);
}

void frmMain::FILESAVEAS(const std::string& path) {
  StoreCurrent();
  files::replaceFile(
      path, [this](const files::FileSink& sink) { document::write(list_, sink); }, *fileCalls_);
  onDisk_ = stampOf(path);
  SETSAVE("FALSE");
}

void frmMain::SETTITLE(const std::string& path) {
  control(id::LBLDESC).setText(titleText(windowing::productName(), path));
}

void frmMain::setDocumentPath(const std::string& path) {
  CMD1.fileName = path;
  library::modLibrary().documentPath = path;
}

// The stored folder, if it exists. Otherwise the documents' folder: on Wine, a file dialog that is
// to begin in a device ends the program.
std::string frmMain::rememberedFolder(library::Setting setting) const {
  const std::string otherwise = LIBRARY().FILESLOCATION();
  const std::string stored = library::readText(setting, otherwise);
  for (const std::string& folder : {library::bareDriveToRoot(stored), otherwise})
    if (isFolder(folder)) return fullPathOf(folder);
  return {};
}

void frmMain::rememberFolder(library::Setting setting, const std::string& file) {
  library::writeText(setting, LIBRARY().GETFOLDERPATH(file));
}

// Opens a document, from a dialog or from the command line. Raises the error of reading the file,
// after the title and the modified state were set.
void frmMain::openPath(const std::string& path) {
  setDocumentPath(path);
  rememberFolder(library::Setting::openFolder, path);
  std::exception_ptr failure;
  try {
    FILELOAD(path);
  } catch (const std::exception&) {
    failure = std::current_exception();
  }
  SETTITLE(path);
  SETSAVE("False");
  if (failure) std::rethrow_exception(failure);
}

void frmMain::openNamedAtStart(const std::string& path) {
  load();
  try {
    openPath(path);
  } catch (const std::exception&) {
    // Deliberately not reported at the start. The title shows the file's name, and the contacts
    // that were read are on screen.
  }
}

// Whether the document on screen may be closed: it is unmodified, or the user saves it or agrees to
// lose the changes.
bool frmMain::mayDiscard(int question) {
  if (!modified()) return true;
  // While the question is on screen, no second one is asked: a shutdown has to wait.
  if (asking_) return false;
  const While asking(asking_);
  const std::string name = LIBRARY().FILECHK(CMD1.fileName);
  const int answer = LIBRARY().MESSAGEBOXFCN(question, name, "", "", "");
  // Any other answer, also that of a box that could not be shown, keeps the document open.
  return answer == IDNO || (answer == IDYES && SaveDocument());
}

void frmMain::newDocument() {
  if (!mayDiscard(library::question::saveFirst)) return;
  startNewDocument();
  focusFirstField();
}

void frmMain::startNewDocument() {
  list_.clear();
  setDocumentPath("");
  readWhole_ = true;
  onDisk_.reset();
  unshownTold_ = false;
  SETTITLE("");
  emptyFields();
  CBOTBARBOX().clear();
  // A new document always starts with one empty contact.
  AddContact();
  RefreshCommands();
  SETSAVE("False");
}

void frmMain::openDocument() {
  if (!mayDiscard(library::question::saveFirst)) return;
  windowing::FileDialog dialog;
  dialog.title = "Open";
  dialog.filter = filter;
  dialog.folder = rememberedFolder(library::Setting::openFolder);
  dialog.extension = extension;  // of a name typed without one
  dialog.flags = openFlags;
  std::optional<std::string> chosen;
  {
    const library::CentredDialog centred;
    chosen = windowing::seams().fileDialog(windowing::dialogOwner(), dialog);
  }
  if (!chosen) return;
  try {
    openPath(*chosen);
  } catch (const RuntimeError& error) {
    tellUnread(*chosen, error);
  }
  focusFirstField();
}

void frmMain::tellUnread(const std::string& path, const RuntimeError& error) {
  std::string text = "The document '" + path + "' ";
  if (error.number() == ErrorNumber::fileNotFound) {
    text += "does not exist";
  } else if (error.number() == ErrorNumber::pathNotFound) {
    text += "cannot be found: its folder or drive does not exist";
  } else {
    text += "could not be read completely.\r\n" + std::to_string(list_.count()) +
            (list_.count() == 1 ? " contact was read." : " contacts were read.") + "\r\n\r\n" +
            error.what();
  }
  if (!text.ends_with('.')) text += '.';
  windowing::seams().messageBox(windowing::dialogOwner(), text, "Open", MB_OK | MB_ICONEXCLAMATION);
}

// Writes the document, and reports an error to the user. False then.
bool frmMain::saveTo(const std::string& path) {
  try {
    FILESAVEAS(path);
    return true;
  } catch (const std::exception&) {  // of any kind, also too little memory
    LIBRARY().MESSAGEBOX(library::message::problemSaving, path, "", "", "");
    return false;
  }
}

bool frmMain::SaveDocument() {
  // A broken file may hold more than the contacts that were read, so it must not be written over.
  if (CMD1.fileName.empty() || !readWhole_) return saveAs();
  // Ask first where another program has changed the file, or made one of this name.
  const std::optional<FileStamp> now = stampOf(CMD1.fileName);
  if (now && now != onDisk_ && !LIBRARY().OVERWRITECHK(CMD1.fileName)) return false;
  return saveTo(CMD1.fileName);
}

bool frmMain::saveAs() {
  std::string chosen;
  for (;;) {
    windowing::FileDialog dialog;
    dialog.save = true;
    dialog.title = "Save As";
    dialog.filter = filter;
    dialog.folder = rememberedFolder(library::Setting::saveFolder);
    dialog.fileName = library::fileNameOf(CMD1.fileName, values::isLeadByte);
    dialog.extension = extension;
    dialog.flags = openFlags;
    std::optional<std::string> answer;
    {
      const library::CentredDialog centred;
      answer = windowing::seams().fileDialog(windowing::dialogOwner(), dialog);
    }
    if (!answer) return false;
    chosen =
        library::withDefaultExtension(*answer, std::string(".") + extension, values::isLeadByte);
    rememberFolder(library::Setting::saveFolder, chosen);
    if (!readWhole_ && sameFile(chosen, CMD1.fileName) && !isFree(chosen, *fileCalls_)) {
      windowing::seams().messageBox(windowing::dialogOwner(),
                                    "The document '" + chosen +
                                        "' was not read completely and is kept as it is.\r\n"
                                        "Please save under another name.",
                                    "Save As", MB_OK | MB_ICONEXCLAMATION);
      continue;
    }
    if (LIBRARY().OVERWRITECHK(chosen)) break;
  }
  if (!saveTo(chosen)) return false;
  setDocumentPath(chosen);
  readWhole_ = true;
  SETTITLE(chosen);
  SETSAVE("False");
  return true;
}

bool frmMain::onQueryUnload() {
  return mayDiscard(library::question::saveBeforeClose);
}

void frmMain::onUnload() {
  LIBRARY().FORMSAVE(name(), *this, false);
}

}  // namespace mainwindow
