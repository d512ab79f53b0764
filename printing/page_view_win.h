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
  /// Shows the page at another place and size. Scrolls so that the point of the page that was
  /// clicked stays where it is; without a click, the point in the middle of the view's top edge.
  void showPage(const PagePlace& place);
  /// Shows the picture again after it has changed, scrolled to the top of the page.
  void showNewPicture();

  /// Place of the page on the view at scroll position 0.
  [[nodiscard]] const PagePlace& pagePlace() const { return place_; }
  [[nodiscard]] double pageLeft() const { return place_.across.start - across_; }
  [[nodiscard]] double pageTop() const { return place_.down.start - down_; }
  /// The page in pixels of the view.
  [[nodiscard]] RECT pagePixels() const;
  [[nodiscard]] POINT scrollPosition() const { return {across_, down_}; }
  /// Scrolls to a position, limited to the scroll range.
  void scrollTo(POINT position);

  /// Called when a mouse button is pressed on the page, with WM_LBUTTONDOWN or WM_RBUTTONDOWN.
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
  POINT kept_{-1, -1};  ///< while a click changes the zoom: its place in the view, pixels
  SIZE wheelRest_{};    ///< for each direction, how far the wheel was turned but nothing scrolled
};

}  // namespace printing
