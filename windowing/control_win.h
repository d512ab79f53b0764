// Controls of a form as values: each wraps a window handle that its form owns. Places and
// sizes are twips from the top-left corner of the control's container.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace windowing {

/// Class, text and styles of a child window.
struct ChildDesign {
  const char* windowClass;
  DWORD style;  ///< besides WS_CHILD
  DWORD exStyle = 0;
  const char* caption = "";
};

/// Makes a child of `container` at `place` (pixels). Raises the system's error where that fails.
[[nodiscard]] HWND createChild(const ChildDesign& design, HWND container, int id,
                               const RECT& place);

class Control {
 public:
  Control() = default;
  explicit Control(HWND handle) : handle_(handle) {}

  [[nodiscard]] HWND handle() const { return handle_; }
  [[nodiscard]] int id() const { return GetDlgCtrlID(handle_); }

  /// Raises out of memory where the control cannot copy its text.
  [[nodiscard]] std::string text() const;
  /// False where the control reports that it could not take the text. On Wine none ever does.
  bool setText(const std::string& text) const;

  [[nodiscard]] bool enabled() const { return IsWindowEnabled(handle_) != FALSE; }
  void setEnabled(bool enabled) const;
  /// Whether the control itself is shown, even if a container around it is hidden.
  [[nodiscard]] bool visible() const;
  void setVisible(bool visible) const;

  [[nodiscard]] double left() const;
  [[nodiscard]] double top() const;
  [[nodiscard]] double width() const;
  [[nodiscard]] double height() const;
  void place(double left, double top, double width, double height) const;
  /// Outer rectangle in pixels of the container's client area.
  [[nodiscard]] RECT pixels() const;
  void placePixels(const RECT& place) const;

  void focus() const { SetFocus(handle_); }
  [[nodiscard]] bool focused() const { return GetFocus() == handle_; }
  void setFont(HFONT font) const;
  void repaint() const { InvalidateRect(handle_, nullptr, TRUE); }

  LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return SendMessageA(handle_, message, wParam, lParam);
  }

 private:
  HWND handle_ = nullptr;
};

/// Whether a window is of this class, whatever the case of its letters.
[[nodiscard]] bool isClass(HWND window, const char* wanted);
/// Whether a window is a text box of several lines.
[[nodiscard]] bool isMultilineBox(HWND window);

class TextBox : public Control {
 public:
  using Control::Control;
  void selectAll() const { send(EM_SETSEL, 0, -1); }
  void setReadOnly(bool readOnly) const { send(EM_SETREADONLY, readOnly ? TRUE : FALSE); }
  /// Longest text that can be typed, in characters; 0 is the system's own limit.
  void setLimit(int characters) const { send(EM_SETLIMITTEXT, static_cast<WPARAM>(characters)); }
  [[nodiscard]] int lineCount() const { return static_cast<int>(send(EM_GETLINECOUNT)); }
};

/// A drop-down list. The form is told of an entry that the user selects, not of `select`.
class ComboBox : public Control {
 public:
  using Control::Control;
  void clear() const { send(CB_RESETCONTENT); }
  void add(const std::string& entry) const;
  /// False where there is no memory for the text.
  bool insert(int index, const std::string& entry) const;
  void remove(int index) const { send(CB_DELETESTRING, static_cast<WPARAM>(index)); }
  /// Replaces the text of an entry; the selection stays.
  void replace(int index, const std::string& entry) const;
  [[nodiscard]] int count() const { return static_cast<int>(send(CB_GETCOUNT)); }
  [[nodiscard]] std::string entry(int index) const;
  /// Index of the selected entry, -1 when there is none.
  [[nodiscard]] int selected() const { return static_cast<int>(send(CB_GETCURSEL)); }
  void select(int index) const { send(CB_SETCURSEL, static_cast<WPARAM>(index)); }
  /// Text of the selected entry; empty when there is none.
  [[nodiscard]] std::string selectedEntry() const { return entry(selected()); }
};

/// A check box or option button.
class CheckBox : public Control {
 public:
  using Control::Control;
  [[nodiscard]] int state() const { return static_cast<int>(send(BM_GETCHECK)); }
  void setState(int state) const { send(BM_SETCHECK, static_cast<WPARAM>(state)); }
};

/// A tab strip whose tabs are known by keys.
class TabStrip : public Control {
 public:
  using Control::Control;
  void add(const std::string& caption) const;
  [[nodiscard]] int count() const;
  [[nodiscard]] int selected() const;
  void select(int index) const;
  void removeAt(int index) const;
};

/// A status bar of one panel that grows with the window.
class StatusBar : public Control {
 public:
  using Control::Control;
  [[nodiscard]] std::string panel() const;
  void setPanel(const std::string& text) const;
  /// Places the bar at the foot of its window after a change of the window's size.
  void dock() const { send(WM_SIZE); }
};

/// Suspends the painting of a window while many changes are made to it.
class PaintingSuspended {
 public:
  explicit PaintingSuspended(HWND window) : window_(window) {
    SendMessageA(window_, WM_SETREDRAW, FALSE, 0);
  }
  PaintingSuspended(const PaintingSuspended&) = delete;
  PaintingSuspended& operator=(const PaintingSuspended&) = delete;
  ~PaintingSuspended() {
    SendMessageA(window_, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(window_, nullptr, TRUE);
  }

 private:
  HWND window_;
};

}  // namespace windowing
