// The kinds of controls that rows of a form's design name. Rooms above add kinds of their own.
#pragma once

#include <windows.h>

#include <commctrl.h>

namespace windowing {

class Form;
struct ControlDesign;

/// A window class with styles, or who makes the control.
struct ControlKind {
  const char* windowClass = nullptr;
  DWORD style = 0;  ///< besides WS_CHILD
  DWORD exStyle = 0;
  /// Makes the control of `form` in `container` at `place` (pixels); null where the class and the
  /// styles say it all.
  HWND(*make)
  (Form& form, const ControlDesign& design, HWND container, const RECT& place) = nullptr;
};

namespace kind {

constexpr DWORD shown = WS_VISIBLE;
constexpr DWORD stop = WS_VISIBLE | WS_TABSTOP;

HWND makeContainer(Form& form, const ControlDesign& design, HWND container, const RECT& place);

/// Holds other controls; paints the button face.
inline constexpr ControlKind container{.make = makeContainer};
/// Group box around its neighbours.
inline constexpr ControlKind group{"BUTTON", shown | BS_GROUPBOX};
inline constexpr ControlKind label{"STATIC", shown | SS_LEFT};
/// A label that shows "&" as it is (texts of the user).
inline constexpr ControlKind plainLabel{"STATIC", shown | SS_LEFT | SS_NOPREFIX};
inline constexpr ControlKind textBox{"EDIT", stop | ES_LEFT | ES_AUTOHSCROLL, WS_EX_CLIENTEDGE};
inline constexpr ControlKind multilineBox{
    "EDIT", stop | WS_VSCROLL | ES_LEFT | ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN,
    WS_EX_CLIENTEDGE};
inline constexpr ControlKind dropDownList{"COMBOBOX", stop | WS_VSCROLL | CBS_DROPDOWNLIST};
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
