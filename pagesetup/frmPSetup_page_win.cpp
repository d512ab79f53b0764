// The first page: printer, paper, orientation and margins, and the sample that shows them.
#include <windows.h>

#include <algorithm>

#include "controls/drawing_win.h"
#include "library/clsLibrary_win.h"
#include "library/modLibrary_win.h"
#include "library/stored_settings_win.h"
#include "pagesetup/frmPSetup_design_win.h"
#include "pagesetup/frmPSetup_win.h"
#include "pagesetup/paper_table.h"
#include "paper/printer_win.h"
#include "values/checked.h"
#include "values/number_text.h"
#include "values/runtime_error.h"
#include "values/user_locale_win.h"
#include "windowing/screen_win.h"

namespace pagesetup {

using library::LIBRARY;
using library::modLibrary;
using library::Setting;
using paper::Orientation;
using paper::printer;
using values::ignoringErrors;

namespace {

struct StoredMargin {
  int box;
  Setting setting;
};
constexpr StoredMargin storedMargins[] = {{id::UDNLEFT, Setting::leftMargin},
                                          {id::UDNRIGHT, Setting::rightMargin},
                                          {id::UDNTOP, Setting::topMargin},
                                          {id::UDNBOTTOM, Setting::bottomMargin}};
// The properties' own left margin is never written, so it has no field here.
static_assert(std::ranges::all_of(library::settings, [](const library::SettingRow& row) {
  const bool field =
      row.kind == library::SettingKind::inches && row.setting != Setting::propertiesLeftMargin;
  return std::ranges::count(storedMargins, row.setting, &StoredMargin::setting) == (field ? 1 : 0);
}));
constexpr double defaultMargin = 1.0;

// This paper limits the margins as long as no printer has reported another.
constexpr PaperFacts usualPaper{8.5, 11, {}};

// The sample is black on white, whatever colours the user chose for the screen.
constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF black = RGB(0, 0, 0);
constexpr COLORREF textGrey = RGB(208, 208, 208);
constexpr COLORREF areaGrey = RGB(128, 128, 128);

// The number in a stored text. An empty text gives 0, which no printer accepts.
std::int32_t number(const std::string& text) {
  return values::roundTo<std::int32_t>(values::leadingNumber(text));
}

void applyOrientation(const std::string& text) {
  if (!text.empty())
    ignoringErrors([&] { printer().setOrientation(static_cast<Orientation>(number(text))); });
}

void applyPaper(const std::string& code) {
  if (!code.empty()) ignoringErrors([&] { printer().setPaperSize(number(code)); });
}

double inches(double pixels, bool vertical) {
  return LIBRARY().SHOWUNITS(values::roundTo<std::int32_t>(pixels), vertical);
}

double strip(double pixels, bool vertical) {
  return wholeInches(inches(pixels, vertical), values::userDecimalSign());
}

RECT pixelsOf(const Box& box) {
  return {windowing::screenPixels(box.left), windowing::screenPixels(box.top),
          windowing::screenPixels(box.left + box.width),
          windowing::screenPixels(box.top + box.height)};
}

// Draws grey lines that look like lines of text.
void drawTextLines(HDC dc, RECT area) {
  InflateRect(&area, -windowing::scaled(4), -windowing::scaled(4));
  const int thickness = windowing::scaled(1);
  for (int top = area.top; top + thickness <= area.bottom && area.left < area.right;
       top += windowing::scaled(5))
    controls::fill(dc, {area.left, top, area.right, top + thickness}, textGrey);
}

}  // namespace

void frmPSetup::loadPage() {
  fillPrinters();
  showPrinter();
  applyOrientation(modLibrary().orientation);
  showOrientation();
  ignoringErrors(
      [] { modLibrary().orientation = std::to_string(static_cast<int>(printer().orientation())); });
  fillPapers();
  applyPaper(modLibrary().paperCode);
  showPaper();
  // The sample needs pixels. The print engine sets its own unit.
  printer().setScaleMode(paper::PrinterScale::pixels);
  paper_.reset();
  sample_.reset();
  readPaper();
  loadMargins();
  drawSample();
}

void frmPSetup::fillPrinters() {
  CBOPRINTERS().clear();
  for (const std::string& name : paper::printerNames()) CBOPRINTERS().add(name);
}

void frmPSetup::showPrinter() const {
  const windowing::ComboBox list = CBOPRINTERS();
  const std::string current = printer().name();
  list.select(-1);
  for (int i = 0; i < list.count(); ++i)
    if (list.entry(i) == current) list.select(i);
}

void frmPSetup::showOrientation() const {
  Orientation shown = Orientation::portrait;
  ignoringErrors([&] { shown = printer().orientation(); });
  const bool portrait = shown == Orientation::portrait;
  checkBox(id::OPTORIENTPORT).setState(portrait ? BST_CHECKED : BST_UNCHECKED);
  checkBox(id::OPTORIENTLAND).setState(portrait ? BST_UNCHECKED : BST_CHECKED);
}

void frmPSetup::fillPapers() const {
  CBOPAPER().clear();
  for (const Paper& paper : papers) CBOPAPER().add(paper.name);
}

// Selects the printer's paper in the list; nothing where the table does not have it.
void frmPSetup::showPaper() const {
  CBOPAPER().select(-1);
  ignoringErrors([this] { CBOPAPER().select(paperIndex(printer().paperSize())); });
}

void frmPSetup::loadMargins() const {
  const char sign = values::userDecimalSign();
  for (const StoredMargin& stored : storedMargins) {
    // Where the stored text is no number, the field keeps the number of its design.
    const auto inches = values::parseStoredNumber(library::readText(stored.setting), sign);
    if (inches)
      margin(stored.box).setText(LIBRARY().TEXTJUSTIFY(values::doubleText(*inches, sign)));
  }
}

void frmPSetup::saveMargins() const {
  for (const StoredMargin& stored : storedMargins)
    library::writeText(stored.setting, margin(stored.box).text());
}

void frmPSetup::setDefaultMargins() const {
  for (const StoredMargin& stored : storedMargins) margin(stored.box).setValue(defaultMargin);
}

void frmPSetup::choosePrinter() {
  try {
    printer().select(CBOPRINTERS().selectedEntry());
  } catch (const values::RuntimeError&) {
    showPrinter();
    throw;
  }
  // The printer gets the paper and orientation of this form at OK anyway. It gets them now, so that
  // the form shows which of them it accepts.
  applyPaper(paperCode_);
  applyOrientation(orientation_);
  showPaper();
  showOrientation();
  drawSample();
  enableOK(true);
}

void frmPSetup::choosePaper() {
  const int chosen = CBOPAPER().selected();
  if (chosen < 0) return;
  ignoringErrors([&] { printer().setPaperSize(papers[static_cast<std::size_t>(chosen)].code); });
  // The driver may have refused the code, so the one that it reports is used.
  ignoringErrors([this] { paperCode_ = std::to_string(printer().paperSize()); });
  showPaper();
  drawSample();
  enableOK(true);
}

void frmPSetup::chooseOrientation(int option) {
  const std::string wanted = option == id::OPTORIENTPORT ? "1" : "2";
  // Option buttons also report a click when they get the focus.
  if (wanted == orientation_) return;
  applyOrientation(wanted);
  orientation_ = wanted;
  drawSample();
  enableOK(true);
}

void frmPSetup::copyRemembered() {
  if (!modLibrary().paperCode.empty()) paperCode_ = modLibrary().paperCode;
  if (!modLibrary().orientation.empty()) orientation_ = modLibrary().orientation;
}

void frmPSetup::remember() const {
  library::ProgramVariables& remembered = modLibrary();
  remembered.paperCode = std::to_string(number(paperCode_));
  remembered.orientation = std::to_string(number(orientation_));
  remembered.printerName = printer().name();
}

void frmPSetup::applyChoices() const {
  applyPaper(paperCode_);
  applyOrientation(orientation_);
}

// Reads the size of the paper and its strips. Where the printer does not tell them, the old ones
// stay.
void frmPSetup::readPaper() {
  ignoringErrors([this] {
    const SIZE size = printer().physicalSize();
    const POINT offset = printer().physicalOffset();
    const double right = size.cx - (offset.x + printer().scaleWidth());
    const double bottom = size.cy - (offset.y + printer().scaleHeight());
    paper_ = {
        inches(size.cx, false),
        inches(size.cy, true),
        {strip(offset.x, false), strip(right, false), strip(offset.y, true), strip(bottom, true)}};
  });
  const PaperFacts& limiting = paper_ ? *paper_ : usualPaper;
  for (const int box : {id::UDNLEFT, id::UDNRIGHT})
    margin(box).setLimits(0, largestMargin(limiting.width));
  for (const int box : {id::UDNTOP, id::UDNBOTTOM})
    margin(box).setLimits(0, largestMargin(limiting.height));
}

void frmPSetup::drawSample() {
  readPaper();
  if (!paper_) return;
  const Sides margins{margin(id::UDNLEFT).value(), margin(id::UDNRIGHT).value(),
                      margin(id::UDNTOP).value(), margin(id::UDNBOTTOM).value()};
  sample_ = samplePage(*paper_, margins, psetup_design::sampleSide);
  InvalidateRect(control(id::PICWINDOW).handle(), nullptr, FALSE);
  const auto show = [this](int label, const std::string& text) {
    if (control(label).text() != text) control(label).setText(text);
  };
  const char sign = values::userDecimalSign();
  show(id::LBLHEIGHT, sizeText("Height: ", paper_->height, sign));
  show(id::LBLWIDTH, sizeText("Width: ", paper_->width, sign));
}

void frmPSetup::paintSample(const DRAWITEMSTRUCT& item) const {
  const controls::Buffered buffer(item.hDC, item.rcItem);
  const HDC dc = buffer.dc();
  const int line = windowing::scaled(1);
  controls::fill(dc, item.rcItem, GetSysColor(COLOR_BTNFACE));
  if (!sample_) return;
  controls::fill(dc, pixelsOf(sample_->PICSHADOW), GetSysColor(COLOR_BTNSHADOW));
  const RECT paper = pixelsOf(sample_->PICPAPER);
  controls::fill(dc, paper, white);
  controls::frame(dc, paper, black, line);
  if (!sample_->SHPAREA) return;
  const RECT area = pixelsOf(*sample_->SHPAREA);
  controls::frame(dc, area, areaGrey, line);
  drawTextLines(dc, area);
}

}  // namespace pagesetup
