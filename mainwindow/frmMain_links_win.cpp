// The e-mail and web boxes: text boxes with a button that opens their address.
#include "controls/TXTBTN_win.h"
#include "library/clsLibrary_win.h"
#include "library/images.h"
#include "library/maker_site.h"
#include "library/text_utilities.h"
#include "mainwindow/frmMain_design_win.h"
#include "mainwindow/frmMain_win.h"
#include "windowing/handle_text_win.h"

namespace mainwindow {

using controls::TXTBTN;
using library::LIBRARY;
using windowing::handleText;

namespace {

bool isWeb(int box) {
  return box == id::CBOPWEBSITE || box == id::CBOPWORKWEBSITE;
}

}  // namespace

void frmMain::setLinkButton(int box) {
  const bool web = isWeb(box);
  control<TXTBTN>(box).setButton(imageList(), library::imageIndex(web ? "WEB" : "MAIL"),
                                 web ? "Open the web site (F4)" : "Send an e-mail (F4)");
}

void frmMain::onNotice(int box, int notice) {
  // `filling_`: the focus was moved by a command, and the box may hold another contact's address by
  // now.
  if (notice == TXTBTN::left && isWeb(box) && !filling_) checkWebAddress(box);
  if (notice == TXTBTN::clicked && IsWindowEnabled(handle())) openLink(box);
}

// Adds the scheme to an address that was typed without one. The box is not filled with the same
// text again, since that would count as an edit.
void frmMain::checkWebAddress(int box) {
  if (!shownWhole_) return;
  const windowing::Control address = control(box);
  const std::optional<std::string> checked = library::webAddressOnLeave(address.text());
  if (checked) address.setText(*checked);
}

void frmMain::openLink(int box) {
  if (isWeb(box)) {
    checkWebAddress(box);
    LIBRARY().INTERNETACCESS(handleText(handle()), "", control(box).text());
  } else {
    LIBRARY().INTERNETACCESS(handleText(handle()), "mailto:", control(box).text());
  }
}

void frmMain::openMakerSite() {
  LIBRARY().INTERNETACCESS(handleText(handle()), "", library::makerSite);
}

}  // namespace mainwindow
