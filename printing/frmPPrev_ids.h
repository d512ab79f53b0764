// Commands and controls of the print preview. Numbers are stable: menus, shortcuts and tests that
// drive the program from outside name the same ones. None is 1 or 2, which belong to Enter and Esc,
// and none a command of the main window.
#pragma once

namespace printing::id {

// Commands of the print preview; new ones follow at the end. Captions and
// names repeat those of the main window; the numbers do not.
enum Command : int {
  PRINT = 40101,
  CLOSE = 40102,
  TOOLBAR = 40103,
  STATUSBAR = 40104,
  ZOOM200 = 40105,
  ZOOM150 = 40106,
  ZOOM100 = 40107,
  ZOOM75 = 40108,
  ZOOM50 = 40109,
  ZOOM25 = 40110,
  ZOOMPW = 40111,
  ZOOMWP = 40112,
  FIRST = 40113,
  PREVIOUS = 40114,
  NEXT = 40115,
  LAST = 40116,
  ABOUT = 40117,
  ZOOMOUT = 40118,
  ZOOMIN = 40119,
};

// Controls of the print preview.
constexpr int RTF3 = 2001;
constexpr int RTF2 = 2002;
constexpr int PICTBAR = 2003;
constexpr int FRAMTBAR = 2004;
constexpr int TBARMAIN = 2005;
constexpr int TXTSEP1 = 2006;
constexpr int CBOPGNO = 2007;
constexpr int TXTSEP2 = 2008;
constexpr int LBLZOOM = 2009;
constexpr int CBOPGZOOM = 2010;
constexpr int LBLPAPER = 2011;  ///< the paper's size
constexpr int PICWINDOW = 2012;
constexpr int SCRHBAR = 2013;  ///< the scroll bars and the corner between them lie in the view
constexpr int SCRVBAR = 2014;
constexpr int PICFILL = 2015;
constexpr int SBMAIN = 2016;

}  // namespace printing::id
