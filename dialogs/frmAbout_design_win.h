// The design of the about box. Places are twips, 15 to the pixel at 96 dots per inch. A caption
// such as "Title" is replaced by a text at run time.
#pragma once

#include "controls/TXTSEP_win.h"
#include "dialogs/frmAbout_ids.h"
#include "windowing/form_win.h"

namespace dialogs::about_design {

using windowing::ControlDesign;
using windowing::ControlKind;
namespace kind = windowing::kind;

constexpr int formWidth = 6600;
constexpr int formHeight = 5175;
constexpr int titleHeight = 1200;
constexpr int margin = 240;
constexpr int textWidth = formWidth - 2 * margin;
constexpr int valueLeft = 1500;  ///< of the texts behind "Version:" and "Registered to:"
constexpr int valueWidth = formWidth - margin - valueLeft;
constexpr int line = 15;
constexpr int lineHeight = 210;  ///< of a text of one line
constexpr int logoWidth = 3000;  ///< the picture's own size
constexpr int logoHeight = 900;
constexpr int thanksHeight = 3 * lineHeight;
constexpr int warningHeight = 5 * lineHeight;
constexpr int buttonWidth = 1200;
constexpr int buttonHeight = 375;

constexpr ControlKind logoKind{"STATIC", WS_VISIBLE | SS_OWNERDRAW | SS_NOTIFY};
/// Never shown. It holds the pointer that is shown over the logo.
constexpr ControlKind pointerKind{"STATIC", SS_ICON};

// clang-format off
constexpr ControlDesign controls[] = {
  {"FRAMTITLE",      about_id::FRAMTITLE,      kind::container,  "", 0, 0, formWidth, titleHeight},
  {"LBLPROGRAMNAME", about_id::LBLPROGRAMNAME, kind::plainLabel, "Title", margin, 330, 2850, 600, about_id::FRAMTITLE},
  {"IMGLOGO",        about_id::IMGLOGO,        logoKind,     "", formWidth - logoWidth - 150, 150, logoWidth, logoHeight, about_id::FRAMTITLE},
  {"IMGCURSOR",      about_id::IMGCURSOR,      pointerKind,     "", 0, 0, 480, 480, about_id::FRAMTITLE},
  {"LNTITLE1",       about_id::LNTITLE1,       kind::label,      "", 0, titleHeight, formWidth, line},
  {"LNTITLE2",       about_id::LNTITLE2,       kind::label,      "", 0, titleHeight + line, formWidth, line},
  {"LBLVERS",        about_id::LBLVERS,        kind::label,      "Version:", margin, 1425, valueLeft - margin, lineHeight},
  {"LBLVERSNO",      about_id::LBLVERSNO,      kind::plainLabel, "Number", valueLeft, 1425, valueWidth, lineHeight},
  {"LBLREGISTERED",  about_id::LBLREGISTERED,  kind::label,      "Registered to:", margin, 1680, valueLeft - margin, lineHeight},
  {"LBLREGNAME",     about_id::LBLREGNAME,     kind::plainLabel, "Name", valueLeft, 1680, valueWidth, lineHeight, 0, SS_ENDELLIPSIS},
  {"LBLREGCO",       about_id::LBLREGCO,       kind::plainLabel, "Company", valueLeft, 1905, valueWidth, lineHeight, 0, SS_ENDELLIPSIS},
  {"LBLWRITTEN",     about_id::LBLWRITTEN,     kind::plainLabel, "Written By", margin, 2220, textWidth, lineHeight},
  {"LBLCOPYRIGHT",   about_id::LBLCOPYRIGHT,   kind::plainLabel, "Copyright", margin, 2445, textWidth, lineHeight},
  {"LBLTHANKS",      about_id::LBLTHANKS,      kind::plainLabel,
   "This program contains the runtime library of the GNU C++ compiler, written by the Free Software "
   "Foundation and its contributors and used under the GCC Runtime Library Exception, and start-up "
   "code of the MinGW-w64 project.",
   margin, 2775, textWidth, thanksHeight},
  {"LBLWARNING",     about_id::LBLWARNING,     kind::plainLabel, "", margin, 3510, textWidth, warningHeight},
  {"TSEP2",          about_id::TSEP2,          controls::separatorKind,     "", 135, 4545, formWidth - 270, 2 * line},
  {"BTNCLOSE",       about_id::BTNCLOSE,       kind::defaultButton, "&Close", formWidth - 135 - buttonWidth, 4665, buttonWidth, buttonHeight},
};
// clang-format on

constexpr windowing::FormDesign form{
    "frmAbout", "About", WS_POPUP | WS_CAPTION | WS_SYSMENU, WS_EX_DLGMODALFRAME, formWidth,
    formHeight, controls};

}  // namespace dialogs::about_design
