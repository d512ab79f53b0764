// Controls of the properties. Numbers are stable: menus, shortcuts and tests that drive the program
// from outside name the same ones. None is 1 or 2, which belong to Enter and Esc.
#pragma once

namespace dialogs::props_id {

constexpr int TABPROPS = 4000;
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
constexpr int LBLREAD = 4019;  ///< the first of their three labels
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

}  // namespace dialogs::props_id
