// Controls of the about box. Numbers are stable: menus, shortcuts and tests that drive the program
// from outside name the same ones. None is 1 or 2, which belong to Enter and Esc.
#pragma once

namespace dialogs::about_id {

constexpr int FRAMTITLE = 4500;
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

}  // namespace dialogs::about_id
