#include "printing/clsPrinting_win.h"

#include <algorithm>
#include <exception>
#include <string>

#include "library/centred_dialog_win.h"
#include "library/clsLibrary_win.h"
#include "library/stored_settings_win.h"
#include "paper/printer_win.h"
#include "printing/frmPPrev_win.h"
#include "values/checked.h"
#include "values/units.h"

namespace printing {
namespace {

using paper::printer;
using paper::RichTextBox;
using values::checkedAdd;
using values::checkedMultiply;
using values::checkedSubtract;
using values::roundTo;
using values::twipsPerInch;

constexpr DWORD everyPrint = PD_COLLATE | PD_RETURNDC | PD_HIDEPRINTTOFILE;

// Whole inches in twips; more than 22 inches do not fit.
std::int16_t inchTwips(std::int16_t inches) {
  return checkedMultiply(inches, std::int16_t{twipsPerInch});
}

}  // namespace

void clsPrinting::GETMARGINS() {
  using library::readNumber;
  using library::Setting;
  left_ = readNumber(Setting::leftMargin);
  right_ = readNumber(Setting::rightMargin);
  top_ = readNumber(Setting::topMargin);
  bottom_ = readNumber(Setting::bottomMargin);
}

clsPrinting::BodyMargins clsPrinting::wholeInches() const {
  return {roundTo<std::int16_t>(left_), roundTo<std::int16_t>(top_), roundTo<std::int16_t>(right_),
          roundTo<std::int16_t>(bottom_)};
}

clsPrinting::BodyMargins clsPrinting::inTwips() const {
  const auto twips = [](double inches) { return roundTo<std::int16_t>(inches * twipsPerInch); };
  return {twips(left_), twips(top_), twips(right_), twips(bottom_)};
}

void clsPrinting::SetupPageLayout(std::int16_t left, std::int16_t top, std::int16_t right,
                                  std::int16_t bottom) {
  currentPage_ = 1;
  printer().setScaleMode(paper::PrinterScale::twips);
  const double width = printer().width();
  const double height = printer().height();
  form_.PICSTDPAGE().resize(width, height);
  const POINT offset = printer().physicalOffset();
  offsetX_ = roundTo<std::int16_t>(offset.x * printer().twipsPerPixelX());
  offsetY_ = roundTo<std::int16_t>(offset.y * printer().twipsPerPixelY());
  page_ = {0, 0, roundTo<std::int32_t>(printer().scaleWidth()),
           roundTo<std::int32_t>(printer().scaleHeight())};
  body_.left = checkedSubtract(inchTwips(left), offsetX_);
  body_.top = checkedSubtract(inchTwips(top), offsetY_);
  // From the paper's far edges, not from those of the printable area.
  body_.right = roundTo<std::int32_t>(width - inchTwips(right) - offsetX_);
  body_.bottom = roundTo<std::int32_t>(height - inchTwips(bottom) - offsetY_);
  measuring_ = {printer().dc(), printer().dc(), body_, page_, {0, -1}};
  printing_ = measuring_;
}

void clsPrinting::INITIALIZEPATH(DialogForm& FORM, const RichTextBox& SOURCE) {
  const bool everything = SOURCE.selection().length == 0;
  dialogFlags_ = everyPrint | (everything ? PD_NOSELECTION : PD_SELECTION);
  FORM.CMD1().flags = dialogFlags_;
  RichTextBox& text = form_.RTF3();
  text.setRichText(everything ? SOURCE.richText() : SOURCE.selectedRichText());
  useText(text);
  forgetPages();
}

// Formats one page of `box` from range.cpMin on; whether the text goes on after it. A page that
// takes nothing in ends the text: margins may leave no room.
bool clsPrinting::formatPage(const RichTextBox& box, FORMATRANGE& range) {
  range.rc = body_;  // the control changes it
  range.rcPage = page_;
  next_ =
      static_cast<std::int32_t>(box.send(EM_FORMATRANGE, TRUE, reinterpret_cast<LPARAM>(&range)));
  return next_ < reportTextLength_ && next_ > range.chrg.cpMin;
}

void clsPrinting::advance(FORMATRANGE& range) const {
  range.chrg.cpMin = next_;
  range.hdc = range.hdcTarget = printer().dc();
}

void clsPrinting::release(const RichTextBox& box) const {
  box.send(EM_FORMATRANGE, FALSE, 0);
}

std::int32_t clsPrinting::PAGECOUNT(DialogForm& FORM, int, std::int16_t LEFT, std::int16_t TOP,
                                    std::int16_t RIGHT, std::int16_t BOTTOM) {
  SetupPageLayout(LEFT, TOP, RIGHT, BOTTOM);
  const RichTextBox& text = form_.RTF3();
  // What was printed last may have been a part of this text.
  useText(text);
  forgetPages();
  rememberPages();
  pageCount_ = 1;
  next_ = 0;
  while (formatPage(text, measuring_)) {
    advance(measuring_);
    laidOut_.starts.push_back(next_);
    pageCount_ = checkedAdd(pageCount_, std::int32_t{1});
  }
  // Nothing to format: the dialog stays as it is, deliberately.
  if (next_ == 0) return pageCount_;
  release(text);
  paper::PrintDialog& dialog = FORM.CMD1();
  dialog.fromPage = 1;
  dialog.toPage = dialog.max = pageCount_;
  dialog.copies = 1;
  printer().setCopies(dialog.copies);
  dialog.cancelError = true;
  return pageCount_;
}

std::int32_t clsPrinting::countPages(DialogForm& form) {
  const BodyMargins margins = wholeInches();
  return PAGECOUNT(form, 1, margins.left, margins.top, margins.right, margins.bottom);
}

void clsPrinting::PRINTDOCUMENT(DialogForm& FORM, const RichTextBox& SOURCE, bool SKIPDIALOG) {
  if (SOURCE.name() != "RTF3") INITIALIZEPATH(FORM, SOURCE);
  try {
    print(FORM, SKIPDIALOG);
  } catch (const std::exception&) {
    // Deliberately silent. What has reached the printing system is left to it.
    printer().abandonDocument();
    release(form_.RTF2());
    release(form_.RTF3());
  }
}

void clsPrinting::print(DialogForm& form, bool skipDialog) {
  paper::PrintDialog& dialog = form.CMD1();
  GETMARGINS();
  dialog.cancelError = true;
  countPages(form);
  if (!skipDialog) askUser(form);
  SetupPageLayout(wholeInches());
  if (skipDialog) dialog.copies = 1;
  printer().setCopies(dialog.copies);
  takePages(dialog.fromPage, dialog.toPage);
  sendPages();
}

// Another printer or paper may have been chosen: its pages are what the range is about.
void clsPrinting::askUser(DialogForm& form) {
  paper::PrintDialog& dialog = form.CMD1();
  dialog.flags = dialogFlags_;  // an earlier choice of pages does not stick
  {
    const library::CentredDialog centred;
    dialog.show();
  }
  const paper::PrintDialog chosen = dialog;
  const std::int32_t count = countPages(form);
  dialog.copies = chosen.copies;
  if (!chosen.rangeChosen()) return;
  dialog.fromPage = std::clamp(chosen.fromPage, 1, count);
  dialog.toPage = std::clamp(chosen.toPage, dialog.fromPage, count);
}

// Copies the text of the pages from..to of RTF3 into RTF2.
void clsPrinting::takePages(std::int32_t from, std::int32_t to) {
  RichTextBox& text = form_.RTF3();
  RichTextBox& pages = form_.RTF2();
  useText(text);
  std::int32_t page = 1;
  std::int32_t start = 0;
  std::int32_t end = 0;
  next_ = 0;
  for (;; ++page) {
    if (page == from) start = next_;
    const bool more = formatPage(text, measuring_);
    if (page == to) end = next_;
    if (!more || page == to) break;
    advance(measuring_);
  }
  pages.setPlain({});
  text.select({start, std::max(0, end - start)});
  pages.setRichText(text.selectedRichText());
  useText(pages);
  release(text);
}

void clsPrinting::sendPages() {
  const RichTextBox& text = form_.RTF2();
  const BodyMargins margins = inTwips();
  printer().startOutput();
  for (std::int32_t page = 1;; ++page) {
    // The page routine takes the bottom margin before the right one and gets them the other way
    // round. That crossing is deliberate; it shows only where the two differ.
    library::LIBRARY().PAGEHEADERFOOTERINFO(std::to_string(page), margins.left, margins.top,
                                            margins.right, margins.bottom);
    if (!formatPage(text, printing_)) break;
    printer().newPage();
    advance(printing_);
  }
  printer().endDocument();
  release(text);
  release(form_.RTF3());
}

clsPrinting& PRINTING() {
  static clsPrinting engine(thePreview());
  return engine;
}

}  // namespace printing
