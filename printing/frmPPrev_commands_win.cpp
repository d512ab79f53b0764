// What each command of the preview does, and when it is available.
#include <windows.h>

#include <algorithm>

#include "library/modLibrary_win.h"
#include "printing/clsPrinting_win.h"
#include "printing/frmPPrev_win.h"
#include "printing/preview_commands.h"
#include "printing/printer_ready_win.h"
#include "printing/zoom.h"
#include "values/number_text.h"

namespace printing {

void frmPPrev::ICONMENUS() {
  load();
  CommandForm::ICONMENUS();
}

void frmPPrev::setCommandChecked(int command, bool checked) {
  CommandForm::setCommandChecked(command, checked);
}

void frmPPrev::RefreshCommands() {
  const windowing::ComboBox pages = CBOPGNO();
  const std::string zoom = CBOPGZOOM().selectedEntry();
  const PreviewState state{pages.count(), pages.selected(), zoom};
  enableCommands([&state](int command) { return availability(command, state); });
}

void frmPPrev::carryOut(int command, bool byButton) {
  switch (static_cast<id::Command>(command)) {
    case id::PRINT:
      return print(byButton);
    case id::CLOSE:
      static_cast<void>(unload());
      return;
    case id::TOOLBAR:
    case id::STATUSBAR:
      return toggleBar(command);
    case id::ZOOM200:
    case id::ZOOM150:
    case id::ZOOM100:
    case id::ZOOM75:
    case id::ZOOM50:
    case id::ZOOM25:
    case id::ZOOMPW:
    case id::ZOOMWP:
      return chooseZoom(command);
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
  }
}

void frmPPrev::chooseZoom(int command) {
  for (int i = 0; i < std::ssize(zoomLevels); ++i)
    if (zoomLevels[static_cast<std::size_t>(i)].command == command) CBOPGZOOM().select(i);
  PRINTING().ZOOMSEL();
}

// The toolbar's button prints everything without a dialog.
void frmPPrev::print(bool atOnce) {
  // As in the main window, only the menu's command tells the user that no printer answers.
  if (!atOnce && !printerReady()) return;
  const POINT seen = PICWINDOW_.scrollPosition();
  PRINTING().PRINTDOCUMENT(*this, RTF3(), atOnce);
  PRINTING().refreshPreview();
  PICWINDOW_.scrollTo(seen);
}

void frmPPrev::onSelect(int id) {
  if (id == id::CBOPGNO) {
    PRINTING().PAGESEL(values::toInteger16(CBOPGNO().selectedEntry(), '.'), PICSTDPAGE());
  } else if (id == id::CBOPGZOOM) {
    PRINTING().ZOOMSEL();
  }
}

LRESULT frmPPrev::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_COMMAND && lParam != 0) {
    // When a list is closed, the focus goes to the view, where keys turn the pages.
    const bool closed = HIWORD(wParam) == CBN_CLOSEUP;
    if (closed && windowing::isClass(reinterpret_cast<HWND>(lParam), "ComboBox"))
      control(id::PICWINDOW).focus();
  }
  if (message == WM_GETMINMAXINFO) {
    // Wine counts the menu bar of a popup as part of its frame, and would put the caption of a
    // maximised one above the screen. The frame's height is the same as its width.
    POINT& corner = reinterpret_cast<MINMAXINFO*>(lParam)->ptMaxPosition;
    corner.y = std::max(corner.y, corner.x);
  }
  return CommandForm::handleMessage(message, wParam, lParam);
}

}  // namespace printing
