// Menus, toolbar, keys and what each command of the preview does.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <utility>

#include "controls/ICOMNU_win.h"

#include "library/clsLibrary_win.h"
#include "library/modLibrary_win.h"
#include "printing/clsPrinting_win.h"
#include "printing/frmPPrev_win.h"
#include "printing/preview_commands.h"
#include "printing/printer_ready_win.h"
#include "printing/zoom.h"
#include "values/number_text.h"

namespace printing {

using library::LIBRARY;

namespace {

struct Shortcut {
  WPARAM key;
  int command;
};
constexpr Shortcut shortcuts[] = {
    {VK_HOME, id::FIRST}, {VK_PRIOR, id::PREVIOUS}, {VK_NEXT, id::NEXT}, {VK_END, id::LAST}};

bool isList(HWND window) {
  char name[16] = {};
  GetClassNameA(window, name, sizeof name);
  return lstrcmpiA(name, "ComboBox") == 0;
}

}  // namespace

void frmPPrev::ICONMENUS() {
  load();
  // Sizes that change with the menu bar are for the time when it is complete.
  const bool ready = std::exchange(ready_, false);
  // On a window the bar would be drawn with every item.
  SetMenu(handle(), nullptr);
  ICOMNU->clear();
  ICOMNU->setImages(IMGLST);
  for (const PreviewCommand& command : previewCommands) {
    if (command.menu == noMenu) continue;
    LIBRARY().MENUCREATE(*this, *this, menuCaption(command), "", command.menu, true, false,
                         command.number);
    LIBRARY().ICOMNUSETUP(*this, *this, command.number, std::string(command.key));
  }
  SetMenu(handle(), ICOMNU->bar());
  ready_ = ready;
}

controls::ICOMNU& frmPPrev::iconMenus() {
  return *ICOMNU;
}

void frmPPrev::setCommandEnabled(int command, bool enabled) {
  const PreviewCommand* known = findPreviewCommand(command);
  if (known == nullptr) return;
  if (known->menu != noMenu) ICOMNU->setEnabled(command, enabled);
  if (known->onToolbar) TBARMAIN().setButtonEnabled(command, enabled);
}

void frmPPrev::setCommandChecked(int command, bool checked) {
  ICOMNU->setChecked(command, checked);
}

bool frmPPrev::commandEnabled(int command) const {
  const PreviewCommand* known = findPreviewCommand(command);
  if (known == nullptr) return false;
  return known->menu != noMenu ? ICOMNU->isEnabled(command) : TBARMAIN().buttonEnabled(command);
}

bool frmPPrev::commandChecked(int command) const {
  return ICOMNU->isChecked(command);
}

// The lists use these keys themselves.
bool frmPPrev::handleKey(const MSG& message) {
  const bool plain =
      message.message == WM_KEYDOWN && GetKeyState(VK_SHIFT) >= 0 && GetKeyState(VK_CONTROL) >= 0;
  if (!plain || isList(message.hwnd)) return false;
  for (const Shortcut& shortcut : shortcuts) {
    if (shortcut.key != message.wParam) continue;
    runCommand(shortcut.command);
    return true;
  }
  return false;
}

void frmPPrev::runCommand(int command) {
  const PreviewCommand* known = findPreviewCommand(command);
  if (known == nullptr || !commandEnabled(command)) return;
  library::attempt(known->caption, [&] { carryOut(command); });
}

void frmPPrev::carryOut(int command) {
  for (const ZoomLevel& level : zoomLevels) {
    if (level.command != command) continue;
    CBOPGZOOM().select(zoomIndex(level.text).value_or(0));
    return PRINTING().ZOOMSEL();
  }
  switch (command) {
    case id::PRINT:
      return print(false);
    case id::CLOSE:
      static_cast<void>(unload());
      return;
    case id::TOOLBAR:
    case id::STATUSBAR:
      return toggleBar(command);
    case id::FIRST:
      return PRINTING().PAGESTART();
    case id::PREVIOUS:
      return PRINTING().PAGEPREVIOUS();
    case id::NEXT:
      return PRINTING().PAGENEXT();
    case id::LAST:
      return PRINTING().PAGEEND();
    case id::ZOOMIN:
      return PRINTING().ZOOMIN();
    case id::ZOOMOUT:
      return PRINTING().ZOOMOUT();
    case id::ABOUT:
      return library::modLibrary().showAbout();
    default:
      return;
  }
}

// Every button runs its menu item's command but one: Print prints everything without a dialog.
void frmPPrev::onToolButton(int command) {
  if (command == id::PRINT && commandEnabled(command))
    return library::attempt(findPreviewCommand(command)->caption, [this] { print(true); });
  runCommand(command);
}

void frmPPrev::print(bool atOnce) {
  // As in the main window: the menu's command says what the button leaves unsaid.
  if (!atOnce && !printerReady()) return;
  const POINT seen = PICWINDOW_.scrollPosition();
  PRINTING().PRINTDOCUMENT(*this, RTF3(), atOnce);
  PRINTING().refreshPreview();
  PICWINDOW_.scrollTo(seen);
}

void frmPPrev::onSelect(int id) {
  if (id == id::CBOPGNO) {
    const windowing::ComboBox pages = CBOPGNO();
    PRINTING().PAGESEL(values::toInteger16(pages.entry(pages.selected()), '.'), PICSTDPAGE());
  } else if (id == id::CBOPGZOOM) {
    PRINTING().ZOOMSEL();
  }
}

LRESULT frmPPrev::onNotify(NMHDR& header) {
  hints_.notify(header, [](int id) {
    const PreviewCommand* command = findPreviewCommand(id);
    return command == nullptr ? library::ButtonHint{}
                              : library::ButtonHint{command->key, command->caption};
  });
  return 0;
}

LRESULT frmPPrev::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  LRESULT answer = 0;
  if (ICOMNU->handleMessage(handle(), message, wParam, lParam, answer)) return answer;
  if (message == WM_COMMAND && lParam != 0) {
    // With the page chosen, the keys of the pages work again.
    const bool closed = HIWORD(wParam) == CBN_CLOSEUP;
    if (closed && isList(reinterpret_cast<HWND>(lParam))) control(id::PICWINDOW).focus();
  }
  if (message == WM_GETMINMAXINFO) {
    // Wine counts the menu bar of a popup to its frame, and would hide the caption of a maximised
    // one above the screen. A frame is as high as it is wide.
    POINT& corner = reinterpret_cast<MINMAXINFO*>(lParam)->ptMaxPosition;
    corner.y = std::max(corner.y, corner.x);
  }
  if (message == WM_DESTROY) ready_ = false;
  if (message == WM_ENDSESSION && wParam != FALSE) onUnload();
  return CommandForm::handleMessage(message, wParam, lParam);
}

}  // namespace printing
