#include "printing/page_view_win.h"

#include <windowsx.h>

#include <algorithm>

#include "controls/drawing_win.h"
#include "printing/frmPPrev_ids.h"
#include "values/handles_win.h"
#include "values/system_error_win.h"
#include "windowing/application_win.h"
#include "windowing/container_win.h"
#include "windowing/control_win.h"
#include "windowing/screen_win.h"

namespace printing {
namespace {

using controls::fill;
using windowing::scaled;
using windowing::screenPixels;
using windowing::screenTwips;

constexpr int lineStep = 360;    // twips that an arrow scrolls: a line of text at 150 %
constexpr int shadowReach = 4;   // width of the shadow round the page, pixels at 96 dots per inch
constexpr int shadowDrop = 1;    // how much lower than the page the shadow lies, the same
constexpr int shadowDepth = 40;  // how much darker it is beside the page, percent

HWND child(const char* windowClass, DWORD style, HWND parent, int id) {
  return windowing::createChild({windowClass, WS_VISIBLE | style}, parent, id, {});
}

int barWidth() {
  return GetSystemMetrics(SM_CXVSCROLL);
}
int barHeight() {
  return GetSystemMetrics(SM_CYHSCROLL);
}

int beginOf(const PageSpan& span, LONG position) {
  return screenPixels(span.start - position);
}

void setBar(HWND bar, const PageSpan& span, double visible, LONG position) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL;
  // The largest position of a scroll bar is its range less one page.
  info.nPage = static_cast<UINT>(std::max(1.0, visible));
  info.nMax = span.scrollMax == 0 ? 0 : span.scrollMax + static_cast<int>(info.nPage) - 1;
  info.nPos = static_cast<int>(position);
  SetScrollInfo(bar, SB_CTL, &info, TRUE);
  // Wine does not grey a bar that is not visible yet, so it is disabled here.
  EnableWindow(bar, span.scrollMax > 0);
}

COLORREF darker(COLORREF colour, int hundredths) {
  const auto part = [hundredths](int channel) {
    return static_cast<BYTE>(channel - channel * hundredths / 100);
  };
  return RGB(part(GetRValue(colour)), part(GetGValue(colour)), part(GetBValue(colour)));
}

}  // namespace

HWND PageView::create(HWND container, int id, const RECT& place) {
  place_ = {};
  across_ = down_ = 0;
  Creation creation;
  creation.className = "TellaryPageView";
  creation.style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_CLIPCHILDREN;
  creation.place = place;
  creation.parent = container;
  creation.menu = reinterpret_cast<HMENU>(static_cast<INT_PTR>(id));
  Window::create(creation);
  namespace numbers = printing::id;
  SCRHBAR = child("SCROLLBAR", SBS_HORZ, handle(), numbers::SCRHBAR);
  SCRVBAR = child("SCROLLBAR", SBS_VERT, handle(), numbers::SCRVBAR);
  PICFILL = child(windowing::containerClass(), 0, handle(), numbers::PICFILL);
  placeBars();
  return handle();
}

ViewSize PageView::size() const {
  RECT area{};
  GetClientRect(handle(), &area);
  return {screenTwips(area.right), screenTwips(area.bottom), screenTwips(barWidth()),
          screenTwips(barHeight())};
}

RECT PageView::visiblePixels() const {
  RECT area{};
  GetClientRect(handle(), &area);
  area.right = std::max<LONG>(0, area.right - barWidth());
  area.bottom = std::max<LONG>(0, area.bottom - barHeight());
  return area;
}

RECT PageView::pagePixels() const {
  const int left = beginOf(place_.across, across_);
  const int top = beginOf(place_.down, down_);
  return {left, top, left + screenPixels(place_.across.length),
          top + screenPixels(place_.down.length)};
}

void PageView::placeBars() {
  const RECT visible = visiblePixels();
  MoveWindow(SCRHBAR, 0, visible.bottom, visible.right, barHeight(), TRUE);
  MoveWindow(SCRVBAR, visible.right, 0, barWidth(), visible.bottom, TRUE);
  MoveWindow(PICFILL, visible.right, visible.bottom, barWidth(), barHeight(), TRUE);
  setBars();
  InvalidateRect(handle(), nullptr, FALSE);
}

void PageView::setBars() const {
  const ViewSize view = size();
  setBar(SCRHBAR, place_.across, view.visibleWidth(), across_);
  setBar(SCRVBAR, place_.down, view.visibleHeight(), down_);
}

// The point of the page that was clicked stays where it is on the screen. Without a click, the
// point in the middle of the view's top edge does.
void PageView::showPage(const PagePlace& place) {
  const bool clicked = kept_.x >= 0;
  const double x = clicked ? screenTwips(kept_.x) : size().visibleWidth() / 2;
  const double y = clicked ? screenTwips(kept_.y) : 0;
  if (place != place_) {
    across_ = scrollKeeping(x, place_.across, across_, place.across);
    down_ = down_ == 0 && !clicked ? 0 : scrollKeeping(y, place_.down, down_, place.down);
    place_ = place;
  }
  setBars();
  InvalidateRect(handle(), nullptr, FALSE);
}

void PageView::showNewPicture() {
  down_ = 0;
  setBars();
  InvalidateRect(handle(), nullptr, FALSE);
}

void PageView::scrollTo(POINT position) {
  const RECT before = pagePixels();
  across_ = std::clamp<LONG>(position.x, 0, place_.across.scrollMax);
  down_ = std::clamp<LONG>(position.y, 0, place_.down.scrollMax);
  setBars();
  const RECT after = pagePixels();
  const RECT visible = visiblePixels();
  ScrollWindowEx(handle(), after.left - before.left, after.top - before.top, &visible, &visible,
                 nullptr, nullptr, SW_INVALIDATE);
  UpdateWindow(handle());
}

void PageView::scrollBy(int across, int down) {
  scrollTo({across_ + across, down_ + down});
}

void PageView::answerBar(HWND bar, int code) {
  const bool sideways = bar == SCRHBAR;
  const ViewSize view = size();
  const LONG now = sideways ? across_ : down_;
  const LONG last = (sideways ? place_.across : place_.down).scrollMax;
  const double visible = sideways ? view.visibleWidth() : view.visibleHeight();
  const LONG page = std::max<LONG>(lineStep, static_cast<LONG>(visible) - lineStep);
  LONG wanted{};
  switch (code) {
    case SB_LINEUP:
      wanted = now - lineStep;
      break;
    case SB_LINEDOWN:
      wanted = now + lineStep;
      break;
    case SB_PAGEUP:
      wanted = now - page;
      break;
    case SB_PAGEDOWN:
      wanted = now + page;
      break;
    case SB_TOP:
      wanted = 0;
      break;
    case SB_BOTTOM:
      wanted = last;
      break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION: {
      // Asked for, because the message holds only 16 bits of the position.
      SCROLLINFO info{};
      info.cbSize = sizeof info;
      info.fMask = SIF_TRACKPOS;
      GetScrollInfo(bar, SB_CTL, &info);
      wanted = info.nTrackPos;
      break;
    }
    default:
      return;
  }
  scrollTo(sideways ? POINT{wanted, down_} : POINT{across_, wanted});
}

bool PageView::answerKey(WPARAM key) {
  switch (key) {
    case VK_LEFT:
      scrollBy(-lineStep, 0);
      return true;
    case VK_RIGHT:
      scrollBy(lineStep, 0);
      return true;
    case VK_UP:
      scrollBy(0, -lineStep);
      return true;
    case VK_DOWN:
      scrollBy(0, lineStep);
      return true;
    default:
      return false;
  }
}

// A positive `delta` scrolls to the right or down.
void PageView::answerWheel(int delta, bool sideways) {
  UINT lines = 3;
  SystemParametersInfoA(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
  const ViewSize view = size();
  const double visible = sideways ? view.visibleWidth() : view.visibleHeight();
  const int notch = lines == WHEEL_PAGESCROLL ? static_cast<int>(visible)
                                              : static_cast<int>(std::min(lines, 100U)) * lineStep;
  // Some wheels send parts of a notch; they are added up.
  LONG& rest = sideways ? wheelRest_.cx : wheelRest_.cy;
  rest += delta * notch;
  const int step = static_cast<int>(rest) / WHEEL_DELTA;
  rest -= step * WHEEL_DELTA;
  if (sideways) {
    scrollBy(step, 0);
  } else {
    scrollBy(0, step);
  }
}

void PageView::answerClick(UINT button, POINT point) {
  SetFocus(handle());
  const RECT page = pagePixels();
  if (!PtInRect(&page, point) || !onPageClick) return;
  kept_ = point;
  onPageClick(button);
  kept_ = {-1, -1};
}

void PageView::drawShadow(HDC dc, const RECT& page) const {
  const COLORREF ground = GetSysColor(COLOR_APPWORKSPACE);
  const int reach = scaled(shadowReach);
  RECT lower = page;
  OffsetRect(&lower, 0, scaled(shadowDrop));
  for (int ring = reach; ring > 0; --ring) {
    RECT area = lower;
    InflateRect(&area, ring, ring);
    // The shadow fades with the square of the distance, which looks soft.
    const int nearness = reach + 1 - ring;
    fill(dc, area, darker(ground, shadowDepth * nearness * nearness / (reach * reach)));
  }
  RECT edge = page;
  InflateRect(&edge, 1, 1);
  fill(dc, edge, darker(ground, shadowDepth));
}

// Draws into a bitmap first, so that nothing flickers. After scrolling that is only a narrow strip.
void PageView::paint() {
  PAINTSTRUCT paint{};
  const HDC window = BeginPaint(handle(), &paint);
  const RECT& area = paint.rcPaint;
  const SIZE size{area.right - area.left, area.bottom - area.top};
  if (size.cx > 0 && size.cy > 0) {
    const values::MemoryDc memory(CreateCompatibleDC(window));
    const values::BitmapHandle bitmap(CreateCompatibleBitmap(window, size.cx, size.cy));
    if (memory && bitmap) {
      const values::Selected selected(memory.get(), bitmap.get());
      SetViewportOrgEx(memory.get(), -area.left, -area.top, nullptr);
      FillRect(memory.get(), &area, GetSysColorBrush(COLOR_APPWORKSPACE));
      const RECT page = pagePixels();
      if (!IsRectEmpty(&page)) {
        drawShadow(memory.get(), page);
        picture_.draw(memory.get(), page, area);
      }
      BitBlt(window, area.left, area.top, size.cx, size.cy, memory.get(), area.left, area.top,
             SRCCOPY);
    }
  }
  EndPaint(handle(), &paint);
}

LRESULT PageView::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_ERASEBKGND:
      return 1;
    case WM_PAINT:
      paint();
      return 0;
    case WM_SIZE:
      if (PICFILL != nullptr) placeBars();
      return 0;
    case WM_SYSCOLORCHANGE:
      InvalidateRect(handle(), nullptr, FALSE);
      return 0;
    case WM_HSCROLL:
    case WM_VSCROLL:
      answerBar(reinterpret_cast<HWND>(lParam), LOWORD(wParam));
      return 0;
    case WM_GETDLGCODE:
      return DLGC_WANTARROWS;
    case WM_KEYDOWN:
      if (answerKey(wParam)) return 0;
      break;
    case WM_MOUSEWHEEL:
      answerWheel(-GET_WHEEL_DELTA_WPARAM(wParam), (GET_KEYSTATE_WPARAM(wParam) & MK_SHIFT) != 0);
      return 0;
    case WM_MOUSEHWHEEL:
      answerWheel(GET_WHEEL_DELTA_WPARAM(wParam), true);
      return 0;
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
      answerClick(message, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
      return 0;
    case WM_NCDESTROY:
      SCRHBAR = SCRVBAR = PICFILL = nullptr;
      break;
    default:
      break;
  }
  return Window::handleMessage(message, wParam, lParam);
}

}  // namespace printing
