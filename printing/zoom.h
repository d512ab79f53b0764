// The zooms of the preview: their texts, the steps between them and what each leaves to choose.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "library/identifiers.h"

namespace printing {

/// One zoom. Its text in the zoom list is what the rest of the program knows it by.
struct ZoomLevel {
  std::string_view text;
  int command;  ///< of its menu item
  int percent;  ///< 0 for a zoom that is fitted to the window
  bool canZoomIn;
  bool canZoomOut;
};

constexpr int steppedZooms = 6;  ///< the levels that zooming in and out steps through

/// All zooms in the order of the list: the percentages, smallest first, and the fitted ones.
constexpr std::array<ZoomLevel, 8> zoomLevels = {{
    {"25 %", library::id::preview::ZOOM25, 25, true, false},
    {"50 %", library::id::preview::ZOOM50, 50, true, true},
    {"75 %", library::id::preview::ZOOM75, 75, true, true},
    {"100 %", library::id::preview::ZOOM100, 100, true, true},
    {"150 %", library::id::preview::ZOOM150, 150, true, true},
    {"200 %", library::id::preview::ZOOM200, 200, false, true},
    {"Page Width", library::id::preview::ZOOMPW, 0, false, false},
    {"Whole Page", library::id::preview::ZOOMWP, 0, false, false},
}};

constexpr std::string_view pageWidthZoom = "Page Width";
constexpr std::string_view wholePageZoom = "Whole Page";
constexpr std::string_view defaultZoom = "50 %";

/// Place of the zoom with this text in the list; nothing for any other text.
[[nodiscard]] std::optional<int> zoomIndex(std::string_view text);

/// Text of the next larger and the next smaller percentage; `text` itself where there is none,
/// as for the fitted zooms, which have no place among the percentages.
[[nodiscard]] std::string_view zoomedIn(std::string_view text);
[[nodiscard]] std::string_view zoomedOut(std::string_view text);

namespace detail {
constexpr bool percentagesRise() {
  for (std::size_t i = 0; i < zoomLevels.size(); ++i) {
    const bool stepped = i < steppedZooms;
    if (stepped != (zoomLevels[i].percent > 0)) return false;
    if (stepped && i > 0 && zoomLevels[i].percent <= zoomLevels[i - 1].percent) return false;
  }
  return true;
}
static_assert(percentagesRise());
static_assert(zoomLevels[6].text == pageWidthZoom && zoomLevels[7].text == wholePageZoom);
}  // namespace detail

}  // namespace printing
