// Where the page lies in the preview's view, and how far it can be scrolled. All lengths are
// twips on the screen; a scroll range that leaves 32 bits raises overflow.
#pragma once

#include <cstdint>

namespace printing {

constexpr double pageEdge = 45;        ///< from the view's top-left corner to the unscrolled page
constexpr double fittedMargin = 90;    ///< kept free on each side of a page that is fitted in
constexpr double wholePageSlack = 60;  ///< left out of the width a whole page is centred in

struct PageSize {
  double width = 0;
  double height = 0;
};

/// The view with what its two scroll bars take away from it.
struct ViewSize {
  double width = 0;
  double height = 0;
  double verticalBar = 0;    ///< width of the bar at the right
  double horizontalBar = 0;  ///< height of the bar at the bottom
  [[nodiscard]] double visibleWidth() const { return width - verticalBar; }
  [[nodiscard]] double visibleHeight() const { return height - horizontalBar; }
};

/// One direction of the page's place: where it begins at scroll position 0, its length, and the
/// largest scroll position. At position p it begins at `start` - p.
struct PageSpan {
  double start = pageEdge;
  double length = 0;
  std::int32_t scrollMax = 0;
  friend bool operator==(const PageSpan&, const PageSpan&) = default;
};

struct PagePlace {
  PageSpan across;
  PageSpan down;
  friend bool operator==(const PagePlace&, const PagePlace&) = default;
};

/// The page at `percent` of its size: centred across where it is narrower than the view.
[[nodiscard]] PagePlace placeAtPercent(const PageSize& page, const ViewSize& view, double percent);
/// As high as the view, whatever its width; one that is too wide begins at the edge, so that all
/// of it can be scrolled to.
[[nodiscard]] PagePlace placeWholePage(const PageSize& page, const ViewSize& view);
/// As wide as the view.
[[nodiscard]] PagePlace placePageWidth(const PageSize& page, const ViewSize& view);

/// Scroll position that keeps the point `at` (from the view's corner) over the same spot of the
/// page when the page passes from one place to another; within the new range.
[[nodiscard]] std::int32_t scrollKeeping(double at, const PageSpan& before, std::int32_t position,
                                         const PageSpan& after);

}  // namespace printing
