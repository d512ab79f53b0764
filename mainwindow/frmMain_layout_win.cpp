// The main window's load handler, its bars and its layout.
#include <windows.h>

#include <commctrl.h>

#include "dialogs/frmAbout_win.h"
#include "library/clsLibrary_win.h"
#include "library/modLibrary_win.h"
#include "library/resource_ids.h"
#include "library/restore_place_win.h"
#include "library/stored_settings_win.h"
#include "mainwindow/commands.h"
#include "mainwindow/frmMain_design_win.h"
#include "mainwindow/frmMain_win.h"
#include "mainwindow/status_text.h"
#include "windowing/application_win.h"
#include "windowing/container_win.h"
#include "windowing/fonts_win.h"
#include "windowing/handle_text_win.h"
#include "windowing/screen_win.h"

namespace mainwindow {

using library::LIBRARY;

frmMain::frmMain() : CommandForm(design::form, {mainCommands, id::TABMAIN}) {}

windowing::ComboBox frmMain::CBOTBARBOX() const {
  return control<windowing::ComboBox>(id::CBOTBARBOX);
}
windowing::TabStrip frmMain::TABMAIN() const {
  return control<windowing::TabStrip>(id::TABMAIN);
}
windowing::TextBox frmMain::TXTITEMS(int index) const {
  return windowing::TextBox(control(id::textItem(index)).handle());
}

void frmMain::onLoad() {
  windowing::setMainWindow(handle());
  library::modLibrary().showAbout = [] { dialogs::frmAbout().showModal(); };
  SetWindowTextA(handle(), windowing::productName().c_str());
  for (const int size : {ICON_BIG, ICON_SMALL}) {
    const bool big = size == ICON_BIG;
    SendMessageA(handle(), WM_SETICON, static_cast<WPARAM>(size),
                 reinterpret_cast<LPARAM>(
                     LoadImageA(windowing::programInstance(), MAKEINTRESOURCEA(IDI_PROGRAM),
                                IMAGE_ICON, GetSystemMetrics(big ? SM_CXICON : SM_CXSMICON),
                                GetSystemMetrics(big ? SM_CYICON : SM_CYSMICON), LR_SHARED)));
  }
  windowing::setSurface(control(id::PICHEADER).handle(), windowing::Surface::window);
  control(id::LBLDESC).setFont(windowing::font("Tahoma", 10));
  for (const char* caption : {"General", "Home Address", "Work Address"}) TABMAIN().add(caption);
  for (const int page : design::pages) {
    const HWND frame = control(page).handle();
    windowing::setSurface(frame, windowing::Surface::tabPage);
    SetWindowPos(frame, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }
  buildToolbar();

  LIBRARY().COMBOINIT(windowing::handleText(CBOTBARBOX().handle()), "15", CBOTBARBOX(), true);
  ICONMENUS();
  library::restorePlace(name(), *this, false);
  applyView();
  // The state is set before the document exists, so that the boxes are not disabled and at once
  // enabled again.
  SETSAVE("False");
  startNewDocument();
  madePages_.clear();
  showPage(0);
  becomeReady();
  layOut();
  setFirstFocus(TXTITEMS(1));
}

void frmMain::viewChanged() {
  storeView();
  layOut();
}

// Sets the window's height to the sum of the heights that the design gives its parts.
void frmMain::layOut() {
  LayoutHeights heights;
  heights.toolbar = {design::toolbarHeight};
  heights.header = {design::headerHeight};
  heights.tabs = {design::tabHeight};
  heights.statusBar = {design::statusHeight};
  heights.toolbarShown = commandChecked(id::STANDARDBAR);
  heights.statusBarShown = commandChecked(id::STATUSBAR);
  RECT place = outerPixels();
  place.bottom = place.top + windowing::screenPixels(windowHeight(heights));
  moveOuter(place);
  arrange();
}

// Places the strips at the top, the status bar at the foot and the body between them.
void frmMain::arrange() {
  const bool toolbar = commandChecked(id::STANDARDBAR);
  RECT client{};
  GetClientRect(handle(), &client);
  SBMAIN().dock();
  const int top = toolbar ? windowing::screenPixels(design::toolbarHeight) : 0;
  const int header = windowing::screenPixels(design::headerHeight);
  const int foot = commandChecked(id::STATUSBAR) ? SBMAIN().pixels().top : client.bottom;
  if (toolbar) control(id::PICMAINTBAR).placePixels({0, 0, client.right, top});
  control(id::PICHEADER).placePixels({0, top, client.right, top + header});
  control(id::PICMAINBOX).placePixels({0, top + header, client.right, foot});

  // Caption and menu bar are higher today than the window's height allows for. So the tab strip is
  // made smaller; it has room to spare below its frames.
  const int inset = windowing::screenPixels(design::bodyMargin);
  const int body = foot - top - header;
  const int tabs = std::min(windowing::screenPixels(design::tabHeight), body - 2 * inset);
  TABMAIN().placePixels({inset, inset, client.right - inset, inset + tabs});
  for (const int page : design::pages) {
    RECT frame = control(page).pixels();
    OffsetRect(&frame, 0, inset + windowing::screenPixels(design::framesTop) - frame.top);
    control(page).placePixels(frame);
  }
  // Controls that were moved have painted over others.
  RedrawWindow(handle(), nullptr, nullptr,
               RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

}  // namespace mainwindow
