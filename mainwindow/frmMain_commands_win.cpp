// Menus, toolbar, shortcuts and what each command does.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "controls/ICOMNU_win.h"
#include "library/clsLibrary_win.h"
#include "library/modLibrary_win.h"
#include "mainwindow/availability.h"
#include "mainwindow/commands.h"
#include "mainwindow/frmMain_design_win.h"
#include "mainwindow/frmMain_win.h"
#include "values/runtime_error.h"
#include "windowing/application_win.h"
#include "windowing/seams_win.h"

namespace mainwindow {

using library::LIBRARY;
namespace id = library::id;

namespace {

/// A key that runs a command from anywhere in the window.
struct Shortcut {
  WPARAM key;
  bool control;
  int command;
  bool repeats;     ///< a held key runs it again and again
  bool ownInBox;    ///< a text box uses the key itself
  bool ownInLines;  ///< a box of several lines uses it
  bool ownInList;   ///< the name box uses it
};

constexpr Shortcut shortcuts[] = {
    {VK_INSERT, false, id::ADD, false, false, false, false},
    {VK_DELETE, true, id::REMOVE, false, true, true, false},
    {VK_HOME, false, id::FIRST, true, true, true, true},
    {VK_PRIOR, false, id::PREVIOUS, true, false, true, true},
    {VK_NEXT, false, id::NEXT, true, false, true, true},
    {VK_END, false, id::LAST, true, true, true, true},
};

// Numbers of menu titles and separators; items have the number of their command.
constexpr int firstTitle = 1;
constexpr int firstSeparator = 101;

constexpr LPARAM wasDown = 1 << 30;  // of a key message: the key was down before

bool keyBelongsToFocus(const Shortcut& shortcut, HWND focus) {
  char name[16] = {};
  GetClassNameA(focus, name, sizeof name);
  if (lstrcmpiA(name, "ComboBox") == 0) return shortcut.ownInList;
  if (lstrcmpiA(name, "Edit") != 0) return false;
  const bool lines = (GetWindowLongA(focus, GWL_STYLE) & ES_MULTILINE) != 0;
  return lines ? shortcut.ownInLines : shortcut.ownInBox;
}

}  // namespace

bool frmMain::handleKey(const MSG& message) {
  const bool control = GetKeyState(VK_CONTROL) < 0;
  if (message.message != WM_KEYDOWN || GetKeyState(VK_SHIFT) < 0) return false;
  for (const Shortcut& shortcut : shortcuts) {
    if (shortcut.key != message.wParam || shortcut.control != control) continue;
    if (keyBelongsToFocus(shortcut, message.hwnd)) return false;
    // A key held down would remove, or add, contact after contact.
    const bool repeated = (message.lParam & wasDown) != 0;
    if (!repeated || shortcut.repeats) runCommand(shortcut.command);
    return true;
  }
  return false;
}

void frmMain::runCommand(int command) {
  const Command* known = findCommand(command);
  if (known == nullptr || !commandEnabled(command)) return;
  library::attempt(known->caption, [&] { carryOut(command); });
}

void frmMain::carryOut(int command) {
  switch (command) {
    case id::NEW:
      return newDocument();
    case id::OPEN:
      return openDocument();
    case id::SAVE:
      static_cast<void>(SaveDocument());
      return;
    case id::SAVEAS:
      static_cast<void>(saveAs());
      return;
    case id::PRINT:
      return printLastReport();
    case id::PRINTPREVIEW:
      return previewLastReport();
    case id::PAGESETUP:
      return LIBRARY().PAGESETUPPAGESHOW();
    case id::EXIT:
      static_cast<void>(unload());
      return;
    case id::ADD:
      return addByUser();
    case id::REMOVE:
      return RemoveContact();
    case id::STANDARDBAR:
    case id::STATUSBAR:
      return toggleBar(command);
    case id::FIRST:
      return move(&frmMain::GoFirst);
    case id::PREVIOUS:
      return move(&frmMain::GoPrevious);
    case id::NEXT:
      return move(&frmMain::GoNext);
    case id::LAST:
      return move(&frmMain::GoLast);
    case id::WEBSITE:
      return openMakerSite();
    case id::HEADERFOOTER:
      return LIBRARY().PAGESETUPHEADFOOTSHOW();
    case id::PROPERTIES:
      return showProperties();
    case id::ABOUT:
      return library::modLibrary().showAbout();
    default:
      return;
  }
}

// Every button runs its menu item's command but one: Print composes the contact on screen and
// prints it without a dialog.
void frmMain::onToolButton(int command) {
  if (command == id::PRINT && commandEnabled(command))
    return library::attempt(findCommand(command)->caption, [this] { printAtOnce(); });
  runCommand(command);
}

void frmMain::addByUser() {
  if (list_.count() == document::ContactList::maxCount) {
    windowing::seams().messageBox(
        handle(), "The document is full: it holds 32,767 contacts, and no more can be added.",
        windowing::productName(), MB_OK | MB_ICONEXCLAMATION);
    return;
  }
  // Edits that cannot be stored call it off while all is still as it was.
  StoreCurrent();
  AddContact();
  focusFirstField();
}

void frmMain::RefreshCommands() {
  const CommandState state{list_.count(), list_.current()};
  for (const Command& command : commands) {
    // Save follows the modified state, which is nothing but its own.
    if (command.id == id::SAVE) continue;
    setCommandEnabled(command.id, commandAvailable(command.id, state));
  }
  const bool anyName = nameBoxAvailable(state);
  // A disabled control that kept the focus would leave the keyboard dead.
  if (!anyName && CBOTBARBOX().focused()) TABMAIN().focus();
  CBOTBARBOX().setEnabled(anyName);
}

bool frmMain::modified() const {
  return commandEnabled(id::SAVE);
}

void frmMain::setCommandEnabled(int command, bool enabled) {
  ICOMNU->setEnabled(command, enabled);
  const Command* known = findCommand(command);
  if (known != nullptr && known->onToolbar) TBARMAIN().setButtonEnabled(command, enabled);
}

bool frmMain::commandEnabled(int command) const {
  return ICOMNU->isEnabled(command);
}

void frmMain::setCommandChecked(int command, bool checked) {
  ICOMNU->setChecked(command, checked);
}

bool frmMain::commandChecked(int command) const {
  return ICOMNU->isChecked(command);
}

controls::ICOMNU& frmMain::iconMenus() {
  return *ICOMNU;
}

void frmMain::ICONMENUS() {
  ICOMNU->clear();
  ICOMNU->setImages(IMGLST);
  int title = firstTitle;
  int separator = firstSeparator;
  for (const Menu& menu : menus) {
    LIBRARY().MENUCREATE(*this, *this, std::string(menu.caption), "", 0, true, false, title);
    for (std::size_t i = menu.first; i < menu.first + menu.count; ++i) {
      const Command* command = findCommand(menuLines[i].command);
      if (command == nullptr) {
        LIBRARY().MENUCREATE(*this, *this, "", "", title, true, false, separator++);
      } else {
        LIBRARY().MENUCREATE(*this, *this, menuCaption(*command), "", title, true, false,
                             command->id);
      }
    }
    ++title;
  }
  for (const Command& command : commands)
    LIBRARY().ICOMNUSETUP(*this, *this, command.id, std::string(command.key));
  SetMenu(handle(), ICOMNU->bar());
}

LRESULT frmMain::onNotify(NMHDR& header) {
  hints_.notify(header, [](int id) {
    const Command* command = findCommand(id);
    return command == nullptr ? library::ButtonHint{}
                              : library::ButtonHint{command->key, command->caption};
  });
  return 0;
}

LRESULT frmMain::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  LRESULT answer = 0;
  if (ICOMNU->handleMessage(handle(), message, wParam, lParam, answer)) return answer;
  switch (message) {
    case unshownMessage:
      tellUnshown();
      return 0;
    case WM_QUERYENDSESSION:
      // The one question of a shutdown; what is answered "No" stays until the session ends.
      return mayEndSession() ? TRUE : FALSE;
    case WM_ENDSESSION:
      if (wParam != FALSE) onUnload();
      return 0;
    default:
      return CommandForm::handleMessage(message, wParam, lParam);
  }
}

}  // namespace mainwindow
