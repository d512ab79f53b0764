#include "printing/zoom.h"

namespace printing {
namespace {

std::string_view stepped(std::string_view text, int step) {
  const auto index = zoomIndex(text);
  if (!index || *index >= steppedZooms) return text;
  const int next = *index + step;
  if (next < 0 || next >= steppedZooms) return text;
  return zoomLevels[static_cast<std::size_t>(next)].text;
}

}  // namespace

std::optional<int> zoomIndex(std::string_view text) {
  for (std::size_t i = 0; i < zoomLevels.size(); ++i)
    if (zoomLevels[i].text == text) return static_cast<int>(i);
  return std::nullopt;
}

std::string_view zoomedIn(std::string_view text) {
  return stepped(text, 1);
}

std::string_view zoomedOut(std::string_view text) {
  return stepped(text, -1);
}

}  // namespace printing
