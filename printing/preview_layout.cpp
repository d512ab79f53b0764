#include "printing/preview_layout.h"

#include <algorithm>
#include <cmath>

#include "values/checked.h"

namespace printing {
namespace {

// The scroll range of a page that does not fit: at its end, the space behind the page is
// `pageEdge`, like the space before it at the beginning.
std::int32_t rangeOf(double start, double length, double visible) {
  const double beyond = start + length + pageEdge - std::max(0.0, visible);
  return values::roundTo<std::int32_t>(std::ceil(std::max(0.0, beyond)));
}

PageSpan fromEdge(double length, double visible) {
  return {pageEdge, length, rangeOf(pageEdge, length, visible)};
}

double aspectOf(const PageSize& page) {
  return page.height > 0 ? page.width / page.height : 1;
}

}  // namespace

PagePlace placeAtPercent(const PageSize& page, const ViewSize& view, double percent) {
  // Computed in single precision, like the sizes of pictures.
  const auto scaled = [percent](double length) {
    return static_cast<double>(static_cast<float>(length) / 100.0F * static_cast<float>(percent));
  };
  PagePlace place{fromEdge(scaled(page.width), view.visibleWidth()),
                  fromEdge(scaled(page.height), view.visibleHeight())};
  const double spare = view.visibleWidth() - place.across.length;
  if (spare >= 0) place.across = {spare / 2, place.across.length, 0};
  return place;
}

PagePlace placeWholePage(const PageSize& page, const ViewSize& view) {
  const double height = std::max(0.0, view.height - 2 * fittedMargin - view.horizontalBar);
  const double width = height * aspectOf(page);
  const double centred = (view.width - width - view.verticalBar - wholePageSlack) / 2;
  const double left = std::max(pageEdge, centred);
  // A page that is narrow enough to be centred is visible as a whole.
  const bool fits = left + width <= view.visibleWidth();
  return {{left, width, fits ? 0 : rangeOf(left, width, view.visibleWidth())},
          {pageEdge, height, 0}};
}

PagePlace placePageWidth(const PageSize& page, const ViewSize& view) {
  const double width = std::max(0.0, view.width - view.verticalBar - 2 * fittedMargin);
  // Deliberate: the page begins at the edge and is not centred.
  return {{pageEdge, width, 0}, fromEdge(width / aspectOf(page), view.visibleHeight())};
}

std::int32_t scrollKeeping(double at, const PageSpan& before, std::int32_t position,
                           const PageSpan& after) {
  if (before.length <= 0) return 0;
  const double part = std::clamp((at - (before.start - position)) / before.length, 0.0, 1.0);
  const double wanted = after.start + part * after.length - at;
  return values::roundTo<std::int32_t>(
      std::clamp(wanted, 0.0, static_cast<double>(after.scrollMax)));
}

}  // namespace printing
