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

/// One control of a form. The order of the rows is the tab order; a row's container stands
/// before it. Places are twips at design resolution, from the container's top-left corner.
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

  /// Makes the window, hidden, and runs the form's load handler; nothing when it is loaded.
  /// Raises what either raises; the form is not loaded then.
  void load();
  /// Loads when needed and shows the form beside the others.
  void show();
  /// Loads when needed, shows the form above its owner and returns when it is unloaded. All
  /// other windows of the program take no input meanwhile.
  void showModal();
  /// Closes the form as its close box does: asks it, runs its unload handler, destroys it.
  /// False when the form refused.
  bool unload();

  /// A control by its identifier; a null control when there is none, or none yet.
  [[nodiscard]] Control control(int id) const;
  /// The same as what it is: `control<ComboBox>(id)`.
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
  /// Size of the client area, twips.
  [[nodiscard]] double innerWidth() const;
  [[nodiscard]] double innerHeight() const;

  /// A key before any control sees it; true when the form took it.
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
  /// A button of a toolbar; what it does is mostly what its menu item does.
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
  /// Brush and colours (set in `dc`) of a control that has others than the system's; null for
  /// the system's.
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
  /// Makes those controls of a page that are not made yet, before it is shown. Raises what keeps
  /// one from being made; those before it are there then.
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

/// Whether a window is of the class `wanted`, whatever the case of its letters.
[[nodiscard]] bool isClass(HWND window, const char* wanted);

/// The form whose window `window` is or lies in; null when it is none of the program's.
[[nodiscard]] Form* formOf(HWND window);

/// Handles one message of the thread: keys of the active form first, then the dialog keys
/// (Tab, access keys, Enter, Esc), then the window itself. The message has been taken by
/// `GetMessageW`: taken as ANSI, a character of two bytes falls apart on its way to a box.
void dispatchMessage(MSG& message);

/// Runs the program as long as its main form is loaded; returns the exit code.
int runMessageLoop(const Form& main);

}  // namespace windowing
