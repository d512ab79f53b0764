// Commands and controls of the main window. Numbers are stable: menus, shortcuts and tests that
// drive the program from outside name the same ones. None is 1 or 2, which belong to Enter and Esc.
#pragma once

namespace mainwindow::id {

// Commands of the main window; new ones follow at the end. They are enumerators so
// that the compiler notices a `switch` that leaves one out.
enum MainCommand : int {
  NEW = 40001,
  OPEN = 40002,
  SAVE = 40003,
  SAVEAS = 40004,
  PRINT = 40005,
  PRINTPREVIEW = 40006,
  PAGESETUP = 40007,
  EXIT = 40008,
  ADD = 40009,
  REMOVE = 40010,
  STANDARDBAR = 40011,
  STATUSBAR = 40012,
  HEADERFOOTER = 40013,
  PROPERTIES = 40014,
  FIRST = 40015,
  PREVIOUS = 40016,
  NEXT = 40017,
  LAST = 40018,
  WEBSITE = 40019,
  ABOUT = 40020,
};

// Controls of the main window.
constexpr int TBARMAIN = 1001;
constexpr int CBOTBARBOX = 1002;
constexpr int PICMAINTBAR = 1003;
constexpr int PICHEADER = 1004;
constexpr int LBLDESC = 1005;
constexpr int PICMAINBOX = 1006;
constexpr int TABMAIN = 1007;
constexpr int SBMAIN = 1008;
constexpr int RTF1 = 1009;  ///< the report composed last; hidden
constexpr int FRAMGENERAL = 1010;
constexpr int FRAMADDRESS = 1011;
constexpr int FRAMADDRESSWORK = 1012;
constexpr int FRAMPERSONAL = 1013;  ///< group boxes on the pages
constexpr int FRAMJOB = 1014;
constexpr int FRAMEXTRAS = 1015;
constexpr int FRAMHOMEADDRESS = 1016;
constexpr int FRAMHOMECONTACT = 1017;
constexpr int FRAMWORKADDRESS = 1018;
constexpr int FRAMWORKCONTACT = 1019;
constexpr int TXTITEMS = 1100;  ///< the first of the boxes; the others follow by their index
constexpr int textItemCount = 24;
constexpr int CBOPEMAIL = 1130;
constexpr int CBOPWORKEMAIL = 1131;
constexpr int CBOPWEBSITE = 1132;
constexpr int CBOPWORKWEBSITE = 1133;
constexpr int labelOffset = 100;  ///< number of a box's label less that of the box

/// Box `index` (0 to 23) of the text boxes.
[[nodiscard]] constexpr int textItem(int index) {
  return TXTITEMS + index;
}
/// Label of the box `control`.
[[nodiscard]] constexpr int labelOf(int control) {
  return control + labelOffset;
}

static_assert(textItem(textItemCount - 1) < CBOPEMAIL);
static_assert(CBOPWORKWEBSITE < labelOf(TXTITEMS));

}  // namespace mainwindow::id
