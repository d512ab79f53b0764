// The dialog itself: its pages and their texts.
#include "dialogs/frmProps_win.h"

#include "dialogs/document_facts.h"
#include "dialogs/frmProps_design_win.h"
#include "library/clsLibrary_win.h"
#include "library/modLibrary_win.h"
#include "library/path_utilities.h"
#include "library/proper_case_win.h"
#include "library/restore_place_win.h"
#include "library/settings.h"
#include "library/text_utilities.h"
#include "paper/text_format.h"
#include "values/runtime_error.h"
#include "values/units.h"
#include "values/user_locale_win.h"
#include "windowing/container_win.h"
#include "windowing/fonts_win.h"
#include "windowing/seams_win.h"

namespace dialogs {

using library::LIBRARY;
using library::modLibrary;
using values::ignoringErrors;
namespace id = dialogs::props_id;

namespace {

/// A page and the caption of its tab.
struct Page {
  const char* caption;
  int frame;
};
constexpr Page pages[] = {
    {"GENERAL", id::FRAMGENERAL}, {"DOCUMENT", id::FRAMDOCUMENT}, {"PICTURE", id::FRAMPIC}};

/// The attributes of the check boxes, in the order of their labels.
constexpr DWORD tickAttributes[] = {FILE_ATTRIBUTE_READONLY, FILE_ATTRIBUTE_HIDDEN,
                                    FILE_ATTRIBUTE_ARCHIVE};

constexpr int generalFacts[] = {id::TXTFILENAME, id::TXTTYPE, id::TXTLOCATION, id::TXTSIZE,
                                id::TXTMODIFIED};
constexpr int documentFacts[] = {id::TXTDOCPATH, id::TXTDOCPAGES, id::TXTDOCLINES, id::TXTDOCLEN,
                                 id::TXTWORDS};
constexpr int pictureFacts[] = {id::TXTPICTYPE, id::TXTPICPIXELDEPTH, id::TXTPICWIDTH,
                                id::TXTPICHEIGHT};

// The name of a file. The root of a drive has none, so its path is shown.
std::string shownName(const std::string& path) {
  const std::string name = library::fileNameOf(path, values::isLeadByte);
  return name.empty() ? path : name;
}

}  // namespace

frmProps::frmProps() : Form(props_design::form) {}

windowing::TabStrip frmProps::TABPROPS() const {
  return control<windowing::TabStrip>(id::TABPROPS);
}
windowing::CheckBox frmProps::CHKATTR(int index) const {
  return control<windowing::CheckBox>(id::CHKATTR + index);
}

void frmProps::onLoad() {
  for (const int page : {id::FRAMPIC, id::FRAMDOCUMENT, id::FRAMGENERAL, id::PICBOX}) {
    const HWND frame = control(page).handle();
    windowing::setSurface(frame, windowing::Surface::tabPage);
    SetWindowPos(frame, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }
  control(id::TXTDOCUMENT).setFont(windowing::font(paper::documentTypeface, paper::documentPoints));
  library::restorePlace(library::sharedPlace, *this, false);
  LIBRARY().RESIZEBTNCLOSE(*this);
  UPDATEINFO();
  setFirstFocus(TABPROPS());
}

void frmProps::onUnload() {
  LIBRARY().FORMSAVE(library::sharedPlace, *this, false);
}

void frmProps::UPDATEINFO() {
  fillGeneral();
  const ShownPages shown = pagesOfKind(modLibrary().documentKind);
  if (shown.document) fillDocument();
  if (shown.picture) fillPicture();
  std::vector<int> frames{id::FRAMGENERAL};
  if (shown.document) frames.push_back(id::FRAMDOCUMENT);
  if (shown.picture) frames.push_back(id::FRAMPIC);
  showTabs(frames);
}

// Makes the tabs of the pages that are shown; the others have no tab.
void frmProps::showTabs(const std::vector<int>& frames) {
  while (TABPROPS().count() > 0) TABPROPS().removeAt(0);
  frames_ = frames;
  for (const int frame : frames_)
    for (const Page& page : pages)
      if (page.frame == frame) TABPROPS().add(page.caption);
  TABPROPS().select(0);
  showPage(0);
}

void frmProps::showPage(int index) {
  const auto at = static_cast<std::size_t>(index);
  const int shown = at < frames_.size() ? frames_[at] : id::FRAMGENERAL;
  for (const Page& page : pages) control(page.frame).setVisible(page.frame == shown);
}

void frmProps::onTab(int) {
  showPage(TABPROPS().selected());
}

void frmProps::onClick(int clicked) {
  if (clicked == id::BTNCLOSE) unload();
  if (clicked == id::CHKATTR) changeReadOnly();
}

void frmProps::fillGeneral() {
  for (const int fact : generalFacts) control(fact).setText("");
  showIcon(nullptr);
  facts_ = {};
  path_.clear();
  showAttributes();
  const std::string& document = modLibrary().documentPath;
  if (document.empty()) {
    control(id::TXTFILENAME).setText(LIBRARY().FILECHK(document));
    return;
  }
  control(id::TXTFILENAME).setText(shownName(document));
  try {
    const std::string path = PROPERCASEPATH(fullPath(document));
    const std::string name = shownName(path);
    control(id::TXTFILENAME).setText(name);
    facts_ = fileFacts(path);
    path_ = path;
    control(id::TXTTYPE).setText(fileTypeText(facts_.typeName, name, values::isLeadByte));
    control(id::TXTLOCATION).setText(locationText(path, values::isLeadByte));
    control(id::TXTSIZE)
        .setText(library::fileSizeText(facts_.size, values::userDecimalSign(),
                                       values::userGroupSeparator()));
    control(id::TXTMODIFIED).setText(dateTimeText(facts_.lastWrite));
    showAttributes();
    showIcon(facts_.icon.get());
  } catch (const values::RuntimeError&) {
    // Where a fact cannot be read, those behind it stay empty.
  }
}

void frmProps::fillDocument() {
  for (const int fact : documentFacts) control(fact).setText("");
  control(id::TXTDOCPATH).setText(modLibrary().documentPath);
  ignoringErrors([this] {
    if (!documentText_) return;
    const std::string text = documentText_();
    ignoringErrors(
        [&] { control(id::TXTWORDS).setText(std::to_string(LIBRARY().WORDCOUNT(text))); });
    control(id::TXTDOCLEN).setText(std::to_string(text.size()));
    const int lines = documentLines(text);
    control(id::TXTDOCLINES).setText(std::to_string(lines));
    control(id::TXTDOCPAGES).setText(std::to_string(documentPages(lines)));
  });
}

// Counts the lines of the text, wrapped between the margins of a page. Without a printer there is
// no page; lines then end only where the text has line ends.
int frmProps::documentLines(const std::string& text) const {
  constexpr double endless = 300000;
  double width = endless;
  ignoringErrors([&] {
    const ReportMargins margins = reportMargins();
    const double sides = (margins.left + margins.right) * values::twipsPerInch;
    if (const double paper = paper_().width; paper > sides) width = paper - sides;
  });
  const windowing::TextBox box(control(id::TXTDOCUMENT).handle());
  box.place(0, 0, width, box.height());
  const bool taken = box.setText(text) && (text.empty() || box.send(WM_GETTEXTLENGTH) > 0);
  const int lines = box.lineCount();
  box.setText("");
  if (!taken) values::raiseOutOfMemory();
  return lines;
}

int frmProps::documentPages(int lines) const {
  const ReportPaper paper = paper_();
  const ReportMargins margins = reportMargins();
  return pageCount(lines, {paper.height, margins.top * values::twipsPerInch,
                           margins.bottom * values::twipsPerInch, paper.lineHeight});
}

void frmProps::fillPicture() {
  for (const int fact : pictureFacts) control(fact).setText("");
  const std::optional<ImageHeader> header = GETIMAGEFILEINFO(modLibrary().documentPath);
  if (!header) return;
  control(id::TXTPICTYPE).setText(std::string(imageTypeName(header->type)));
  control(id::TXTPICPIXELDEPTH).setText(LIBRARY().GETCOLORDEPTH(std::to_string(header->depth)));
  control(id::TXTPICWIDTH).setText(std::to_string(header->width) + " pixels");
  control(id::TXTPICHEIGHT).setText(std::to_string(header->height) + " pixels");
}

void frmProps::showAttributes() {
  for (int i = 0; i < static_cast<int>(std::size(tickAttributes)); ++i)
    CHKATTR(i).setState((facts_.attributes & tickAttributes[i]) != 0 ? BST_CHECKED : BST_UNCHECKED);
  CHKATTR(0).setEnabled(!path_.empty());
}

// Changes the read-only attribute and shows the attribute that the file has then. Where it cannot
// be changed, the check box stays as it was.
void frmProps::changeReadOnly() {
  if (path_.empty()) return;
  if (!setReadOnly(path_, !ATTRREADONLY())) windowing::seams().beep();
  const DWORD now = GetFileAttributesA(path_.c_str());
  if (now != INVALID_FILE_ATTRIBUTES) facts_.attributes = now;
  showAttributes();
}

bool frmProps::ATTRREADONLY() const {
  return (facts_.attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

std::string frmProps::PROPERCASEPATH(const std::string& path) {
  return library::PROPERCASEPATH(path);
}
std::string frmProps::TRIMNULL(const std::string& text) {
  return library::TRIMNULL(text);
}

}  // namespace dialogs
