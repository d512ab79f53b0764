// Where the page lies in the preview's view, and how far it can be scrolled. All lengths are twips
// on the screen. A scroll range that does not fit in 32 bits raises overflow.
#pragma once

#include <cstdint>

namespace printing {

constexpr double pageEdge = 45;      ///< from the view's top-left corner to the unscrolled page
constexpr double fittedMargin = 90;  ///< free space on each side of a page as wide as the view
constexpr double wholePageSlack =
    60;  ///< less than the view's width: the width to centre a page in

struct PageSize {
  double width = 0;
  double height = 0;
};

/// The size of the view, and of its two scroll bars.
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
/// The page as high as the view, whatever its width. A page that is too wide for the view begins at
/// the edge, so that all of it can be reached by scrolling.
[[nodiscard]] PagePlace placeWholePage(const PageSize& page, const ViewSize& view);
/// The page as wide as the view.
[[nodiscard]] PagePlace placePageWidth(const PageSize& page, const ViewSize& view);

/// The scroll position for the place `after` at which the point `at` of the view (from its corner)
/// shows the same point of the page as at `position` in the place `before`; limited to the new
/// range.
[[nodiscard]] std::int32_t scrollKeeping(double at, const PageSpan& before, std::int32_t position,
                                         const PageSpan& after);

}  // namespace printing
