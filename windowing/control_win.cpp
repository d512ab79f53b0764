#include "windowing/control_win.h"

#include <commctrl.h>

#include "values/runtime_error.h"
#include "values/system_error_win.h"
#include "windowing/application_win.h"
#include "windowing/screen_win.h"

namespace windowing {

HWND createChild(const ChildDesign& design, HWND container, int id, const RECT& place) {
  const HWND made = CreateWindowExA(
      design.exStyle, design.windowClass, design.caption, WS_CHILD | design.style, place.left,
      place.top, place.right - place.left, place.bottom - place.top, container,
      reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), programInstance(), nullptr);
  if (made == nullptr) values::raiseLastError();
  return made;
}

bool isClass(HWND window, const char* wanted) {
  char name[32] = {};
  GetClassNameA(window, name, sizeof name);
  return lstrcmpiA(name, wanted) == 0;
}

bool isMultilineBox(HWND window) {
  return isClass(window, "Edit") && (GetWindowLongA(window, GWL_STYLE) & ES_MULTILINE) != 0;
}

std::string Control::text() const {
  const auto length = static_cast<std::size_t>(send(WM_GETTEXTLENGTH));
  std::string text(length + 1, '\0');
  const auto copied = static_cast<std::size_t>(
      send(WM_GETTEXT, static_cast<WPARAM>(text.size()), reinterpret_cast<LPARAM>(text.data())));
  // A control with a text that copies nothing ran out of memory; its text is not empty.
  if (copied == 0 && length > 0) values::raiseOutOfMemory();
  text.resize(copied <= length ? copied : length);
  return text;
}

bool Control::setText(const std::string& text) const {
  return send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str())) == TRUE;
}

void Control::setEnabled(bool on) const {
  if (enabled() == on) return;
  EnableWindow(handle_, on ? TRUE : FALSE);
}

bool Control::visible() const {
  return (GetWindowLongA(handle_, GWL_STYLE) & WS_VISIBLE) != 0;
}

void Control::setVisible(bool shown) const {
  if (visible() != shown) ShowWindow(handle_, shown ? SW_SHOWNA : SW_HIDE);
}

RECT Control::pixels() const {
  RECT place{};
  GetWindowRect(handle_, &place);
  MapWindowPoints(HWND_DESKTOP, GetAncestor(handle_, GA_PARENT), reinterpret_cast<POINT*>(&place),
                  2);
  return place;
}

void Control::placePixels(const RECT& place) const {
  SetWindowPos(handle_, nullptr, place.left, place.top, place.right - place.left,
               place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

double Control::left() const {
  return screenTwips(pixels().left);
}
double Control::top() const {
  return screenTwips(pixels().top);
}
double Control::width() const {
  const RECT place = pixels();
  return screenTwips(place.right - place.left);
}
double Control::height() const {
  const RECT place = pixels();
  return screenTwips(place.bottom - place.top);
}

void Control::place(double left, double top, double width, double height) const {
  // Edges, not sizes, are rounded, so that neighbours keep touching at every resolution.
  placePixels({screenPixels(left), screenPixels(top), screenPixels(left + width),
               screenPixels(top + height)});
}

void Control::setFont(HFONT font) const {
  send(WM_SETFONT, reinterpret_cast<WPARAM>(font), MAKELPARAM(TRUE, 0));
}

void ComboBox::add(const std::string& text) const {
  send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

bool ComboBox::insert(int index, const std::string& text) const {
  return send(CB_INSERTSTRING, static_cast<WPARAM>(index),
              reinterpret_cast<LPARAM>(text.c_str())) >= 0;
}

void ComboBox::replace(int index, const std::string& text) const {
  const int chosen = selected();
  remove(index);
  // Without memory for the text, an empty entry keeps the places of those behind it.
  if (!insert(index, text)) insert(index, "");
  if (chosen >= 0) select(chosen);
}

std::string ComboBox::entry(int index) const {
  const LRESULT length = send(CB_GETLBTEXTLEN, static_cast<WPARAM>(index));
  if (length == CB_ERR) return {};
  std::string text(static_cast<std::size_t>(length) + 1, '\0');
  const LRESULT copied =
      send(CB_GETLBTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
  text.resize(copied == CB_ERR ? 0 : static_cast<std::size_t>(copied));
  return text;
}

void TabStrip::add(const std::string& caption) const {
  TCITEMA item{};
  item.mask = TCIF_TEXT;
  item.pszText = const_cast<char*>(caption.c_str());
  send(TCM_INSERTITEMA, static_cast<WPARAM>(count()), reinterpret_cast<LPARAM>(&item));
}

int TabStrip::count() const {
  return static_cast<int>(send(TCM_GETITEMCOUNT));
}
int TabStrip::selected() const {
  return static_cast<int>(send(TCM_GETCURSEL));
}
void TabStrip::select(int index) const {
  send(TCM_SETCURSEL, static_cast<WPARAM>(index));
}
void TabStrip::removeAt(int index) const {
  send(TCM_DELETEITEM, static_cast<WPARAM>(index));
}

std::string StatusBar::panel() const {
  const LRESULT length = LOWORD(send(SB_GETTEXTLENGTHA, 0));
  std::string text(static_cast<std::size_t>(length) + 1, '\0');
  send(SB_GETTEXTA, 0, reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(length));
  return text;
}

void StatusBar::setPanel(const std::string& text) const {
  if (panel() != text) send(SB_SETTEXTA, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

}  // namespace windowing
