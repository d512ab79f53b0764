// The design of the properties dialog. Places are twips, 15 to the pixel at 96 dots per inch. The
// order of the rows is the tab order.
#pragma once

#include "controls/PANEL_win.h"
#include "controls/TXTSEP_win.h"
#include "dialogs/frmProps_ids.h"
#include "windowing/form_win.h"

namespace dialogs::props_design {

using windowing::ControlDesign;
using windowing::ControlKind;
namespace kind = windowing::kind;
namespace id = dialogs::props_id;

constexpr int formWidth = 5850;
constexpr int margin = 90;       ///< round the tab strip
constexpr int tabRow = 390;      ///< height of the row of tabs
constexpr int headHeight = 780;  ///< icon and name, above every page
constexpr int pageHeight = 2130;
constexpr int inset = 30;  ///< from the tab strip's sides to its pages
constexpr int tabWidth = formWidth - 2 * margin;
constexpr int tabHeight = tabRow + headHeight + pageHeight + inset;
constexpr int footHeight = 675;  ///< the strip of the Close button
constexpr int formHeight = margin + tabHeight + footHeight;
constexpr int pageLeft = margin + inset;
constexpr int pageTop = margin + tabRow + headHeight;
constexpr int pageWidth = tabWidth - 2 * inset;

// Facts: a column of labels and one of texts.
constexpr int labelLeft = 150;
constexpr int labelWidth = 1200;
constexpr int factLeft = labelLeft + labelWidth;
constexpr int factWidth = pageWidth - factLeft - labelLeft;
constexpr int factHeight = 225;
constexpr int firstRow = 150;
constexpr int pitch = 300;           ///< from one row to the next
constexpr int separatorPitch = 150;  ///< from a separator to the row below it
constexpr int lineHeight = 30;
constexpr int lineWidth = pageWidth - 2 * labelLeft;

constexpr int tickSize = 225;
constexpr int tickTop = firstRow + 4 * pitch + 2 * separatorPitch;
constexpr int tickPitch = 1770;
constexpr int tickLabelWidth = 1350;

constexpr int buttonWidth = 1200;
constexpr int buttonHeight = 375;

/// A read-only text box without an edge. A long text can be scrolled, and each can be copied.
constexpr ControlKind factKind{"EDIT", WS_VISIBLE | WS_TABSTOP | ES_READONLY | ES_AUTOHSCROLL};
constexpr ControlKind iconKind{"STATIC", WS_VISIBLE | SS_ICON | SS_CENTERIMAGE};
constexpr ControlKind hiddenTextKind{"EDIT", ES_MULTILINE | ES_AUTOVSCROLL};
/// A check box that does not tick itself: after a click it shows the file's attribute.
constexpr ControlKind tickKind{"BUTTON", WS_VISIBLE | WS_TABSTOP | BS_CHECKBOX | BS_NOTIFY};
constexpr ControlKind fixedTickKind{"BUTTON", WS_VISIBLE | WS_DISABLED | BS_CHECKBOX};
constexpr ControlKind tickLabelKind{"STATIC", WS_VISIBLE | SS_OWNERDRAW | SS_NOTIFY};

constexpr int row(int number, int separators = 0) {
  return firstRow + number * pitch + separators * separatorPitch;
}
constexpr ControlDesign frame(const char* name, int frameId) {
  return {name, frameId, kind::container, "", pageLeft, pageTop, pageWidth, pageHeight};
}
constexpr ControlDesign label(const char* name, int labelId, const char* caption, int top,
                              int frameId) {
  return {name, labelId, kind::label, caption, labelLeft, top, labelWidth, factHeight, frameId};
}
constexpr ControlDesign fact(const char* name, int factId, int top, int frameId) {
  return {name, factId, factKind, "", factLeft, top, factWidth, factHeight, frameId};
}
constexpr ControlDesign separator(const char* name, int lineId, int top, int container) {
  return {name,       lineId,   controls::separatorKind, "", labelLeft, top, lineWidth,
          lineHeight, container};
}
constexpr int tickLeft(int index) {
  return labelLeft + index * tickPitch;
}
constexpr ControlDesign tick(int index, const char* caption) {
  const ControlKind& kind = index == 0 ? tickKind : fixedTickKind;
  return {"CHKATTR", id::CHKATTR + index, kind, caption, tickLeft(index), tickTop, tickSize,
          tickSize,  id::FRAMGENERAL};
}
constexpr ControlDesign tickLabel(int index, const char* name, const char* caption) {
  const int left = tickLeft(index) + tickSize + 45;
  return {name,         id::LBLREAD + index, tickLabelKind, caption,        left,
          tickTop - 15, tickLabelWidth,      tickSize + 30, id::FRAMGENERAL};
}

// clang-format off
constexpr ControlDesign controls[] = {
  {"TABPROPS",    id::TABPROPS,    kind::tabStrip,  "", margin, margin, tabWidth, tabHeight},
  {"PICBOX",      id::PICBOX,      kind::container, "", pageLeft, margin + tabRow, pageWidth, headHeight},
  {"PICICON",     id::PICICON,     iconKind,    "", labelLeft, 150, 480, 480, id::PICBOX},
  {"TXTFILENAME", id::TXTFILENAME, factKind,    "", factLeft, 285, factWidth, factHeight, id::PICBOX},
  separator("TXTSEP1", id::TXTSEP1, headHeight - lineHeight, id::PICBOX),

  frame("FRAMGENERAL", id::FRAMGENERAL),
  label("LBLTYPE",     id::LBLTYPE,     "Type:",     row(0), id::FRAMGENERAL),
  fact("TXTTYPE",      id::TXTTYPE,                  row(0), id::FRAMGENERAL),
  label("LBLLOCATION", id::LBLLOCATION, "Location:", row(1), id::FRAMGENERAL),
  fact("TXTLOCATION",  id::TXTLOCATION,              row(1), id::FRAMGENERAL),
  label("LBLSIZE",     id::LBLSIZE,     "Size:",     row(2), id::FRAMGENERAL),
  fact("TXTSIZE",      id::TXTSIZE,                  row(2), id::FRAMGENERAL),
  separator("TXTSEP2", id::TXTSEP2,                  row(3), id::FRAMGENERAL),
  label("LBLMODIFIED", id::LBLMODIFIED, "Modified:", row(3, 1), id::FRAMGENERAL),
  fact("TXTMODIFIED",  id::TXTMODIFIED,              row(3, 1), id::FRAMGENERAL),
  separator("TXTSEP3", id::TXTSEP3,                  row(4, 1), id::FRAMGENERAL),
  tick(0, "Read-only"),
  tickLabel(0, "LBLREAD", "Read-only"),
  tick(1, "Hidden"),
  tickLabel(1, "LBLHIDDEN", "Hidden"),
  tick(2, "Archive"),
  tickLabel(2, "LBLARCHIVE", "Archive"),

  frame("FRAMDOCUMENT", id::FRAMDOCUMENT),
  label("LBLFILEPATH",  id::LBLFILEPATH, "File:",       row(0), id::FRAMDOCUMENT),
  fact("TXTDOCPATH",    id::TXTDOCPATH,                 row(0), id::FRAMDOCUMENT),
  separator("TXTSEP4",  id::TXTSEP4,                    row(1), id::FRAMDOCUMENT),
  label("LBLPRINT",     id::LBLPRINT,    "Pages:",      row(1, 1), id::FRAMDOCUMENT),
  fact("TXTDOCPAGES",   id::TXTDOCPAGES,                row(1, 1), id::FRAMDOCUMENT),
  label("LBLLINES",     id::LBLLINES,    "Lines:",      row(2, 1), id::FRAMDOCUMENT),
  fact("TXTDOCLINES",   id::TXTDOCLINES,                row(2, 1), id::FRAMDOCUMENT),
  label("LBLCHARS",     id::LBLCHARS,    "Characters:", row(3, 1), id::FRAMDOCUMENT),
  fact("TXTDOCLEN",     id::TXTDOCLEN,                  row(3, 1), id::FRAMDOCUMENT),
  label("LBLWORDS",     id::LBLWORDS,    "Words:",      row(4, 1), id::FRAMDOCUMENT),
  fact("TXTWORDS",      id::TXTWORDS,                   row(4, 1), id::FRAMDOCUMENT),
  {"TXTDOCUMENT", id::TXTDOCUMENT, hiddenTextKind, "", 0, 0, pageWidth, pageHeight, id::FRAMDOCUMENT},

  frame("FRAMPIC",          id::FRAMPIC),
  label("LBLFILETYPE",      id::LBLFILETYPE,   "File type:",      row(0), id::FRAMPIC),
  fact("TXTPICTYPE",        id::TXTPICTYPE,                       row(0), id::FRAMPIC),
  label("LBLPIXELDEPTH",    id::LBLPIXELDEPTH, "Pixel depth:",    row(1), id::FRAMPIC),
  fact("TXTPICPIXELDEPTH",  id::TXTPICPIXELDEPTH,                 row(1), id::FRAMPIC),
  label("LBLPICWIDTH",      id::LBLPICWIDTH,   "Picture width:",  row(2), id::FRAMPIC),
  fact("TXTPICWIDTH",       id::TXTPICWIDTH,                      row(2), id::FRAMPIC),
  label("LBLPICHEIGHT",     id::LBLPICHEIGHT,  "Picture height:", row(3), id::FRAMPIC),
  fact("TXTPICHEIGHT",      id::TXTPICHEIGHT,                     row(3), id::FRAMPIC),

  {"PANEL1",   id::PANEL1,   controls::panelKind,        "", 0, margin + tabHeight, formWidth, footHeight},
  {"BTNCLOSE", id::BTNCLOSE, kind::defaultButton, "&Close", 0, 0, buttonWidth, buttonHeight, id::PANEL1},
};
// clang-format on
static_assert(tickTop + tickSize < pageHeight && row(4, 1) + factHeight < pageHeight);
static_assert(formHeight <= 7000, "the form fits a small screen with its caption");

constexpr windowing::FormDesign form{
    "frmProps", "Properties", WS_POPUP | WS_CAPTION | WS_SYSMENU, WS_EX_DLGMODALFRAME, formWidth,
    formHeight, controls};

}  // namespace dialogs::props_design
