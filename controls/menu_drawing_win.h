// The look of menu items: their sizes and their painting, in the system's font and colours.
#pragma once

#include <windows.h>

#include <string_view>

#include "windowing/image_list_win.h"

namespace controls {

/// What one item shows.
struct MenuItemLook {
  std::string_view caption;
  bool separator = false;
  bool opensMenu = false;
  int image = -1;  ///< -1: no picture
};

/// The size that an item needs, pixels, with room for picture, shortcut and arrow.
[[nodiscard]] SIZE menuItemSize(const MenuItemLook& look, const windowing::ImageList* images);

/// Paints an item. `state` holds the ODS_ flags.
void drawMenuItem(HDC dc, const RECT& place, const MenuItemLook& look, UINT state,
                  const windowing::ImageList* images);

/// To be called when the user has chosen another menu font.
void menuFontChanged();

}  // namespace controls
