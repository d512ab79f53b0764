#include "printing/print_engine_win.h"

#include <algorithm>
#include <string>

#include "library/centred_dialog_win.h"
#include "library/clsLibrary_win.h"
#include "library/stored_settings_win.h"
#include "paper/printer_win.h"
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

// Whole inches in twips; raises overflow for more than 22 inches.
std::int16_t inchTwips(std::int16_t inches) {
  return checkedMultiply(inches, std::int16_t{twipsPerInch});
}

// Has the box release what it keeps from one page to the next.
void release(const RichTextBox& box) {
  box.send(EM_FORMATRANGE, FALSE, 0);
}

// Goes on to the page that begins at `next`. Its device context may be another one.
void advance(FORMATRANGE& range, std::int32_t next) {
  range.chrg.cpMin = next;
  range.hdc = range.hdcTarget = printer().dc();
}

bool same(const RECT& a, const RECT& b) {
  return EqualRect(&a, &b) != FALSE;
}

// A page being drawn. Finishes the picture and releases the box's memory at the end of the scope,
// also when header or footer raise an error.
class OpenPage {
 public:
  OpenPage(paper::PagePicture& picture, const RichTextBox& text) : picture_(picture), text_(text) {
    picture_.begin(printer().dc());
  }
  OpenPage(const OpenPage&) = delete;
  OpenPage& operator=(const OpenPage&) = delete;
  ~OpenPage() {
    picture_.finish();
    release(text_);
  }

 private:
  paper::PagePicture& picture_;
  const RichTextBox& text_;
};

}  // namespace

void PrintEngine::readMargins() {
  using library::readNumber;
  using library::Setting;
  inches_.left = readNumber(Setting::leftMargin);
  inches_.right = readNumber(Setting::rightMargin);
  inches_.top = readNumber(Setting::topMargin);
  inches_.bottom = readNumber(Setting::bottomMargin);
}

PageMargins PrintEngine::wholeInches() const {
  return {roundTo<std::int16_t>(inches_.left), roundTo<std::int16_t>(inches_.top),
          roundTo<std::int16_t>(inches_.right), roundTo<std::int16_t>(inches_.bottom)};
}

PageMargins PrintEngine::inTwips() const {
  const auto twips = [](double inches) { return roundTo<std::int16_t>(inches * twipsPerInch); };
  return {twips(inches_.left), twips(inches_.top), twips(inches_.right), twips(inches_.bottom)};
}

void PrintEngine::SetupPageLayout(std::int16_t left, std::int16_t top, std::int16_t right,
                                  std::int16_t bottom) {
  currentPage_ = 1;
  printer().setScaleMode(paper::PrinterScale::twips);
  const double width = printer().width();
  const double height = printer().height();
  boxes_.PICSTDPAGE().resize(width, height);
  const POINT pixels = printer().physicalOffset();
  const auto offsetX = roundTo<std::int16_t>(pixels.x * printer().twipsPerPixelX());
  const auto offsetY = roundTo<std::int16_t>(pixels.y * printer().twipsPerPixelY());
  layout_.offset = {offsetX, offsetY};
  layout_.page = {0, 0, roundTo<std::int32_t>(printer().scaleWidth()),
                  roundTo<std::int32_t>(printer().scaleHeight())};
  layout_.body.left = checkedSubtract(inchTwips(left), offsetX);
  layout_.body.top = checkedSubtract(inchTwips(top), offsetY);
  // Counted from the right and bottom edges of the paper, not of the printable area.
  layout_.body.right = roundTo<std::int32_t>(width - inchTwips(right) - offsetX);
  layout_.body.bottom = roundTo<std::int32_t>(height - inchTwips(bottom) - offsetY);
}

void PrintEngine::layOut(const PageMargins& wholeInches) {
  SetupPageLayout(wholeInches.left, wholeInches.top, wholeInches.right, wholeInches.bottom);
}

FORMATRANGE PrintEngine::firstPage() const {
  return {printer().dc(), printer().dc(), layout_.body, layout_.page, {0, -1}};
}

// Formats one page of `box` from range.cpMin on. Returns the first character after it.
std::int32_t PrintEngine::formatPage(const RichTextBox& box, FORMATRANGE& range) const {
  range.rc = layout_.body;  // the control changes it
  range.rcPage = layout_.page;
  return static_cast<std::int32_t>(
      box.send(EM_FORMATRANGE, TRUE, reinterpret_cast<LPARAM>(&range)));
}

// Whether there is another page. A page without a character ends the text, since the margins may
// leave no room for any.
bool PrintEngine::goesOn(std::int32_t next, const FORMATRANGE& range) const {
  return next < textLength_ && next > range.chrg.cpMin;
}

void PrintEngine::takeText(DialogForm& form, const RichTextBox& source) {
  const bool everything = source.selection().length == 0;
  dialogFlags_ = everyPrint | (everything ? PD_NOSELECTION : PD_SELECTION);
  form.CMD1().flags = dialogFlags_;
  RichTextBox& text = boxes_.RTF3();
  text.setRichText(everything ? source.richText() : source.selectedRichText());
  useText(text);
  laidOut_ = {};
}

std::int32_t PrintEngine::countPages(DialogForm& form, const PageMargins& wholeInches) {
  layOut(wholeInches);
  const RichTextBox& text = boxes_.RTF3();
  // Printing has used another box, with a part of this text.
  useText(text);
  laidOut_ = {};
  rememberPages();
  pageCount_ = 1;
  FORMATRANGE range = firstPage();
  for (;;) {
    const std::int32_t next = formatPage(text, range);
    // Deliberate: where nothing is formatted, the dialog keeps its settings.
    if (next == 0) return pageCount_;
    if (!goesOn(next, range)) break;
    advance(range, next);
    laidOut_.starts.push_back(next);
    pageCount_ = checkedAdd(pageCount_, std::int32_t{1});
  }
  release(text);
  paper::PrintDialog& dialog = form.CMD1();
  dialog.fromPage = 1;
  dialog.toPage = dialog.max = pageCount_;
  dialog.copies = 1;
  printer().setCopies(dialog.copies);
  dialog.cancelError = true;
  return pageCount_;
}

void PrintEngine::refresh(DialogForm& form) {
  readMargins();
  layOut(wholeInches());
  useText(boxes_.RTF3());
  if (!pagesStillValid()) countPages(form);
}

void PrintEngine::print(DialogForm& form, bool skipDialog) {
  paper::PrintDialog& dialog = form.CMD1();
  readMargins();
  dialog.cancelError = true;
  countPages(form);
  if (!skipDialog) askUser(form);
  layOut(wholeInches());
  if (skipDialog) dialog.copies = 1;
  printer().setCopies(dialog.copies);
  takePages(dialog.fromPage, dialog.toPage);
  sendPages();
}

void PrintEngine::abandon() {
  printer().abandonDocument();
  release(boxes_.RTF2());
  release(boxes_.RTF3());
}

// Shows the print dialog and counts the pages again, since the user may have chosen another printer
// or paper. The range of pages is limited to the new count.
void PrintEngine::askUser(DialogForm& form) {
  paper::PrintDialog& dialog = form.CMD1();
  dialog.flags = dialogFlags_;  // without the pages that the user chose last time
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
void PrintEngine::takePages(std::int32_t from, std::int32_t to) {
  RichTextBox& text = boxes_.RTF3();
  RichTextBox& pages = boxes_.RTF2();
  useText(text);
  FORMATRANGE range = firstPage();
  std::int32_t start = 0;
  std::int32_t end = 0;
  for (std::int32_t page = 1;; ++page) {
    if (page == from) start = range.chrg.cpMin;
    const std::int32_t next = formatPage(text, range);
    if (page == to) end = next;
    if (!goesOn(next, range) || page == to) break;
    advance(range, next);
  }
  pages.setPlain({});
  text.select({start, std::max(0, end - start)});
  pages.setRichText(text.selectedRichText());
  useText(pages);
  release(text);
}

void PrintEngine::sendPages() {
  const RichTextBox& text = boxes_.RTF2();
  const PageMargins margins = inTwips();
  FORMATRANGE range = firstPage();
  printer().startOutput();
  for (std::int32_t page = 1;; ++page) {
    // Deliberate: the routine takes the bottom margin before the right one, but gets them in the
    // other order. It shows only where the two differ.
    library::LIBRARY().PAGEHEADERFOOTERINFO(std::to_string(page), margins.left, margins.top,
                                            margins.right, margins.bottom);
    const std::int32_t next = formatPage(text, range);
    if (!goesOn(next, range)) break;
    printer().newPage();
    advance(range, next);
  }
  printer().endDocument();
  release(text);
  release(boxes_.RTF3());
}

bool PrintEngine::pagesStillValid() const {
  return same(laidOut_.body, layout_.body) && same(laidOut_.page, layout_.page) &&
         laidOut_.target == printer().dc() && laidOut_.length == textLength_;
}

void PrintEngine::rememberPages() {
  if (!pagesStillValid()) laidOut_ = {layout_.body, layout_.page, printer().dc(), textLength_, {0}};
}

// The range at whose beginning page `page` begins; the last page if there are fewer.
FORMATRANGE PrintEngine::seekPage(std::int32_t page) {
  rememberPages();
  std::vector<std::int32_t>& starts = laidOut_.starts;
  const auto known = static_cast<std::int32_t>(starts.size());
  currentPage_ = std::clamp(page, std::int32_t{1}, known);
  FORMATRANGE range = firstPage();
  range.chrg.cpMin = starts[static_cast<std::size_t>(currentPage_) - 1];
  for (; currentPage_ < page; ++currentPage_) {
    const std::int32_t next = formatPage(boxes_.RTF3(), range);
    if (!goesOn(next, range)) break;
    advance(range, next);
    starts.push_back(next);
  }
  return range;
}

void PrintEngine::drawPage(std::int32_t page, paper::PagePicture& picture) {
  readMargins();
  layOut(wholeInches());
  useText(boxes_.RTF3());
  drawAt(seekPage(page), picture);
}

void PrintEngine::drawAt(const FORMATRANGE& start, paper::PagePicture& picture) {
  const RichTextBox& text = boxes_.RTF3();
  const PageMargins margins = inTwips();
  const OpenPage open(picture, text);
  // Right and bottom margin are swapped, as on the printer.
  library::LIBRARY().PAGEHEADERFOOTERINFOPREVIEW(picture, std::to_string(currentPage_),
                                                 margins.left, margins.top, margins.right,
                                                 margins.bottom);
  FORMATRANGE shown = start;
  shown.hdc = picture.dc();
  // The picture shows the whole paper, but places on the printer count from the corner of the
  // printable area.
  shown.rc = layout_.body;
  OffsetRect(&shown.rc, layout_.offset.x, layout_.offset.y);
  shown.rcPage = layout_.page;  // the control may have changed it while the page was sought
  text.send(EM_FORMATRANGE, TRUE, reinterpret_cast<LPARAM>(&shown));
}

}  // namespace printing
