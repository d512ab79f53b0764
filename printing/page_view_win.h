// The grey view of the preview, with the page in it and the bars that scroll the page.
#pragma once

#include <windows.h>

#include <functional>

#include "paper/page_picture_win.h"
#include "printing/preview_layout.h"
#include "windowing/window_win.h"

namespace printing {

/// `PICWINDOW`. The page, `IMGPREVIEW`, is drawn by the view; lengths are twips on the screen,
/// scroll positions too.
class PageView : public windowing::Window {
 public:
  /// `picture` is shown as the page and must outlive the view.
  explicit PageView(const paper::PagePicture& picture) : picture_(picture) {}

  /// Makes the view with its scroll bars and the box that fills the corner between them.
  /// Raises when Windows refuses.
  HWND create(HWND container, int id, const RECT& place);

  [[nodiscard]] ViewSize size() const;
  /// Shows the page at another place and size, scrolled so that the point that was clicked on
  /// shows the same spot of it, or its middle and its first visible line where none was.
  void showPage(const PagePlace& place);
  /// Shows what the picture holds now, from the top of the page on.
  void showNewPicture();

  /// Place of the page on the view at scroll position 0.
  [[nodiscard]] const PagePlace& pagePlace() const { return place_; }
  [[nodiscard]] double pageLeft() const { return place_.across.start - across_; }
  [[nodiscard]] double pageTop() const { return place_.down.start - down_; }
  /// The page in pixels of the view.
  [[nodiscard]] RECT pagePixels() const;
  [[nodiscard]] POINT scrollPosition() const { return {across_, down_}; }
  /// Scrolls to a position, or as near as the range allows.
  void scrollTo(POINT position);

  /// Called with a mouse button (WM_LBUTTONDOWN or WM_RBUTTONDOWN) pressed on the page.
  std::function<void(UINT button)> onPageClick;

 protected:
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void placeBars();
  void setBars() const;
  void scrollBy(int across, int down);
  void answerBar(HWND bar, int code);
  bool answerKey(WPARAM key);
  void answerWheel(int delta, bool sideways);
  void answerClick(UINT button, POINT point);
  void paint();
  void drawShadow(HDC dc, const RECT& page) const;
  [[nodiscard]] RECT visiblePixels() const;

  const paper::PagePicture& picture_;
  HWND SCRHBAR = nullptr;
  HWND SCRVBAR = nullptr;
  HWND PICFILL = nullptr;
  PagePlace place_;
  LONG across_ = 0;  ///< scroll positions
  LONG down_ = 0;
  POINT kept_{-1, -1};  ///< pixels of a click whose spot of the page stays under the pointer
  SIZE wheelRest_{};    ///< of each direction: what was turned and not scrolled yet
};

}  // namespace printing
