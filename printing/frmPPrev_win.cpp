// The preview's controls, its load and unload handlers and its layout.
#include "printing/frmPPrev_win.h"

#include <algorithm>

#include "library/clsLibrary_win.h"
#include "library/restore_place_win.h"
#include "library/stored_settings_win.h"
#include "printing/clsPrinting_win.h"
#include "printing/frmPPrev_design_win.h"
#include "printing/preview_commands.h"
#include "windowing/handle_text_win.h"
#include "windowing/screen_win.h"

namespace printing {

using library::LIBRARY;
using windowing::screenPixels;

namespace {

void prepareList(const windowing::ComboBox& list, const std::string& rows) {
  LIBRARY().COMBOINIT(windowing::handleText(list.handle()), rows, list, true);
}

}  // namespace

frmPPrev::frmPPrev() : CommandForm(design::form, {previewCommands, id::PICWINDOW}) {
  PICWINDOW_.onPageClick = [this](UINT button) {
    runCommand(button == WM_LBUTTONDOWN ? id::ZOOMIN : id::ZOOMOUT);
  };
}

paper::RichTextBox& frmPPrev::RTF2() {
  load();
  return RTF2_;
}
paper::RichTextBox& frmPPrev::RTF3() {
  load();
  return RTF3_;
}
paper::PagePicture& frmPPrev::PICSTDPAGE() {
  load();
  return PICSTDPAGE_;
}
PageView& frmPPrev::PICWINDOW() {
  load();
  return PICWINDOW_;
}
windowing::ComboBox frmPPrev::CBOPGNO() {
  load();
  return control<windowing::ComboBox>(id::CBOPGNO);
}
windowing::ComboBox frmPPrev::CBOPGZOOM() {
  load();
  return control<windowing::ComboBox>(id::CBOPGZOOM);
}

HWND frmPPrev::makeView(Form& form, const windowing::ControlDesign& design, HWND container,
                        const RECT& place) {
  return static_cast<frmPPrev&>(form).PICWINDOW_.create(container, design.id, place);
}

void frmPPrev::onLoad() {
  RTF3_.create(handle(), id::RTF3, {});
  RTF2_.create(handle(), id::RTF2, {});
  buildToolbar();
  arrangeStrip();
  prepareList(CBOPGNO(), "15");
  prepareList(CBOPGZOOM(), std::to_string(zoomLevels.size()));
  ICONMENUS();
  applyView();
  becomeReady();
  placeView();
  setFirstFocus(control(id::PICWINDOW));
}

// Places the strip's controls from left to right: the buttons, then each list behind a line.
void frmPPrev::arrangeStrip() {
  const int strip = screenPixels(design::stripHeight);
  LONG left = TBARMAIN().pixels().right + screenPixels(design::gap);
  for (const int next :
       {id::TXTSEP1, id::CBOPGNO, id::TXTSEP2, id::LBLZOOM, id::CBOPGZOOM, id::LBLPAPER}) {
    RECT place = control(next).pixels();
    const LONG height = place.bottom - place.top;
    OffsetRect(&place, left - place.left, (strip - height) / 2 - place.top);
    control(next).placePixels(place);
    left = place.right + screenPixels(design::gap);
  }
}

// Places the view between the bars, and the text with the paper's size at the right end of the
// strip, where there is room for it beside the lists.
void frmPPrev::placeView() {
  if (!loaded()) return;
  RECT client{};
  GetClientRect(handle(), &client);
  SBMAIN().dock();
  const bool toolbar = commandChecked(id::TOOLBAR);
  const LONG strip = screenPixels(design::stripHeight);
  const LONG top = toolbar ? strip : 0;
  const LONG foot = commandChecked(id::STATUSBAR) ? SBMAIN().pixels().top : client.bottom;
  control(id::PICTBAR).placePixels({0, 0, client.right, strip});
  control(id::FRAMTBAR).placePixels({0, 0, client.right, strip});
  RECT paper = control(id::LBLPAPER).pixels();
  const LONG right = client.right - screenPixels(design::gap);
  const LONG from = right - screenPixels(design::paperWidth);
  const RECT zooms = control(id::CBOPGZOOM).pixels();
  control(id::LBLPAPER).placePixels({from, paper.top, right, paper.bottom});
  control(id::LBLPAPER).setVisible(from > zooms.right + screenPixels(design::gap));
  control(id::PICWINDOW).placePixels({0, top, client.right, std::max(top, foot)});
}

void frmPPrev::arrange() {
  PRINTING().ZOOMSEL();
}

void frmPPrev::setPaperSize(const std::string& text) {
  control(id::LBLPAPER).setText(text);
}

void frmPPrev::restorePlace() {
  library::restorePlace(library::sharedPlace, *this, true);
}

void frmPPrev::showPreview() {
  showModal();
}

void frmPPrev::discardPreview() {
  static_cast<void>(unload());
}

void frmPPrev::onUnload() {
  // The window is also loaded, hidden, only to print. Its place and zoom are not stored then.
  if (!IsWindowVisible(handle())) return;
  LIBRARY().FORMSAVE(library::sharedPlace, *this, true);
  library::writeText(library::Setting::previewZoom, CBOPGZOOM().selectedEntry());
  storeView();
}

frmPPrev& thePreview() {
  static frmPPrev form;
  return form;
}

}  // namespace printing
