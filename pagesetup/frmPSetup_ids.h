// Controls of the page setup. Numbers are stable: menus, shortcuts and tests that drive the program
// from outside name the same ones. None is 1 or 2, which belong to Enter and Esc.
#pragma once

namespace pagesetup::id {

constexpr int TABSTRIP1 = 3000;
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

}  // namespace pagesetup::id
