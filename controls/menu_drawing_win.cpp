#include "controls/menu_drawing_win.h"

#include <algorithm>
#include <string>

#include "controls/drawing_win.h"
#include "controls/menu_text.h"
#include "windowing/screen_win.h"

namespace controls {
namespace {

using values::FontHandle;
using values::Selected;
using windowing::scaled;

// Lengths in pixels at 96 dots per inch.
constexpr int rowPadding = 3;      // above and below text or picture
constexpr int imagePadding = 4;    // on both sides of a picture: the column's width
constexpr int pressedPadding = 2;  // between a picture and the box of its check mark
constexpr int textGap = 7;         // between the column and the words
constexpr int shortcutGap = 28;    // at least this between words and shortcut
constexpr int rightMargin = 20;    // room for the arrow of an item that opens a menu
constexpr int separatorHeight = 7;
constexpr int smallestImage = 16;

constexpr UINT noAccessKeys = 0x0100;  // ODS_NOACCEL

// Characters of the system's symbol font, which scale like text.
constexpr char checkGlyph[] = "a";
constexpr char arrowGlyph[] = "4";

struct Fonts {
  FontHandle text;
  FontHandle marks;
  int textHeight = 0;
};
Fonts shared;

FontHandle markFont(int height) {
  return FontHandle(CreateFontA(height, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, SYMBOL_CHARSET,
                                OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                                DEFAULT_PITCH | FF_DONTCARE, "Marlett"));
}

const Fonts& fonts() {
  if (shared.text) return shared;
  NONCLIENTMETRICSA metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  shared.text.reset(CreateFontIndirectA(&metrics.lfMenuFont));
  const values::WindowDc screen(nullptr);
  const Selected chosen(screen.get(), shared.text.get());
  TEXTMETRICA measures{};
  GetTextMetricsA(screen.get(), &measures);
  shared.textHeight = measures.tmHeight;
  shared.marks = markFont(std::max<int>(measures.tmHeight, scaled(smallestImage)));
  return shared;
}

int imageSize(const windowing::ImageList* images) {
  const int smallest = scaled(smallestImage);
  return images == nullptr ? smallest : std::max(smallest, images->size());
}

int columnWidth(const windowing::ImageList* images) {
  return imageSize(images) + 2 * scaled(imagePadding);
}

int textWidth(HDC dc, std::string_view text, UINT format) {
  RECT area{};
  DrawTextA(dc, text.data(), static_cast<int>(text.size()), &area,
            DT_SINGLELINE | DT_LEFT | DT_CALCRECT | format);
  return widthOf(area);
}

bool flatMenus() {
  BOOL flat = FALSE;
  return SystemParametersInfoA(SPI_GETFLATMENU, 0, &flat, 0) && flat != FALSE;
}

// Paints the background of an item and returns the colour for its text.
COLORREF drawGround(HDC dc, const RECT& place, bool selected, bool disabled) {
  const COLORREF text = GetSysColor(disabled ? COLOR_GRAYTEXT : COLOR_MENUTEXT);
  fill(dc, place, GetSysColor(COLOR_MENU));
  if (!selected) return text;
  if (disabled) {
    // A disabled item that is highlighted gets a pale bar with a frame.
    fill(dc, place, mixedColour(COLOR_MENU, COLOR_HIGHLIGHT, 12));
    frame(dc, place, mixedColour(COLOR_MENU, COLOR_HIGHLIGHT, 50), scaled(1));
    return text;
  }
  fill(dc, place, GetSysColor(flatMenus() ? COLOR_MENUHILIGHT : COLOR_HIGHLIGHT));
  if (flatMenus()) frame(dc, place, GetSysColor(COLOR_HIGHLIGHT), scaled(1));
  return GetSysColor(COLOR_HIGHLIGHTTEXT);
}

void drawSeparator(HDC dc, const RECT& place, const windowing::ImageList* images) {
  fill(dc, place, GetSysColor(COLOR_MENU));
  RECT line = place;
  line.left += columnWidth(images) + scaled(textGap) / 2;
  line.top += (heightOf(place) - scaled(1)) / 2;
  line.bottom = line.top + scaled(1);
  fill(dc, line, mixedColour(COLOR_MENU, COLOR_BTNSHADOW, 60));
}

void drawMark(HDC dc, const RECT& place, const char* glyph, COLORREF colour) {
  const Selected chosen(dc, fonts().marks.get());
  SetTextColor(dc, colour);
  RECT area = place;
  DrawTextA(dc, glyph, 1, &area, DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_NOPREFIX | DT_NOCLIP);
}

void drawColumn(HDC dc, const RECT& column, const MenuItemLook& look, UINT state, COLORREF mark,
                const windowing::ImageList* images) {
  const bool disabled = (state & (ODS_GRAYED | ODS_DISABLED)) != 0;
  const bool picture = images != nullptr && look.image >= 0 && look.image < images->count();
  const bool isChecked = (state & ODS_CHECKED) != 0;
  if (!picture) {
    if (isChecked) drawMark(dc, column, checkGlyph, mark);
    return;
  }
  // Blue pictures could not be seen on the highlight, so a picture has a pale background of its
  // own.
  if ((state & ODS_SELECTED) != 0 && !disabled) {
    fill(dc, column, mixedColour(COLOR_MENU, COLOR_HIGHLIGHT, 20));
    frame(dc, column, GetSysColor(COLOR_HIGHLIGHT), scaled(1));
  }
  const int x = column.left + (widthOf(column) - images->size()) / 2;
  const int y = column.top + (heightOf(column) - images->size()) / 2;
  if (isChecked) {
    const RECT box{x, y, x + images->size(), y + images->size()};
    RECT pressed = box;
    InflateRect(&pressed, scaled(pressedPadding), scaled(pressedPadding));
    fill(dc, pressed, mixedColour(COLOR_MENU, COLOR_HIGHLIGHT, 35));
    frame(dc, pressed, GetSysColor(disabled ? COLOR_GRAYTEXT : COLOR_HIGHLIGHT), scaled(1));
  }
  images->draw(dc, x, y, look.image, !disabled);
}

void drawWords(HDC dc, const RECT& place, const MenuItemLook& look, UINT state, COLORREF colour,
               const windowing::ImageList* images) {
  const auto [words, shortcut] = splitMenuText(look.caption);
  const Selected chosen(dc, fonts().text.get());
  SetTextColor(dc, colour);
  RECT area = place;
  area.left += columnWidth(images) + scaled(textGap);
  area.right -= scaled(rightMargin);
  constexpr UINT line = DT_SINGLELINE | DT_VCENTER;
  if ((state & noAccessKeys) != 0) {
    // DT_HIDEPREFIX is not used, because Wine underlines the letters all the same.
    const std::string bare = spokenText(words);
    DrawTextA(dc, bare.c_str(), -1, &area, line | DT_LEFT | DT_NOPREFIX);
  } else {
    DrawTextA(dc, words.data(), static_cast<int>(words.size()), &area, line | DT_LEFT);
  }
  DrawTextA(dc, shortcut.data(), static_cast<int>(shortcut.size()), &area,
            line | DT_RIGHT | DT_NOPREFIX);
}

}  // namespace

void menuFontChanged() {
  shared = {};
}

SIZE menuItemSize(const MenuItemLook& look, const windowing::ImageList* images) {
  if (look.separator) return {columnWidth(images), scaled(separatorHeight)};
  const auto [words, shortcut] = splitMenuText(look.caption);
  const values::WindowDc screen(nullptr);
  const Selected chosen(screen.get(), fonts().text.get());
  int width = columnWidth(images) + scaled(textGap) + textWidth(screen.get(), words, 0) +
              scaled(rightMargin);
  if (!shortcut.empty())
    width += scaled(shortcutGap) + textWidth(screen.get(), shortcut, DT_NOPREFIX);
  const int content = std::max(fonts().textHeight, imageSize(images));
  return {width, content + 2 * scaled(rowPadding)};
}

void drawMenuItem(HDC target, const RECT& place, const MenuItemLook& look, UINT state,
                  const windowing::ImageList* images) {
  const Buffered buffer(target, place);
  const HDC dc = buffer.dc();
  if (look.separator) {
    drawSeparator(dc, place, images);
    return;
  }
  const bool disabled = (state & (ODS_GRAYED | ODS_DISABLED)) != 0;
  const COLORREF colour = drawGround(dc, place, (state & ODS_SELECTED) != 0, disabled);
  SetBkMode(dc, TRANSPARENT);
  RECT column = place;
  column.right = column.left + columnWidth(images);
  drawColumn(dc, column, look, state, colour, images);
  drawWords(dc, place, look, state, colour, images);
  if (look.opensMenu) {
    RECT arrow = place;
    arrow.left = arrow.right - scaled(rightMargin);
    drawMark(dc, arrow, arrowGlyph, colour);
  }
}

}  // namespace controls
