// The design of the preview window; places are twips. The controls of the strip are placed side by
// side when the window loads.
#pragma once

#include <array>

#include "controls/TXTSEP_win.h"
#include "printing/frmPPrev_ids.h"
#include "printing/frmPPrev_win.h"
#include "windowing/form_win.h"

namespace printing::design {

using windowing::ControlDesign;
using windowing::ControlKind;
namespace kind = windowing::kind;

constexpr int formWidth = 9900;
constexpr int formHeight = 6600;
constexpr int stripHeight = 480;
constexpr int stripMargin = 60;
constexpr int gap = 90;  ///< between the controls of the strip
constexpr int listHeight = 315;
constexpr int separatorWidth = 60;
constexpr int pagesWidth = 975;
constexpr int zoomsWidth = 1350;
constexpr int paperWidth = 1800;
constexpr int listTop = (stripHeight - listHeight) / 2;

constexpr ControlKind viewKind{.make = frmPPrev::makeView};

// clang-format off
constexpr std::array controls{
  ControlDesign{"PICTBAR",   id::PICTBAR,   kind::container,    "", 0, 0, formWidth, stripHeight},
  ControlDesign{"FRAMTBAR",  id::FRAMTBAR,  kind::container,    "", 0, 0, formWidth, stripHeight, id::PICTBAR},
  ControlDesign{"TBARMAIN",  id::TBARMAIN,  kind::toolBar,      "", stripMargin, 45, 3000, 390, id::FRAMTBAR},
  ControlDesign{"TXTSEP1",   id::TXTSEP1,   controls::separatorKind,       "", 0, listTop, separatorWidth, listHeight, id::FRAMTBAR},
  ControlDesign{"CBOPGNO",   id::CBOPGNO,   kind::dropDownList, "", 0, listTop, pagesWidth, listHeight, id::FRAMTBAR},
  ControlDesign{"TXTSEP2",   id::TXTSEP2,   controls::separatorKind,       "", 0, listTop, separatorWidth, listHeight, id::FRAMTBAR},
  ControlDesign{"LBLZOOM",   id::LBLZOOM,   kind::sideLabel,    "Zoom", 0, listTop, 450, listHeight, id::FRAMTBAR},
  ControlDesign{"CBOPGZOOM", id::CBOPGZOOM, kind::dropDownList, "", 0, listTop, zoomsWidth, listHeight, id::FRAMTBAR},
  ControlDesign{"LBLPAPER",  id::LBLPAPER,  kind::sideLabel,    "", 0, listTop, paperWidth, listHeight, id::FRAMTBAR, SS_RIGHT},
  ControlDesign{"PICWINDOW", id::PICWINDOW, viewKind,       "", 0, stripHeight, formWidth, formHeight - stripHeight - 330},
  ControlDesign{"SBMAIN",    id::SBMAIN,    kind::statusBar,    "", 0, 0, formWidth, 330},
};
// clang-format on

// A popup, like all modal windows. On Wine the window manager decides about the focus, and a window
// of another style would not get it.
constexpr DWORD formStyle = WS_POPUP | (WS_OVERLAPPEDWINDOW & ~WS_MINIMIZEBOX);

constexpr windowing::FormDesign form{"frmPPrev", "Preview",  formStyle, 0,
                                     formWidth,  formHeight, controls};

}  // namespace printing::design
