// The dialog itself: its tabs, its buttons and its keys.
#include "pagesetup/frmPSetup_win.h"

#include "controls/PANEL_win.h"
#include "controls/TXTSEP_win.h"
#include "library/clsLibrary_win.h"
#include "library/restore_place_win.h"
#include "pagesetup/frmPSetup_design_win.h"
#include "windowing/application_win.h"
#include "windowing/container_win.h"
#include "windowing/handle_text_win.h"

namespace pagesetup {

using library::LIBRARY;

namespace {

struct Tab {
  std::string_view key;
  const char* caption;
  int frame;
};
constexpr Tab tabs[] = {{"PAGE", "Page", id::FRAMPAGE},
                        {"HEADERFOOTER", "Header and Footer", id::FRAMHEADERFOOTER}};

constexpr char listRows[] = "15";

// The access key of a control, in upper case; 0 when it has none.
WPARAM accessLetter(const std::string& caption) {
  const std::size_t mark = caption.find('&');
  if (mark == std::string::npos || mark + 1 == caption.size()) return 0;
  const char letter = caption[mark + 1];
  return static_cast<unsigned char>(letter >= 'a' && letter <= 'z' ? letter - 'a' + 'A' : letter);
}

bool takesLetters(HWND focus) {
  return (SendMessageA(focus, WM_GETDLGCODE, 0, 0) & (DLGC_WANTCHARS | DLGC_WANTALLKEYS)) != 0;
}

void prepareList(const windowing::ComboBox& list) {
  LIBRARY().COMBOINIT(windowing::handleText(list.handle()), listRows, list, false);
}

}  // namespace

frmPSetup::frmPSetup() : Form(psetup_design::form) {}

windowing::TabStrip frmPSetup::TABSTRIP1() const {
  return control<windowing::TabStrip>(id::TABSTRIP1);
}
windowing::ComboBox frmPSetup::CBOPRINTERS() const {
  return control<windowing::ComboBox>(id::CBOPRINTERS);
}
windowing::ComboBox frmPSetup::CBOPAPER() const {
  return control<windowing::ComboBox>(id::CBOPAPER);
}
windowing::CheckBox frmPSetup::checkBox(int box) const {
  return control<windowing::CheckBox>(box);
}
windowing::TextBox frmPSetup::textBox(int box) const {
  return control<windowing::TextBox>(box);
}
controls::SPIN frmPSetup::margin(int box) const {
  return control<controls::SPIN>(box);
}

void frmPSetup::onLoad() {
  committed_ = false;
  paperCode_.clear();
  orientation_.clear();
  for (const Tab& tab : tabs) TABSTRIP1().add(tab.caption);
  for (const int page : {id::FRAMPAGE, id::FRAMHEADERFOOTER, id::PICDIMINSIONS})
    windowing::setSurface(control(page).handle(), windowing::Surface::tabPage);
  for (const int page : {id::FRAMHEADERFOOTER, id::FRAMPAGE})
    SetWindowPos(control(page).handle(), HWND_TOP, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  selectTab(tabs[0].key);
  library::restorePlace(name(), *this, false);
  LIBRARY().RESIZEBTNSOKCANCEL(*this);
  loadPage();
  loadHeaderFooter();
  copyRemembered();
  enableOK(false);
  prepareList(CBOPAPER());
  prepareList(CBOPRINTERS());
  setFirstFocus(TABSTRIP1());
}

void frmPSetup::onUnload() {
  LIBRARY().FORMSAVE(name(), *this, false);
  if (committed_) applyChoices();
  committed_ = false;
}

void frmPSetup::selectTab(std::string_view key) {
  for (int i = 0; i < static_cast<int>(std::size(tabs)); ++i)
    if (tabs[i].key == key) TABSTRIP1().select(i);
  showPage(key);
}

void frmPSetup::showPage(std::string_view key) {
  for (const Tab& shown : tabs)
    if (shown.key == key)
      for (const Tab& tab : tabs) control(tab.frame).setVisible(tab.key == key);
}

void frmPSetup::onTab(int) {
  const int selected = TABSTRIP1().selected();
  if (selected >= 0 && selected < static_cast<int>(std::size(tabs))) showPage(tabs[selected].key);
}

void frmPSetup::onClick(int clicked) {
  switch (clicked) {
    case id::BTNOK:
      return acceptAll();
    case id::BTNCANCEL:
      unload();
      return;
    case id::BTNDEFAULTS:
      return setDefaultMargins();
    case id::BTNDEFAULTSHF:
      return setDefaultHeaderFooter();
    case id::OPTORIENTPORT:
    case id::OPTORIENTLAND:
      return chooseOrientation(clicked);
    default:
      if (clickBox(clicked)) enableOK(true);
  }
}

void frmPSetup::onChange(int changed) {
  switch (changed) {
    case id::TXTHEADTITLE:
    case id::TXTFOOTFIELD1:
    case id::TXTFOOTFIELD2:
      return enableOK(true);
    default:
      return;
  }
}

void frmPSetup::onSelect(int list) {
  if (list == id::CBOPRINTERS) choosePrinter();
  if (list == id::CBOPAPER) choosePaper();
}

void frmPSetup::onNotice(int, int notice) {
  if (notice != controls::SPIN::changed) return;
  enableOK(true);
  drawSample();
}

void frmPSetup::onEnter() {
  if (control(id::BTNOK).enabled()) acceptAll();
}

void frmPSetup::acceptAll() {
  committed_ = true;
  try {
    remember();  // first, because it can fail, and nothing must be stored then
    saveMargins();
    saveHeaderFooter();
  } catch (...) {
    // The error is reported. The form stays open and can still be cancelled.
    committed_ = false;
    throw;
  }
  unload();
}

bool frmPSetup::handleKey(const MSG& message) {
  const bool withAlt = message.message == WM_SYSKEYDOWN;
  if (GetKeyState(VK_CONTROL) < 0 || (!withAlt && takesLetters(message.hwnd))) return false;
  return goToNextOf(message.wParam);
}

// For an access key that several visible controls share: moves the focus to the next one of them,
// without pressing it. False for the access key of only one control, which the system handles.
bool frmPSetup::goToNextOf(WPARAM letter) {
  std::vector<HWND> reached;
  std::size_t next = 0;
  bool passedFocus = false;
  for (const windowing::ControlDesign& design : psetup_design::controls) {
    const HWND window = control(design.id).handle();
    if (window == GetFocus()) passedFocus = true;
    if (accessLetter(design.caption) != letter || !IsWindowVisible(window) ||
        !IsWindowEnabled(window))
      continue;
    reached.push_back(window);
    if (!passedFocus || window == GetFocus()) next = reached.size();
  }
  if (reached.size() < 2) return false;
  SendMessageA(handle(), WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
  focusOn(reached[next % reached.size()]);
  return true;
}

LRESULT frmPSetup::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_DRAWITEM && wParam == static_cast<WPARAM>(id::PICWINDOW)) {
    paintSample(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
    return TRUE;
  }
  return Form::handleMessage(message, wParam, lParam);
}

}  // namespace pagesetup
