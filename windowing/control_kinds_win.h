// The kinds of controls that rows of a form's design name. Rooms above add kinds of their own.
#pragma once

#include <windows.h>

#include <commctrl.h>

namespace windowing {

class Form;
struct ControlDesign;

/// Makes a control of `form` in `container` at `place` (pixels).
using Maker = HWND(Form& form, const ControlDesign& design, HWND container, const RECT& place);

/// What decides how high a control is: its design, or the form's font. In the latter case the
/// control is centred in the height that its design gives it, so that a label, a box and a list
/// of one design place have their texts on one line.
enum class Height { design, text, box, list };

/// A window class with styles, or a function that makes the control.
struct ControlKind {
  const char* windowClass = nullptr;
  DWORD style = 0;  ///< besides WS_CHILD
  DWORD exStyle = 0;
  /// Null where the control is simply a window of the class.
  Maker* make = nullptr;
  Height height = Height::design;
  /// The form makes the page's controls before the page is first shown.
  bool isPage = false;
};

namespace kind {

constexpr DWORD shown = WS_VISIBLE;
constexpr DWORD stop = WS_VISIBLE | WS_TABSTOP;

Maker makeContainer;

/// Holds other controls; paints the button face.
inline constexpr ControlKind container{.make = makeContainer};
/// A container that is hidden at first, and whose controls the form makes later.
inline constexpr ControlKind page{.make = makeContainer, .isPage = true};
/// Group box around its neighbours.
inline constexpr ControlKind group{"BUTTON", shown | BS_GROUPBOX};
inline constexpr ControlKind label{"STATIC", shown | SS_LEFT};
/// A label that shows "&" as it is (texts of the user).
inline constexpr ControlKind plainLabel{"STATIC", shown | SS_LEFT | SS_NOPREFIX};
/// A label beside a box: its design gives it the same top and height as the box.
inline constexpr ControlKind sideLabel{
    .windowClass = "STATIC", .style = shown | SS_LEFT, .height = Height::text};
inline constexpr ControlKind textBox{.windowClass = "EDIT",
                                     .style = stop | ES_LEFT | ES_AUTOHSCROLL,
                                     .exStyle = WS_EX_CLIENTEDGE,
                                     .height = Height::box};
inline constexpr ControlKind multilineBox{
    "EDIT", stop | WS_VSCROLL | ES_LEFT | ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN,
    WS_EX_CLIENTEDGE};
inline constexpr ControlKind dropDownList{.windowClass = "COMBOBOX",
                                          .style = stop | WS_VSCROLL | CBS_DROPDOWNLIST,
                                          .height = Height::list};
inline constexpr ControlKind checkBox{"BUTTON", stop | BS_AUTOCHECKBOX};
inline constexpr ControlKind optionButton{"BUTTON", shown | BS_AUTORADIOBUTTON};
inline constexpr ControlKind button{"BUTTON", stop | BS_PUSHBUTTON};
inline constexpr ControlKind defaultButton{"BUTTON", stop | BS_DEFPUSHBUTTON};
inline constexpr ControlKind tabStrip{WC_TABCONTROLA, stop | WS_CLIPSIBLINGS};
inline constexpr ControlKind statusBar{STATUSCLASSNAMEA, shown};
inline constexpr ControlKind toolBar{TOOLBARCLASSNAMEA, shown | CCS_NODIVIDER | CCS_NORESIZE |
                                                            CCS_NOPARENTALIGN | TBSTYLE_FLAT |
                                                            TBSTYLE_TOOLTIPS};

}  // namespace kind
}  // namespace windowing
