// What each command does, and when it is available.
#include <windows.h>

#include "library/clsLibrary_win.h"
#include "library/modLibrary_win.h"
#include "mainwindow/commands.h"
#include "mainwindow/frmMain_win.h"
#include "windowing/application_win.h"
#include "windowing/seams_win.h"

namespace mainwindow {

using library::LIBRARY;

void frmMain::carryOut(int command, bool byButton) {
  switch (static_cast<id::MainCommand>(command)) {
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
      return byButton ? printAtOnce() : printLastReport();
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
  }
}

void frmMain::addByUser() {
  if (list_.count() == document::ContactList::maxCount) {
    windowing::seams().messageBox(
        handle(), "The document is full: it holds 32,767 contacts, and no more can be added.",
        windowing::productName(), MB_OK | MB_ICONEXCLAMATION);
    return;
  }
  // Stored first: if that fails, nothing has changed yet.
  StoreCurrent();
  AddContact();
  focusFirstField();
}

void frmMain::RefreshCommands() {
  const CommandState state{list_.count(), list_.current(), modified()};
  enableCommands([&state](int command) { return availability(command, state); });
  const bool anyName = nameBoxAvailable(state);
  // The focus must not stay on a disabled control: keys would have no effect.
  if (!anyName && CBOTBARBOX().focused()) TABMAIN().focus();
  CBOTBARBOX().setEnabled(anyName);
}

bool frmMain::modified() const {
  return commandEnabled(id::SAVE);
}

LRESULT frmMain::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != unshownMessage) return CommandForm::handleMessage(message, wParam, lParam);
  tellUnshown();
  return 0;
}

}  // namespace mainwindow
