// The zooms of the preview: their texts and the steps between them.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "library/settings.h"
#include "printing/frmPPrev_ids.h"

namespace printing {

/// One zoom. The rest of the program identifies it by its text in the zoom list.
struct ZoomLevel {
  std::string_view text;
  int command;  ///< of its menu item
};

/// All zooms in the order of the list: the percentages, smallest first, and the fitted ones.
constexpr auto zoomLevels = std::to_array<ZoomLevel>({
    {"25 %", printing::id::ZOOM25},
    {"50 %", printing::id::ZOOM50},
    {"75 %", printing::id::ZOOM75},
    {"100 %", printing::id::ZOOM100},
    {"150 %", printing::id::ZOOM150},
    {"200 %", printing::id::ZOOM200},
    {"Page Width", printing::id::ZOOMPW},
    {"Whole Page", printing::id::ZOOMWP},
});
/// Number of percentages; zooming in and out goes through them.
constexpr int steppedZooms = static_cast<int>(zoomLevels.size()) - 2;

constexpr std::string_view pageWidthZoom = "Page Width";
constexpr std::string_view wholePageZoom = "Whole Page";
constexpr std::string_view defaultZoom =
    library::settingRow(library::Setting::previewZoom).otherwise;

/// Index in the list of the zoom with this text; no value for any other text.
[[nodiscard]] constexpr std::optional<int> zoomIndex(std::string_view text) {
  for (std::size_t i = 0; i < zoomLevels.size(); ++i)
    if (zoomLevels[i].text == text) return static_cast<int>(i);
  return std::nullopt;
}

/// Text of the percentage that is `step` places further up in the list. `text` itself where there
/// is none, and for a zoom that is no percentage.
[[nodiscard]] constexpr std::string_view zoomStepped(std::string_view text, int step) {
  const std::optional<int> index = zoomIndex(text);
  if (!index || *index >= steppedZooms) return text;
  const int next = *index + step;
  if (next < 0 || next >= steppedZooms) return text;
  return zoomLevels[static_cast<std::size_t>(next)].text;
}

[[nodiscard]] constexpr std::string_view zoomedIn(std::string_view text) {
  return zoomStepped(text, 1);
}
[[nodiscard]] constexpr std::string_view zoomedOut(std::string_view text) {
  return zoomStepped(text, -1);
}

static_assert(zoomLevels[steppedZooms].text == pageWidthZoom &&
                  zoomLevels[steppedZooms + 1].text == wholePageZoom,
              "the fitted zooms stand last");
static_assert(zoomIndex(defaultZoom));

}  // namespace printing
