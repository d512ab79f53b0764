#include "printing/frmPPrev_win.h"

#include <array>

#include "library/identifiers.h"

namespace printing {
namespace {

using windowing::ControlDesign;
using windowing::ControlKind;

constexpr int idRTF3 = library::id::previewControls + 1;
constexpr int idRTF2 = library::id::previewControls + 2;

constexpr std::array controls{
    ControlDesign{"RTF3", idRTF3, ControlKind::custom, "", 0, 0, 1500, 500},
    ControlDesign{"RTF2", idRTF2, ControlKind::custom, "", 0, 0, 1500, 500},
};

constexpr windowing::FormDesign design{
    "frmPPrev", "Preview", WS_OVERLAPPEDWINDOW & ~WS_MINIMIZEBOX, 0, 9000, 6500, controls};

}  // namespace

frmPPrev::frmPPrev() : CommandForm(design) {}

// The boxes go before the window that holds them.
frmPPrev::~frmPPrev() = default;

windowing::RichTextBox& frmPPrev::RTF2() {
  load();
  return RTF2_;
}

windowing::RichTextBox& frmPPrev::RTF3() {
  load();
  return RTF3_;
}

windowing::PagePicture& frmPPrev::PICSTDPAGE() {
  load();
  return PICSTDPAGE_;
}

HWND frmPPrev::createCustom(const ControlDesign& made, HWND container, const RECT& place) {
  return (made.id == idRTF3 ? RTF3_ : RTF2_).create(container, made.id, place);
}

frmPPrev& thePreview() {
  static frmPPrev form;
  return form;
}

}  // namespace printing
