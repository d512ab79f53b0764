#include "controls/ICOMNU_win.h"

#include <utility>

#include "controls/menu_drawing_win.h"
#include "controls/menu_text.h"
#include "values/runtime_error.h"

namespace controls {
namespace {

constexpr WORD menuEnded = 0xFFFF;

std::wstring wide(const std::string& text) {
  const int length = static_cast<int>(text.size());
  const int needed = MultiByteToWideChar(CP_ACP, 0, text.data(), length, nullptr, 0);
  std::wstring made(static_cast<std::size_t>(needed), L'\0');
  MultiByteToWideChar(CP_ACP, 0, text.data(), length, made.data(), needed);
  return made;
}

}  // namespace

ICOMNU::Item& ICOMNU::item(int number) {
  return const_cast<Item&>(std::as_const(*this).item(number));
}

const ICOMNU::Item& ICOMNU::item(int number) const {
  const auto found = items_.find(number);
  if (found == items_.end())
    throw values::RuntimeError(values::ErrorNumber::outOfRange,
                               "There is no menu item " + std::to_string(number));
  return found->second;
}

// The item that Windows names by its data; null for an item of another menu, whose data could be
// any number.
const ICOMNU::Item* ICOMNU::itemOfData(ULONG_PTR data) const {
  for (const auto& [number, known] : items_)
    if (reinterpret_cast<ULONG_PTR>(&known) == data) return &known;
  return nullptr;
}

const ICOMNU::Item* ICOMNU::itemAt(HMENU menu, int position) const {
  MENUITEMINFOA info{};
  info.cbSize = sizeof info;
  info.fMask = MIIM_DATA;
  if (!GetMenuItemInfoA(menu, static_cast<UINT>(position), TRUE, &info)) return nullptr;
  return itemOfData(info.dwItemData);
}

HMENU ICOMNU::bar() {
  if (!bar_) bar_.reset(CreateMenu());
  return bar_.get();
}

HMENU ICOMNU::menuOf(const Item& child) {
  return child.parent == 0 ? bar() : item(child.parent).menu;
}

int ICOMNU::positionOf(const Item& wanted) const {
  const HMENU menu = wanted.parent == 0 ? bar_.get() : item(wanted.parent).menu;
  const int count = GetMenuItemCount(menu);
  for (int position = 0; position < count; ++position)
    if (itemAt(menu, position) == &wanted) return position;
  return -1;
}

void ICOMNU::AddItem(int NUMBER, int PARENT, const std::string& TEXT, bool ENABLED, bool CHECKED,
                     int COMMAND, bool SEPARATOR, bool POPUP) {
  const auto known = items_.find(NUMBER);
  if (known != items_.end()) {
    known->second.command = COMMAND;
    CAPTION(NUMBER, TEXT);
    return;
  }
  if (PARENT != 0) becomePopup(item(PARENT));
  Item& added = items_[NUMBER];
  added.number = NUMBER;
  added.parent = PARENT;
  added.enabled = ENABLED;
  added.checked = CHECKED;
  added.command = COMMAND;
  added.separator = SEPARATOR;
  const auto kept = kept_.find(NUMBER);
  if (kept != kept_.end()) {
    added.enabled = kept->second.enabled;
    added.checked = kept->second.checked;
  }
  setText(added, TEXT);
  insert(added);
  if (POPUP) becomePopup(added);
}

void ICOMNU::insert(Item& added) {
  const HMENU menu = menuOf(added);
  // Only its data is set here, by which the item is found; `apply` sets everything else.
  MENUITEMINFOA info{};
  info.cbSize = sizeof info;
  info.fMask = MIIM_DATA | MIIM_FTYPE;
  info.fType = added.separator ? MFT_SEPARATOR : MFT_STRING;
  info.dwItemData = reinterpret_cast<ULONG_PTR>(&added);
  InsertMenuItemA(menu, static_cast<UINT>(GetMenuItemCount(menu)), TRUE, &info);
  apply(added);
}

void ICOMNU::apply(const Item& changed) {
  const int position = positionOf(changed);
  if (position < 0) return;
  std::string text = changed.caption;
  MENUITEMINFOA info{};
  info.cbSize = sizeof info;
  info.fMask = MIIM_FTYPE | MIIM_ID | MIIM_STATE | MIIM_DATA | MIIM_SUBMENU;
  if (!changed.separator) info.fMask |= MIIM_STRING;
  info.fType = changed.separator ? MFT_SEPARATOR : MFT_STRING;
  // The system draws the menu bar. An item that the program draws has its text too, for programs
  // that ask for it.
  if (changed.parent != 0) info.fType |= MFT_OWNERDRAW;
  info.fState = (changed.enabled ? MFS_ENABLED : MFS_GRAYED) |
                (changed.checked ? MFS_CHECKED : MFS_UNCHECKED);
  info.wID = static_cast<UINT>(changed.command);
  info.hSubMenu = changed.menu;
  info.dwItemData = reinterpret_cast<ULONG_PTR>(&changed);
  info.dwTypeData = text.data();
  info.cch = static_cast<UINT>(text.size());
  SetMenuItemInfoA(changed.parent == 0 ? bar_.get() : item(changed.parent).menu,
                   static_cast<UINT>(position), TRUE, &info);
  if (changed.parent == 0) redrawBar();
}

void ICOMNU::becomePopup(Item& changed) {
  if (changed.menu != nullptr) return;
  changed.menu = CreatePopupMenu();
  apply(changed);
}

void ICOMNU::setText(Item& changed, const std::string& text) {
  changed.caption = text;
  changed.spoken = wide(spokenText(text));
  changed.accessible.dwMSAASignature = static_cast<DWORD>(MSAA_MENU_SIG);
  changed.accessible.cchWText = static_cast<DWORD>(changed.spoken.size());
  changed.accessible.pszWText = changed.spoken.data();
}

const std::string& ICOMNU::CAPTION(int NUMBER) const {
  return item(NUMBER).caption;
}

void ICOMNU::CAPTION(int NUMBER, const std::string& TEXT) {
  Item& changed = item(NUMBER);
  setText(changed, TEXT);
  apply(changed);
}

int ICOMNU::ItemIcon(int NUMBER) const {
  return item(NUMBER).image;
}

void ICOMNU::ItemIcon(int NUMBER, int IMAGE) {
  item(NUMBER).image = IMAGE;
}

bool ICOMNU::isEnabled(int number) const {
  return item(number).enabled;
}

void ICOMNU::setEnabled(int number, bool enabled) {
  Item& changed = item(number);
  if (changed.enabled == enabled) return;
  changed.enabled = enabled;
  apply(changed);
}

bool ICOMNU::isChecked(int number) const {
  return item(number).checked;
}

void ICOMNU::setChecked(int number, bool checked) {
  Item& changed = item(number);
  if (changed.checked == checked) return;
  changed.checked = checked;
  apply(changed);
}

int ICOMNU::numberOf(int command) const {
  for (const auto& [number, known] : items_)
    if (!known.separator && known.menu == nullptr && known.command == command) return number;
  return 0;
}

void ICOMNU::clear() {
  for (const auto& [number, known] : items_) kept_[number] = {known.enabled, known.checked};
  // DeleteMenu destroys the menus below a title too.
  while (bar_ && DeleteMenu(bar_.get(), 0, MF_BYPOSITION)) {
  }
  items_.clear();
  redrawBar();
}

void ICOMNU::setImages(const windowing::ImageList& images) {
  images_ = &images;
}

void ICOMNU::redrawBar() const {
  if (form_ != nullptr && GetMenu(form_) == bar_.get()) DrawMenuBar(form_);
}

// Sets every item again, because Windows asks for an item's size only then.
void ICOMNU::fontChanged() {
  menuFontChanged();
  for (const auto& [number, known] : items_)
    if (known.parent != 0) apply(known);
}

// Called when the window is destroyed, which destroys its menus too.
void ICOMNU::forget() {
  (void)bar_.release();
  items_.clear();
  kept_.clear();
  form_ = nullptr;
}

void ICOMNU::highlight(WPARAM wParam, LPARAM lParam) {
  const auto menu = reinterpret_cast<HMENU>(lParam);
  const WORD flags = HIWORD(wParam);
  const bool ended = flags == menuEnded && menu == nullptr;
  if (!ended && (flags & MF_SYSMENU) != 0) {
    if (onSystemHighlight) onSystemHighlight((flags & MF_POPUP) != 0 ? 0 : LOWORD(wParam));
    return;
  }
  int number = 0;
  if (!ended && menu != bar_.get() && (flags & MF_SEPARATOR) == 0) {
    if ((flags & MF_POPUP) != 0) {
      const Item* known = itemAt(menu, LOWORD(wParam));
      number = known != nullptr ? known->number : 0;
    } else {
      number = numberOf(LOWORD(wParam));
    }
  }
  if (onHighlight) onHighlight(number);
}

bool ICOMNU::chooseItem(WPARAM wParam, LPARAM lParam, LRESULT& result) const {
  const auto menu = reinterpret_cast<HMENU>(lParam);
  if (menu == bar_.get() || itemAt(menu, 0) == nullptr) return false;
  std::vector<MenuEntry> entries;
  const int count = GetMenuItemCount(menu);
  for (int position = 0; position < count; ++position) {
    const Item* known = itemAt(menu, position);
    if (known == nullptr) return false;
    const UINT state = GetMenuState(menu, static_cast<UINT>(position), MF_BYPOSITION);
    entries.push_back({known->caption, known->enabled, known->separator, (state & MF_HILITE) != 0});
  }
  const KeyChoice choice = chooseByKey(entries, static_cast<char>(LOWORD(wParam)));
  if (choice.position < 0) return false;
  result = MAKELRESULT(choice.position, choice.run ? MNC_EXECUTE : MNC_SELECT);
  return true;
}

bool ICOMNU::measure(MEASUREITEMSTRUCT& measured) const {
  const Item* known = measured.CtlType == ODT_MENU ? itemOfData(measured.itemData) : nullptr;
  if (known == nullptr) return false;
  const SIZE size = menuItemSize(
      {known->caption, known->separator, known->menu != nullptr, known->image}, images_);
  // Windows adds the width of a check mark. The column of pictures has that place already.
  const int column = GetSystemMetrics(SM_CXMENUCHECK) - 1;
  measured.itemWidth = static_cast<UINT>(size.cx > column ? size.cx - column : 0);
  measured.itemHeight = static_cast<UINT>(size.cy);
  return true;
}

bool ICOMNU::draw(const DRAWITEMSTRUCT& drawing) const {
  const Item* known = drawing.CtlType == ODT_MENU ? itemOfData(drawing.itemData) : nullptr;
  if (known == nullptr) return false;
  const RECT& place = drawing.rcItem;
  drawMenuItem(drawing.hDC, place,
               {known->caption, known->separator, known->menu != nullptr, known->image},
               drawing.itemState, images_);
  // Keeps Windows from drawing its own arrow over this one, in other colours.
  if (known->menu != nullptr)
    ExcludeClipRect(drawing.hDC, place.left, place.top, place.right, place.bottom);
  return true;
}

bool ICOMNU::handleMessage(HWND form, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
  form_ = form;
  result = 0;
  switch (message) {
    case WM_MEASUREITEM:
      result = TRUE;
      return measure(*reinterpret_cast<MEASUREITEMSTRUCT*>(lParam));
    case WM_DRAWITEM:
      result = TRUE;
      return draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
    case WM_MENUCHAR:
      return chooseItem(wParam, lParam, result);
    case WM_MENUSELECT:
      highlight(wParam, lParam);
      return true;
    case WM_SETTINGCHANGE:
      fontChanged();
      return false;
    case WM_DESTROY:
      if (GetMenu(form) == bar_.get()) forget();
      return false;
    default:
      return false;
  }
}

}  // namespace controls
