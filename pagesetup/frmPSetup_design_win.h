// The design of the page setup. Places are twips, 15 to the pixel at 96 dots per inch. The order of
// the rows is the tab order.
#pragma once

#include "controls/PANEL_win.h"
#include "controls/SPIN_win.h"
#include "controls/TXTSEP_win.h"
#include "pagesetup/frmPSetup_ids.h"
#include "windowing/form_win.h"

namespace pagesetup::psetup_design {

using windowing::ControlDesign;
using windowing::ControlKind;
namespace kind = windowing::kind;

constexpr int formWidth = 6900;
constexpr int margin = 90;   ///< round the tab strip
constexpr int tabRow = 390;  ///< height of the row of tabs
constexpr int pageHeight = 4560;
constexpr int inset = 30;  ///< from the tab strip's sides to its pages
constexpr int tabWidth = formWidth - 2 * margin;
constexpr int tabHeight = tabRow + pageHeight + inset;
constexpr int footHeight = 675;  ///< the strip of OK and Cancel
constexpr int formHeight = margin + tabHeight + footHeight;
constexpr int pageLeft = margin + inset;
constexpr int pageTop = margin + tabRow;
constexpr int pageWidth = tabWidth - 2 * inset;

constexpr int edge = 180;  ///< from a page's sides to its controls
constexpr int labelHeight = 225;
constexpr int boxHeight = 315;
constexpr int checkHeight = 255;
constexpr int lineHeight = 30;
constexpr int buttonWidth = 1200;
constexpr int buttonHeight = 375;
constexpr int innerWidth = pageWidth - 2 * edge;

// The page settings: three rows of choices, then margins at the left and the sample at the right.
constexpr int choiceLeft = 1350;
constexpr int firstChoice = 180;
constexpr int choicePitch = 420;
constexpr int lowerTop = 1590;  ///< below the separator
constexpr int marginBoxLeft = 1350;
constexpr int marginBoxWidth = 900;
constexpr int firstMargin = lowerTop + 330;
constexpr int marginPitch = 405;
constexpr int sampleSide = 2400;
constexpr int sampleEdge = 15;
constexpr int frameSide = sampleSide + 2 * sampleEdge;
constexpr int sampleLeft = 3420;
constexpr int sizesTop = lowerTop + frameSide + 75;
constexpr int dividerLeft = 2700;

/// Shows the sample of the page; drawn by the form.
constexpr ControlKind sampleKind{"STATIC", WS_VISIBLE | SS_OWNERDRAW};
constexpr ControlKind ruleKind{"STATIC", WS_VISIBLE | SS_BLACKRECT};
/// A text of the sample that the user cannot change.
constexpr ControlKind fixedTextKind{
    .windowClass = "EDIT", .style = WS_VISIBLE | ES_READONLY, .height = windowing::Height::text};

constexpr int choiceTop(int row) {
  return firstChoice + row * choicePitch;
}
constexpr ControlDesign choiceLabel(const char* name, int labelId, const char* caption, int row) {
  return {name,        labelId,        kind::sideLabel,        caption,
          edge,        choiceTop(row), choiceLeft - edge - 60, boxHeight,
          id::FRAMPAGE};
}
constexpr ControlDesign choiceList(const char* name, int listId, int row, int width) {
  return {name,  listId, kind::dropDownList, "", choiceLeft, choiceTop(row),
          width, 3000,   id::FRAMPAGE};
}
constexpr ControlDesign orientation(const char* name, int optionId, const char* caption, int place,
                                    DWORD style) {
  return {
      name, optionId,    kind::optionButton, caption, choiceLeft + place * 1300, choiceTop(2) + 30,
      1200, checkHeight, id::FRAMPAGE,       style};
}
constexpr int marginTop(int row) {
  return firstMargin + row * marginPitch;
}
constexpr ControlDesign marginLabel(const char* name, int labelId, const char* caption, int row) {
  return {name,         labelId,        kind::sideLabel,           caption,
          edge,         marginTop(row), marginBoxLeft - edge - 60, boxHeight,
          id::FRAMPAGE, WS_GROUP};
}
constexpr ControlDesign marginBox(const char* name, int boxId, int row) {
  return {name,           boxId,          controls::spinKind, "",          marginBoxLeft,
          marginTop(row), marginBoxWidth, boxHeight,          id::FRAMPAGE};
}

// Header and footer: two groups of the same layout. Each has a check box for the whole group, check
// boxes for its items, and a sample in which the user types the texts.
constexpr int groupHeight = 1830;
constexpr int headerTop = 120;
constexpr int footerTop = headerTop + groupHeight + 120;
constexpr int masterDrop = 270;
constexpr int itemsDrop = 570;
constexpr int itemPitch = 1410;
constexpr int itemIndent = 270;  ///< of the items' check boxes below the one of the group
constexpr int stripDrop = 885;
constexpr int stripHeight = 780;
constexpr int groupInset = 180;
constexpr int stripWidth = innerWidth - 2 * groupInset;
constexpr int stripEdge = 90;
constexpr int stripInner = stripWidth - 2 * stripEdge;
constexpr int fixedWidth = 1080;  ///< date and time
constexpr int gap = 120;

constexpr ControlDesign group(const char* name, int groupId, const char* caption, int top) {
  return {name,       groupId,     kind::group,         caption, edge, top,
          innerWidth, groupHeight, id::FRAMHEADERFOOTER};
}
constexpr ControlDesign check(const char* name, int boxId, const char* caption, int left, int top) {
  return {name,
          boxId,
          kind::checkBox,
          caption,
          left,
          top,
          itemPitch - gap,
          checkHeight,
          id::FRAMHEADERFOOTER};
}
constexpr ControlDesign master(const char* name, int boxId, const char* caption, int groupTop) {
  return check(name, boxId, caption, edge + groupInset, groupTop + masterDrop);
}
constexpr ControlDesign item(const char* name, int boxId, const char* caption, int groupTop,
                             int place) {
  const int left = edge + groupInset + itemIndent + place * itemPitch;
  return check(name, boxId, caption, left, groupTop + itemsDrop);
}
constexpr ControlDesign strip(const char* name, int stripId, int groupTop) {
  return {name,       stripId,           kind::container,
          "",         edge + groupInset, groupTop + stripDrop,
          stripWidth, stripHeight,       id::FRAMHEADERFOOTER,
          WS_BORDER};
}
constexpr ControlDesign rule(const char* name, int ruleId, int top, int container) {
  return {name, ruleId, ruleKind, "", stripEdge, top, stripInner, 15, container};
}
constexpr int titleWidth = stripInner - 2 * (fixedWidth + gap);
constexpr int pageNumberWidth = 600;
constexpr int fieldWidth = (stripInner - pageNumberWidth - 2 * gap) / 2;
constexpr int headBoxTop = 120;
constexpr int headRuleTop = 600;
constexpr int footRuleTop = 150;
constexpr int footBoxTop = 300;

// clang-format off
constexpr ControlDesign controls[] = {
  {"TABSTRIP1", id::TABSTRIP1, kind::tabStrip,  "", margin, margin, tabWidth, tabHeight},

  {"FRAMPAGE",  id::FRAMPAGE,  kind::container, "", pageLeft, pageTop, pageWidth, pageHeight},
  choiceLabel("LBLPRINTER",   id::LBLPRINTER,   "&Printer:", 0),
  choiceList("CBOPRINTERS",   id::CBOPRINTERS,  0, pageWidth - choiceLeft - edge),
  choiceLabel("LBLPAPERSIZE", id::LBLPAPERSIZE, "Paper Si&ze:", 1),
  choiceList("CBOPAPER",      id::CBOPAPER,     1, 2400),
  choiceLabel("LBLORIENT",    id::LBLORIENT,    "&Orientation:", 2),
  orientation("OPTORIENTPORT", id::OPTORIENTPORT, "Portr&ait",  0, WS_GROUP),
  orientation("OPTORIENTLAND", id::OPTORIENTLAND, "La&ndscape", 1, 0),
  {"TXTSEP1", id::TXTSEP1, controls::separatorKind, "", edge, lowerTop - 135, innerWidth, lineHeight, id::FRAMPAGE},
  {"LBLMARGINS", id::LBLMARGINS, kind::label, "Margins (inches)", edge, lowerTop + 15, dividerLeft - edge - 120, labelHeight, id::FRAMPAGE, WS_GROUP},
  marginLabel("LBLLEFTMARGIN",   id::LBLLEFTMARGIN,   "&Left:",   0),
  marginBox("UDNLEFT",           id::UDNLEFT,                     0),
  marginLabel("LBLRIGHTMARGIN",  id::LBLRIGHTMARGIN,  "&Right:",  1),
  marginBox("UDNRIGHT",          id::UDNRIGHT,                    1),
  marginLabel("LBLTOPMARGIN",    id::LBLTOPMARGIN,    "&Top:",    2),
  marginBox("UDNTOP",            id::UDNTOP,                      2),
  marginLabel("LBLBOTTOMMARGIN", id::LBLBOTTOMMARGIN, "&Bottom:", 3),
  marginBox("UDNBOTTOM",         id::UDNBOTTOM,                   3),
  {"BTNDEFAULTS", id::BTNDEFAULTS, kind::button, "&Defaults", edge, pageHeight - edge - buttonHeight, buttonWidth, buttonHeight, id::FRAMPAGE},
  {"TXTSEP2", id::TXTSEP2, controls::separatorKind, "", dividerLeft, lowerTop, lineHeight, pageHeight - edge - lowerTop, id::FRAMPAGE},
  {"PICFRAME",  id::PICFRAME,  kind::container, "", sampleLeft, lowerTop, frameSide, frameSide, id::FRAMPAGE, WS_BORDER},
  {"PICWINDOW", id::PICWINDOW, sampleKind,    "", 0, 0, sampleSide, sampleSide, id::PICFRAME},
  {"PICDIMINSIONS", id::PICDIMINSIONS, kind::container, "", sampleLeft, sizesTop, frameSide, labelHeight, id::FRAMPAGE},
  {"LBLWIDTH",  id::LBLWIDTH,  kind::label, "Width",  0, 0, frameSide / 2, labelHeight, id::PICDIMINSIONS},
  {"LBLHEIGHT", id::LBLHEIGHT, kind::label, "Height", frameSide / 2, 0, frameSide / 2, labelHeight, id::PICDIMINSIONS, SS_RIGHT},

  {"FRAMHEADERFOOTER", id::FRAMHEADERFOOTER, kind::container, "", pageLeft, pageTop, pageWidth, pageHeight},
  group("FRAMHEADER",   id::FRAMHEADER,   "Header",  headerTop),
  master("CHKHEADER",   id::CHKHEADER,    "&Header", headerTop),
  item("CHKHEADTITLE",  id::CHKHEADTITLE, "&Title",  headerTop, 0),
  item("CHKHEADDATE",   id::CHKHEADDATE,  "&Date",   headerTop, 1),
  item("CHKHEADTIME",   id::CHKHEADTIME,  "&Time",   headerTop, 2),
  item("CHKHEADLINE",   id::CHKHEADLINE,  "&Line",   headerTop, 3),
  strip("PICHEAD",      id::PICHEAD,      headerTop),
  {"TXTHEADDATE",  id::TXTHEADDATE,  fixedTextKind,  "12/12/2002", stripEdge, headBoxTop, fixedWidth, boxHeight, id::PICHEAD},
  {"TXTHEADTITLE", id::TXTHEADTITLE, kind::textBox, "", stripEdge + fixedWidth + gap, headBoxTop, titleWidth, boxHeight, id::PICHEAD, ES_CENTER},
  {"TXTHEADTIME",  id::TXTHEADTIME,  fixedTextKind,  "12:00:00 pm", stripWidth - stripEdge - fixedWidth, headBoxTop, fixedWidth, boxHeight, id::PICHEAD, ES_RIGHT},
  rule("LNHEADLINE",    id::LNHEADLINE,   headRuleTop, id::PICHEAD),
  group("FRAMFOOTER",   id::FRAMFOOTER,    "Footer",   footerTop),
  master("CHKFOOTER",   id::CHKFOOTER,     "&Footer",  footerTop),
  item("CHKFOOTFIELD1", id::CHKFOOTFIELD1, "&Field 1", footerTop, 0),
  item("CHKFOOTFIELD2", id::CHKFOOTFIELD2, "&Field 2", footerTop, 1),
  item("CHKFOOTPGNO",   id::CHKFOOTPGNO,   "&Page No", footerTop, 2),
  item("CHKFOOTLINE",   id::CHKFOOTLINE,   "L&ine",    footerTop, 3),
  strip("PICFOOT",      id::PICFOOT,       footerTop),
  rule("LNFOOTLINE",    id::LNFOOTLINE,    footRuleTop, id::PICFOOT),
  {"TXTFOOTFIELD1", id::TXTFOOTFIELD1, kind::textBox, "", stripEdge, footBoxTop, fieldWidth, boxHeight, id::PICFOOT},
  {"TXTFOOTPGNO",   id::TXTFOOTPGNO,   fixedTextKind,  "1", stripEdge + fieldWidth + gap, footBoxTop, pageNumberWidth, boxHeight, id::PICFOOT, ES_CENTER},
  {"TXTFOOTFIELD2", id::TXTFOOTFIELD2, kind::textBox, "", stripWidth - stripEdge - fieldWidth, footBoxTop, fieldWidth, boxHeight, id::PICFOOT},
  {"BTNDEFAULTSHF", id::BTNDEFAULTSHF, kind::button, "&Defaults", edge, pageHeight - edge / 2 - buttonHeight, buttonWidth, buttonHeight, id::FRAMHEADERFOOTER},

  {"PANEL1",    id::PANEL1,    controls::panelKind,        "", 0, margin + tabHeight, formWidth, footHeight},
  {"BTNOK",     id::BTNOK,     kind::defaultButton, "OK",     0, 0, buttonWidth, buttonHeight, id::PANEL1},
  {"BTNCANCEL", id::BTNCANCEL, kind::button,        "Cancel", 0, 0, buttonWidth, buttonHeight, id::PANEL1},
};
// clang-format on
static_assert(sizesTop + labelHeight < pageHeight);
static_assert(marginTop(3) + boxHeight < pageHeight - edge - buttonHeight);
static_assert(footerTop + groupHeight < pageHeight - edge / 2 - buttonHeight);
static_assert(formHeight <= 7000, "the form fits a small screen with its caption");

constexpr windowing::FormDesign form{
    "frmPSetup", "Page Setup", WS_POPUP | WS_CAPTION | WS_SYSMENU, WS_EX_DLGMODALFRAME, formWidth,
    formHeight,  controls};

}  // namespace pagesetup::psetup_design
