// A form: a top-level window with controls laid out by a design table. Forms load on first
// use, hidden; they are shown modeless or modal, and unloaded when closed.
#pragma once

#include <windows.h>

#include <map>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "windowing/control_kinds_win.h"
#include "windowing/control_win.h"
#include "windowing/modal_win.h"
#include "windowing/window_win.h"

namespace windowing {

/// One control of a form. The order of the rows is the tab order; the row of a container stands
/// before the rows of its controls. Places are twips from the container's top-left corner.
struct ControlDesign {
  const char* name;  ///< the control's name; controls of an array share one
  int id;
  ControlKind kind;
  const char* caption;
  int left;
  int top;
  int width;
  int height;
  int container = 0;  ///< identifier of the control's container; 0 is the form
  DWORD style = 0;    ///< added to the kind's own styles
};

struct FormDesign {
  const char* name;  ///< "frmMain": the name its settings are kept under
  const char* caption;
  DWORD style;
  DWORD exStyle;
  int innerWidth;  ///< client area, twips
  int innerHeight;
  std::span<const ControlDesign> controls;
};

class Form : public Window {
 public:
  explicit Form(const FormDesign& design) : design_(design) {}
  ~Form() override;

  [[nodiscard]] const char* name() const { return design_.name; }
  [[nodiscard]] bool loaded() const { return handle() != nullptr; }

  /// Makes the window, hidden, and runs the form's load handler. Does nothing when the form is
  /// loaded. Passes on any error; the form is not loaded then.
  void load();
  /// Loads when needed and shows the form beside the others.
  void show();
  /// Loads when needed, shows the form above its owner and returns when it is unloaded. All
  /// other windows of the program take no input meanwhile.
  void showModal();
  /// Closes the form as its close box does: asks it, runs its unload handler, destroys it.
  /// False when the form refused.
  bool unload();

  /// A control by its identifier; a null control when the form has none or has not made it yet.
  [[nodiscard]] Control control(int id) const;
  /// The same as a control of its own type: `control<ComboBox>(id)`.
  template <typename Kind>
  [[nodiscard]] Kind control(int id) const {
    return Kind(control(id).handle());
  }
  /// A control by its name (the first of an array); raises when the form has none.
  [[nodiscard]] Control control(std::string_view name) const;

  /// Outer place and size, twips; the state is 0 normal, 1 minimised, 2 maximised.
  [[nodiscard]] RECT outerPixels() const;
  void moveOuter(const RECT& pixels);
  [[nodiscard]] int windowState() const;
  /// Has a hidden form appear maximised at its next showing; until then its outer rectangle
  /// is the one it will be restored to.
  void maximiseWhenShown();
  /// Width of the client area, twips.
  [[nodiscard]] double innerWidth() const;

  /// Called for a key before any control sees it. True when the form used the key.
  virtual bool handleKey(const MSG&) { return false; }
  /// Moves the focus to the next or previous control that takes it, in the design's order.
  void focusNext(bool backwards);
  /// The control that has the focus when the form is shown or comes to the front next.
  void setFirstFocus(const Control& wanted) { lastFocus_ = wanted.handle(); }
  /// Gives a control the focus as the keyboard does: a box's text is selected.
  static void focusOn(HWND window);

 protected:
  virtual void onLoad() {}
  /// Whether the form may be closed.
  virtual bool onQueryUnload() { return true; }
  virtual void onUnload() {}
  /// A menu item or shortcut.
  virtual void onCommand(int id) { (void)id; }
  /// A button of a toolbar. Most do what their menu item does.
  virtual void onToolButton(int id) { onCommand(id); }
  virtual void onClick(int id) { (void)id; }   ///< button, check box, option button
  virtual void onChange(int id) { (void)id; }  ///< text of a box
  virtual void onSelect(int id) { (void)id; }  ///< entry of a list, by the user
  /// Any other notice of a control.
  virtual void onNotice(int id, int notice) {
    (void)id;
    (void)notice;
  }
  virtual void onTab(int id) { (void)id; }  ///< tab of a strip, by the user
  /// For a control with colours of its own: sets them in `dc` and returns the brush. Null for a
  /// control with the system's colours.
  virtual HBRUSH onColour(HDC dc, int id) {
    (void)dc;
    (void)id;
    return nullptr;
  }
  virtual void onSize() {}
  virtual void onTimer(UINT_PTR timer) { (void)timer; }
  virtual LRESULT onNotify(NMHDR& header) {
    (void)header;
    return 0;
  }
  /// Enter and Esc, where no control takes them.
  virtual void onEnter() {}
  virtual void onEscape() {}
  /// Makes the controls of a page that are not made yet; called before the page is shown. Raises
  /// when one cannot be made; the controls before it stay.
  void createControls(int page);
  virtual HMENU createMenu() { return nullptr; }

  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  [[nodiscard]] int pageOf(const ControlDesign& design) const;
  HWND createControl(const ControlDesign& design, HWND container);
  LRESULT dispatchCommand(WPARAM wParam, LPARAM lParam);
  void keepFocus(WPARAM wParam);
  void restoreFocus();
  void runModalLoop();
  void appear();

  FormDesign design_;
  std::map<int, HWND> controls_;
  HWND lastFocus_ = nullptr;
  std::unique_ptr<DisabledOthers> disabled_;
  HWND modalOwner_ = nullptr;
  bool modal_ = false;
  bool appearMaximised_ = false;
};

/// The form whose window `window` is or lies in; null when it is none of the program's.
[[nodiscard]] Form* formOf(HWND window);

/// Handles one message of the thread: first the form's `handleKey`, then the dialog keys (Tab,
/// access keys, Enter, Esc), then the window itself. The message must come from `GetMessageW`:
/// `GetMessageA` would give a box the two bytes of one character as two characters.
void dispatchMessage(MSG& message);

/// Runs the program as long as its main form is loaded; returns the exit code.
int runMessageLoop(const Form& main);

}  // namespace windowing
