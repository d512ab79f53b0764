// The contact on screen: showing, storing, stepping, adding, removing.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <utility>

#include "mainwindow/frmMain_design_win.h"
#include "mainwindow/frmMain_win.h"
#include "mainwindow/shown_text.h"
#include "mainwindow/status_text.h"
#include "mainwindow/while.h"
#include "values/number_text.h"
#include "values/runtime_error.h"
#include "windowing/application_win.h"
#include "windowing/modal_win.h"
#include "windowing/seams_win.h"

namespace mainwindow {

using windowing::PaintingSuspended;

namespace {

bool multipleBytes() {
  static const bool multiple = [] {
    CPINFO info{};
    return GetCPInfo(CP_ACP, &info) != FALSE && info.MaxCharSize > 1;
  }();
  return multiple;
}

// Whether a box is empty already; then it need not be filled and painted. Empties its undo buffer,
// which still holds the text of another contact.
bool staysEmpty(const document::Field& field, const windowing::TextBox& box) {
  if (field.box != document::Box::TXTITEMS || box.send(WM_GETTEXTLENGTH) != 0) return false;
  box.send(EM_EMPTYUNDOBUFFER);
  return true;
}

// Fills a box and sets `shown` to the text that it then has. False where it has not taken the whole
// text. The text is read back because on Wine a box reports success even when it keeps its old
// text.
bool fillBox(const windowing::Control& box, std::string_view text, std::string& shown) {
  try {
    const std::string wanted(text);
    const bool taken = box.setText(wanted);
    shown = box.text();
    return taken && shownWhole(wanted, shown, multipleBytes());
  } catch (const std::exception&) {
    return false;  // not enough memory
  }
}

}  // namespace

// Shows a text in its box. A box that cannot take it is emptied, so that it does not show the text
// of another contact. False then.
bool frmMain::showField(const BoxOnPage& place, std::string_view text) {
  const auto& [field, box] = place;
  std::string& shown = shown_[static_cast<std::size_t>(field->slot)];
  if (text.empty() && staysEmpty(*field, box)) {
    shown.clear();
    return true;
  }
  if (fillBox(box, text, shown)) return true;
  box.setText("");
  shown.clear();
  return false;
}

// `filling` tells the handlers of change notices that the user has not edited anything.
void frmMain::showTexts(const document::ContactList::Texts& texts) {
  const While filling(filling_);
  bool whole = true;
  for (const BoxOnPage& box : boxesOn(madePages_))
    if (!showField(box, texts[static_cast<std::size_t>(box.field->slot)])) whole = false;
  if (whole != shownWhole_) setShownWhole(whole);
}

// Locks the boxes while they do not hold the whole contact, since nothing is stored from them then.
// Tells the user once for each document, after the command that showed the contact.
void frmMain::setShownWhole(bool whole) {
  shownWhole_ = whole;
  for (const auto& [field, box] : boxesOn(madePages_)) box.setReadOnly(!whole);
  if (!whole && !std::exchange(unshownTold_, true)) PostMessageA(handle(), unshownMessage, 0, 0);
}

void frmMain::tellUnshown() {
  windowing::seams().messageBox(
      windowing::dialogOwner(),
      "This contact cannot be shown whole: it is too large. It is kept as it is, and cannot be "
      "changed here.",
      windowing::productName(), MB_OK | MB_ICONEXCLAMATION);
}

std::vector<frmMain::BoxOnPage> frmMain::boxesOn(std::span<const int> pages) const {
  std::vector<BoxOnPage> found;
  for (const document::Field& field : document::fields) {
    const windowing::TextBox box(control(design::boxId(field)).handle());
    if (std::ranges::count(pages, GetDlgCtrlID(GetParent(box.handle()))) != 0)
      found.push_back({&field, box});
  }
  return found;
}

// Makes a page, when it is first shown, and fills it with texts of the contact on screen. The page
// is added to `madePages_` only when that has succeeded. Otherwise an empty box would look as if
// the user had emptied it.
void frmMain::makePage(int page) {
  if (std::ranges::count(madePages_, page) != 0) return;
  createControls(page);
  const While filling(filling_);
  const document::ContactList::Texts texts = list_.texts(list_.current());
  bool whole = shownWhole_;
  for (const BoxOnPage& box : boxesOn({&page, 1})) {
    if (box.field->box != document::Box::TXTITEMS) setLinkButton(box.box.id());
    box.box.setEnabled(list_.count() > 0);
    if (!showField(box, texts[static_cast<std::size_t>(box.field->slot)])) whole = false;
  }
  // Edits in the boxes of other pages are stored before all boxes are locked.
  if (!whole) StoreCurrent();
  madePages_.push_back(page);
  if (!whole) setShownWhole(false);
}

void frmMain::ShowCurrent() {
  if (list_.current() < 0) return;
  showTexts(list_.texts(list_.current()));
  CBOTBARBOX().select(list_.current() < list_.count() ? list_.current() : -1);
}

void frmMain::StoreCurrent() {
  if (list_.current() < 0 || !shownWhole_) return;
  for (const auto& [field, box] : boxesOn(madePages_)) {
    std::string& shown = shown_[static_cast<std::size_t>(field->slot)];
    std::string text = box.text();
    if (text == shown) continue;
    list_.store(list_.current(), field->slot, text);
    shown = std::move(text);
  }
}

void frmMain::AddContact() {
  // First of all: where the list is full, nothing must change.
  if (!list_.append()) values::raiseOverflow();
  list_.ClearLastRecord();
  // The contact on screen is still the old one; its edits are stored.
  StoreCurrent();
  CBOTBARBOX().add(list_.nameEntry(list_.count() - 1));
  list_.setCurrent(static_cast<std::int16_t>(list_.count() - 1));
  // Deliberately shown twice.
  ShowCurrent();
  ShowCurrent();
  RefreshCommands();
  SETSAVE("TRUE");
}

void frmMain::RemoveContact() {
  const std::int16_t removed = list_.current();
  if (list_.count() == 0 || removed < 0) return;
  CBOTBARBOX().remove(removed);
  list_.remove(removed);
  SETSAVE("TRUE");
  ShowCurrent();
  if (list_.count() < 1 || list_.current() != list_.count()) {
    RefreshCommands();
    return;
  }
  // The last contact was removed, so the current index is now that of the spare element.
  const bool wasModified = modified();
  StoreCurrent();
  GoLast();
  SETSAVE(values::textOfBoolean(wasModified));
  RefreshCommands();
}

// Goes to another contact. Stores the edits and keeps the modified state, since going to another
// contact modifies nothing.
void frmMain::move(void (frmMain::*step)()) {
  StoreCurrent();
  const bool wasModified = modified();
  (this->*step)();
  SETSAVE(values::textOfBoolean(wasModified));
}

// The four steps check no bounds, since the commands are disabled at the ends.
void frmMain::GoFirst() {
  list_.GoFirst();
  ShowCurrent();
  RefreshCommands();
}

void frmMain::GoLast() {
  list_.GoLast();
  ShowCurrent();
  RefreshCommands();
}

void frmMain::GoNext() {
  if (!list_.GoNext()) values::raiseOverflow();
  ShowCurrent();
  RefreshCommands();
}

void frmMain::GoPrevious() {
  if (!list_.GoPrevious()) values::raiseOverflow();
  ShowCurrent();
  RefreshCommands();
}

void frmMain::goTo(int index) {
  if (index < 0) return;
  const bool wasModified = modified();
  StoreCurrent();
  list_.setCurrent(static_cast<std::int16_t>(index));
  ShowCurrent();
  RefreshCommands();
  SETSAVE(values::textOfBoolean(wasModified));
}

void frmMain::emptyFields() {
  showTexts({});
}

// Updates the entry of the contact on screen in the name box, while its names are being typed.
void frmMain::rewriteNameEntry() {
  const int current = list_.current();
  if (current < 0 || current >= list_.count()) return;
  const PaintingSuspended suspended(CBOTBARBOX().handle());
  CBOTBARBOX().replace(current, TXTITEMS(1).text() + " " + TXTITEMS(0).text());
}

void frmMain::onChange(int changed) {
  if (filling_ || !shownWhole_) return;
  SETSAVE("TRUE");
  if (changed == id::TXTITEMS || changed == id::TXTITEMS + 1) rewriteNameEntry();
}

void frmMain::onSelect(int list) {
  if (list != id::CBOTBARBOX) return;
  try {
    goTo(CBOTBARBOX().selected());
  } catch (const std::exception& error) {
    // The name box must name the contact on screen again.
    CBOTBARBOX().select(list_.current());
    if (!values::isOutOfMemory(error)) throw;
    values::raiseOutOfMemory("The contact on screen could not be left.");
  }
}

void frmMain::onTab(int) {
  showPage(TABMAIN().selected());
}

// Shows one page and hides the others. Moves the focus away from a page that is hidden.
void frmMain::showPage(int index) {
  const int shown = design::pages.at(static_cast<std::size_t>(index));
  makePage(shown);
  const HWND focus = GetFocus();
  for (const int each : design::pages) {
    const windowing::Control page = control(each);
    const bool wanted = each == shown;
    if (!wanted && IsChild(page.handle(), focus)) TABMAIN().focus();
    page.setVisible(wanted);
  }
}

// Puts the focus on the first names, where the user begins with a new contact or document.
void frmMain::focusFirstField() {
  const While filling(filling_);
  TABMAIN().select(0);
  showPage(0);
  const windowing::TextBox names = TXTITEMS(1);
  if (names.enabled()) focusOn(names.handle());
}

void frmMain::refreshFieldState() {
  const bool any = list_.count() > 0;
  if (!ready() || TXTITEMS(0).enabled() == any) return;
  const HWND focus = GetFocus();
  for (const auto& [field, box] : boxesOn(madePages_)) {
    box.setEnabled(any);
    box.repaint();
    // The focus must not stay on a disabled control: keys would have no effect.
    if (!any && box.handle() == focus) TABMAIN().focus();
  }
}

void frmMain::refreshStatusText() {
  SBMAIN().setPanel(statusText(list_.count(), list_.current()));
}

void frmMain::SETSAVE(const std::string& flag) {
  setCommandEnabled(id::SAVE, values::flagIsTrue(flag));
  refreshFieldState();
  refreshStatusText();
}

}  // namespace mainwindow
