// The menus of a form, with pictures. The program draws them; they look and behave like menus of
// the system.
#pragma once

#include <windows.h>

#include <oleacc.h>

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "values/handles_win.h"
#include "windowing/image_list_win.h"

namespace controls {

/// One per form. The caller gives each item a number (not 0). Items with parent 0 are the titles of
/// the menu bar, which the system draws.
class ICOMNU {
 public:
  ICOMNU() = default;
  ICOMNU(const ICOMNU&) = delete;
  ICOMNU& operator=(const ICOMNU&) = delete;

  /// Adds an item at the end of its parent's menu. If an item has this number already, it gets the
  /// new caption and command instead, and keeps its place and state.
  /// NUMBER: the item's number. PARENT: number of the item in whose menu it stands, 0 for the
  /// bar; raises when there is no such item. CAPTION: "&" marks the access key, a shortcut's
  /// text follows a tab. ENABLED, CHECKED: its state, unless it is kept from before a `clear`.
  /// COMMAND: identifier sent when the item is chosen. SEPARATOR: a line, which has no caption.
  /// POPUP: opens a menu of its own; an item becomes one when another names it as its parent.
  void AddItem(int NUMBER, int PARENT, const std::string& CAPTION, bool ENABLED, bool CHECKED,
               int COMMAND, bool SEPARATOR, bool POPUP);

  /// Caption of an item. This and the next functions raise where no item has the number.
  [[nodiscard]] const std::string& CAPTION(int NUMBER) const;
  void CAPTION(int NUMBER, const std::string& TEXT);
  /// Index of an item's picture in the image list, -1 for none.
  [[nodiscard]] int ItemIcon(int NUMBER) const;
  void ItemIcon(int NUMBER, int IMAGE);

  [[nodiscard]] bool isEnabled(int number) const;
  void setEnabled(int number, bool enabled);
  [[nodiscard]] bool isChecked(int number) const;
  void setChecked(int number, bool checked);

  /// Removes all items, so that they can be added again. An item that is added again with the same
  /// number is enabled and checked as before.
  void clear();

  /// Sets the list of pictures, which must outlive the menus.
  void setImages(const windowing::ImageList& images);

  /// The menu bar, for the form's window.
  [[nodiscard]] HMENU bar();

  /// Called with the number of an item, enabled or not, when it is highlighted. Called with 0 when
  /// a title, a separator or nothing is highlighted, and when the menu ends.
  std::function<void(int number)> onHighlight;
  /// Called with the SC_ code of a highlighted command of the system menu.
  std::function<void(std::uint32_t code)> onSystemHighlight;

  /// Handles the messages for the menus; the form calls this first for every message. True when
  /// `result` is the answer to the message.
  bool handleMessage(HWND form, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);

 private:
  // The address of an Item is the data of the menu item in Windows, so it must not change. Screen
  // readers look for the MSAAMENUINFO at that address, so it comes first.
  struct Item {
    MSAAMENUINFO accessible{};
    std::wstring spoken;
    int number = 0;
    int parent = 0;
    std::string caption;
    bool enabled = true;
    bool checked = false;
    int command = 0;
    bool separator = false;
    int image = -1;
    HMENU menu = nullptr;  // the menu it opens; belongs to the bar
  };
  struct State {
    bool enabled;
    bool checked;
  };

  [[nodiscard]] Item& item(int number);
  [[nodiscard]] const Item& item(int number) const;
  [[nodiscard]] const Item* itemOfData(ULONG_PTR data) const;
  [[nodiscard]] const Item* itemAt(HMENU menu, int position) const;
  [[nodiscard]] int numberOf(int command) const;
  [[nodiscard]] HMENU menuOf(const Item& child);
  [[nodiscard]] int positionOf(const Item& wanted) const;
  void insert(Item& added);
  void apply(const Item& changed);
  void becomePopup(Item& changed);
  void setText(Item& changed, const std::string& text);
  void fontChanged();
  void redrawBar() const;
  void forget();

  void highlight(WPARAM wParam, LPARAM lParam);
  bool chooseItem(WPARAM wParam, LPARAM lParam, LRESULT& result) const;
  bool measure(MEASUREITEMSTRUCT& measured) const;
  bool draw(const DRAWITEMSTRUCT& drawing) const;

  std::map<int, Item> items_;
  std::map<int, State> kept_;
  values::MenuHandle bar_;
  HWND form_ = nullptr;
  const windowing::ImageList* images_ = nullptr;
};

}  // namespace controls
