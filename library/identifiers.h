// Numbers of commands and controls. They are stable: menus, accelerators, dialogs and tests
// that drive the program from outside name the same ones. None is 1 or 2, which belong to
// Enter and Esc.
#pragma once

namespace library::id {

// Commands of the main window, in menu order; new ones follow at the end. They are enumerators so
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

// Commands of the print preview, in menu order, its two toolbar commands last. Captions and
// names repeat those of the main window; the numbers do not.
namespace preview {
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
}  // namespace preview

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
constexpr int TXTITEMS = 1100;  ///< the first of the boxes; each is this and its index
constexpr int textItemCount = 24;
constexpr int CBOPEMAIL = 1130;
constexpr int CBOPWORKEMAIL = 1131;
constexpr int CBOPWEBSITE = 1132;
constexpr int CBOPWORKWEBSITE = 1133;
constexpr int labelOffset = 100;  ///< a box's label is the box and this

/// Box `index` (0 to 23) of the text boxes.
[[nodiscard]] constexpr int textItem(int index) {
  return TXTITEMS + index;
}
/// Label of the box `control`.
[[nodiscard]] constexpr int labelOf(int control) {
  return control + labelOffset;
}

// First numbers of the other forms' controls; each form counts on from its own.
constexpr int previewControls = 2000;
constexpr int pageSetupControls = 3000;
constexpr int propertiesControls = 4000;
constexpr int aboutControls = 4500;

// Controls of the print preview.
namespace preview {
constexpr int RTF3 = previewControls + 1;
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
constexpr int SCRHBAR = 2013;  ///< the bars and their corner lie in the view
constexpr int SCRVBAR = 2014;
constexpr int PICFILL = 2015;
constexpr int SBMAIN = 2016;
}  // namespace preview

// Controls of the page setup.
namespace psetup {
constexpr int TABSTRIP1 = pageSetupControls;
constexpr int FRAMPAGE = 3001;
constexpr int LBLPRINTER = 3002;
constexpr int CBOPRINTERS = 3003;
constexpr int LBLPAPERSIZE = 3004;
constexpr int CBOPAPER = 3005;
constexpr int LBLORIENT = 3006;
constexpr int OPTORIENTPORT = 3007;
constexpr int OPTORIENTLAND = 3008;
constexpr int TXTSEP1 = 3009;
constexpr int LBLMARGINS = 3010;
constexpr int LBLLEFTMARGIN = 3011;
constexpr int UDNLEFT = 3012;
constexpr int LBLRIGHTMARGIN = 3013;
constexpr int UDNRIGHT = 3014;
constexpr int LBLTOPMARGIN = 3015;
constexpr int UDNTOP = 3016;
constexpr int LBLBOTTOMMARGIN = 3017;
constexpr int UDNBOTTOM = 3018;
constexpr int BTNDEFAULTS = 3019;
constexpr int TXTSEP2 = 3020;
constexpr int PICFRAME = 3021;
constexpr int PICWINDOW = 3022;
constexpr int PICDIMINSIONS = 3023;
constexpr int LBLWIDTH = 3024;
constexpr int LBLHEIGHT = 3025;
constexpr int FRAMHEADERFOOTER = 3026;
constexpr int FRAMHEADER = 3027;
constexpr int CHKHEADER = 3028;
constexpr int CHKHEADTITLE = 3029;
constexpr int CHKHEADDATE = 3030;
constexpr int CHKHEADTIME = 3031;
constexpr int CHKHEADLINE = 3032;
constexpr int PICHEAD = 3033;
constexpr int TXTHEADDATE = 3034;
constexpr int TXTHEADTITLE = 3035;
constexpr int TXTHEADTIME = 3036;
constexpr int LNHEADLINE = 3037;
constexpr int FRAMFOOTER = 3038;
constexpr int CHKFOOTER = 3039;
constexpr int CHKFOOTFIELD1 = 3040;
constexpr int CHKFOOTFIELD2 = 3041;
constexpr int CHKFOOTPGNO = 3042;
constexpr int CHKFOOTLINE = 3043;
constexpr int PICFOOT = 3044;
constexpr int LNFOOTLINE = 3045;
constexpr int TXTFOOTFIELD1 = 3046;
constexpr int TXTFOOTPGNO = 3047;
constexpr int TXTFOOTFIELD2 = 3048;
constexpr int BTNDEFAULTSHF = 3049;
constexpr int PANEL1 = 3050;
constexpr int BTNOK = 3051;
constexpr int BTNCANCEL = 3052;
}  // namespace psetup

// Controls of the properties.
namespace props {
constexpr int TABPROPS = propertiesControls;
constexpr int PICBOX = 4001;
constexpr int PICICON = 4002;
constexpr int TXTFILENAME = 4003;
constexpr int TXTSEP1 = 4004;
constexpr int FRAMGENERAL = 4005;
constexpr int LBLTYPE = 4006;
constexpr int TXTTYPE = 4007;
constexpr int LBLLOCATION = 4008;
constexpr int TXTLOCATION = 4009;
constexpr int LBLSIZE = 4010;
constexpr int TXTSIZE = 4011;
constexpr int TXTSEP2 = 4012;
constexpr int LBLMODIFIED = 4013;
constexpr int TXTMODIFIED = 4014;
constexpr int TXTSEP3 = 4015;
constexpr int CHKATTR = 4016;  ///< the first of three: read-only, hidden, archive
constexpr int LBLREAD = 4019;  ///< the first of the boxes' labels, in their order
constexpr int LBLHIDDEN = 4020;
constexpr int LBLARCHIVE = 4021;
constexpr int FRAMDOCUMENT = 4022;
constexpr int LBLFILEPATH = 4023;
constexpr int TXTDOCPATH = 4024;
constexpr int TXTSEP4 = 4025;
constexpr int LBLPRINT = 4026;
constexpr int TXTDOCPAGES = 4027;
constexpr int LBLLINES = 4028;
constexpr int TXTDOCLINES = 4029;
constexpr int LBLCHARS = 4030;
constexpr int TXTDOCLEN = 4031;
constexpr int LBLWORDS = 4032;
constexpr int TXTWORDS = 4033;
constexpr int TXTDOCUMENT = 4034;  ///< never shown: the text that is counted
constexpr int FRAMPIC = 4035;
constexpr int LBLFILETYPE = 4036;
constexpr int TXTPICTYPE = 4037;
constexpr int LBLPIXELDEPTH = 4038;
constexpr int TXTPICPIXELDEPTH = 4039;
constexpr int LBLPICWIDTH = 4040;
constexpr int TXTPICWIDTH = 4041;
constexpr int LBLPICHEIGHT = 4042;
constexpr int TXTPICHEIGHT = 4043;
constexpr int PANEL1 = 4044;
constexpr int BTNCLOSE = 4045;
}  // namespace props

// Controls of the about box.
namespace about {
constexpr int FRAMTITLE = aboutControls;
constexpr int LBLPROGRAMNAME = 4501;
constexpr int IMGLOGO = 4502;
constexpr int IMGCURSOR = 4503;
constexpr int LNTITLE1 = 4504;
constexpr int LNTITLE2 = 4505;
constexpr int LBLVERS = 4506;
constexpr int LBLVERSNO = 4507;
constexpr int LBLREGISTERED = 4508;
constexpr int LBLREGNAME = 4509;
constexpr int LBLREGCO = 4510;
constexpr int LBLWRITTEN = 4511;
constexpr int LBLCOPYRIGHT = 4512;
constexpr int LBLTHANKS = 4513;
constexpr int LBLWARNING = 4514;
constexpr int TSEP2 = 4515;
constexpr int BTNCLOSE = 4516;
}  // namespace about

static_assert(textItem(textItemCount - 1) < CBOPEMAIL);
static_assert(CBOPWORKWEBSITE < labelOf(TXTITEMS) && labelOf(CBOPWORKWEBSITE) < previewControls);

}  // namespace library::id
