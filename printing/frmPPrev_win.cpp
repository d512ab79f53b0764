// The preview's controls, its load and unload handlers and its layout.
#include "printing/frmPPrev_win.h"

#include <algorithm>

#include "controls/ICOMNU_win.h"
#include "library/clsLibrary_win.h"
#include "library/images.h"
#include "library/resource_ids.h"
#include "library/stored_settings_win.h"
#include "printing/clsPrinting_win.h"
#include "printing/frmPPrev_design_win.h"
#include "printing/preview_commands.h"
#include "values/number_text.h"
#include "values/runtime_error.h"
#include "windowing/handle_text_win.h"
#include "windowing/screen_win.h"

namespace printing {

using library::LIBRARY;
using windowing::screenPixels;

namespace {

constexpr windowing::ImageStrip imageStrips[] = {
    {16, IDB_TOOLBAR16}, {20, IDB_TOOLBAR20}, {24, IDB_TOOLBAR24}, {32, IDB_TOOLBAR32}};

// Toolbar buttons that begin a new group.
constexpr int groupStarts[] = {id::FIRST, id::ZOOMOUT};

// The document noun that descriptions insert.
constexpr char documentNoun[] = "tellary";

void prepareList(const windowing::ComboBox& list, const char* rows) {
  LIBRARY().COMBOINIT(windowing::handleText(list.handle()), rows, list, true);
}

}  // namespace

frmPPrev::frmPPrev()
    : CommandForm(design::form),
      IMGLST(imageStrips),
      ICOMNU(std::make_unique<controls::ICOMNU>()),
      hints_(*this, documentNoun) {
  ICOMNU->onHighlight = [this](int number) { hints_.item(number); };
  ICOMNU->onSystemHighlight = [this](std::uint32_t code) { hints_.systemItem(code); };
  PICWINDOW_.onPageClick = [this](UINT button) {
    runCommand(button == WM_LBUTTONDOWN ? id::ZOOMIN : id::ZOOMOUT);
  };
}

// The boxes and the view go before the window that holds them.
frmPPrev::~frmPPrev() = default;

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
windowing::StatusBar frmPPrev::SBMAIN() const {
  return control<windowing::StatusBar>(id::SBMAIN);
}
windowing::ToolBar frmPPrev::TBARMAIN() const {
  return control<windowing::ToolBar>(id::TBARMAIN);
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
  prepareList(CBOPGZOOM(), "8");
  ICONMENUS();
  applyView();
  ready_ = true;
  placeView();
  setFirstFocus(control(id::PICWINDOW));
}

void frmPPrev::buildToolbar() {
  const windowing::ToolBar bar = TBARMAIN();
  bar.setImages(IMGLST);
  for (const PreviewCommand& command : previewCommands) {
    if (!command.onToolbar) continue;
    for (const int start : groupStarts)
      if (command.number == start) bar.addSeparator();
    bar.add(command.number, library::imageIndex(command.key));
  }
}

// The buttons, then the lists, each after a line, from left to right.
void frmPPrev::arrangeStrip() {
  const windowing::ToolBar bar = TBARMAIN();
  const int strip = screenPixels(design::stripHeight);
  const int barHeight = bar.naturalHeight();
  int left = screenPixels(design::stripMargin);
  bar.placePixels(
      {left, (strip - barHeight) / 2, left + bar.naturalWidth(), (strip + barHeight) / 2});
  left += bar.naturalWidth() + screenPixels(design::gap);
  for (const int next :
       {id::TXTSEP1, id::CBOPGNO, id::TXTSEP2, id::LBLZOOM, id::CBOPGZOOM, id::LBLPAPER}) {
    RECT place = control(next).pixels();
    const LONG height = place.bottom - place.top;
    OffsetRect(&place, left - place.left, (strip - height) / 2 - place.top);
    control(next).placePixels(place);
    left = place.right + screenPixels(design::gap);
  }
}

void frmPPrev::applyView() {
  const bool toolbar = library::readTruth(library::Setting::previewToolbar);
  control(id::PICTBAR).setVisible(toolbar);
  setCommandChecked(id::TOOLBAR, toolbar);
  const bool statusBar = library::readTruth(library::Setting::previewStatusBar);
  SBMAIN().setVisible(statusBar);
  setCommandChecked(id::STATUSBAR, statusBar);
}

void frmPPrev::toggleBar(int command) {
  const bool shown = !commandChecked(command);
  setCommandChecked(command, shown);
  if (command == id::TOOLBAR) {
    if (!shown) control(id::PICWINDOW).focus();
    control(id::PICTBAR).setVisible(shown);
  } else {
    SBMAIN().setVisible(shown);
  }
  PRINTING().ZOOMSEL();
}

// The view takes what the bars leave; the paper's size stands at the strip's right end, as long
// as there is room beside the lists.
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

void frmPPrev::onSize() {
  if (ready_) PRINTING().ZOOMSEL();
}

void frmPPrev::setPaperSize(const std::string& text) {
  control(id::LBLPAPER).setText(text);
}

void frmPPrev::restorePlace() {
  try {
    LIBRARY().FORMLOAD(library::sharedPlace, *this, true);
  } catch (const values::RuntimeError&) {
    // A stored place that is none: the window stays where its design put it.
  }
}

void frmPPrev::showPreview() {
  showModal();
}

void frmPPrev::discardPreview() {
  static_cast<void>(unload());
}

void frmPPrev::onUnload() {
  hints_.end();
  // A window that was only printed with has nothing to say about how it was left.
  if (IsWindowVisible(handle())) store();
}

void frmPPrev::store() {
  LIBRARY().FORMSAVE(library::sharedPlace, *this, true);
  const windowing::ComboBox zooms = CBOPGZOOM();
  library::writeText(library::Setting::previewZoom, zooms.entry(zooms.selected()));
  library::writeTruth(library::Setting::previewStatusBar, SBMAIN().visible());
  library::writeTruth(library::Setting::previewToolbar, control(id::PICTBAR).visible());
}

frmPPrev& thePreview() {
  static frmPPrev form;
  return form;
}

}  // namespace printing
