#include "paper/page_drawing_win.h"

#include <algorithm>

#include "values/handles_win.h"
#include "values/units.h"

namespace paper {
namespace {

int pixelsAcross(HDC page, double twips) {
  return values::toPixels(values::Twips{twips}, GetDeviceCaps(page, LOGPIXELSX)).value;
}
int pixelsDown(HDC page, double twips) {
  return values::toPixels(values::Twips{twips}, GetDeviceCaps(page, LOGPIXELSY)).value;
}

}  // namespace

void drawPageText(HDC page, const TextFormat& format, double x, double y, const std::string& text) {
  constexpr int pointsPerInch = 72;
  const values::FontHandle font(CreateFontA(
      -MulDiv(format.points, GetDeviceCaps(page, LOGPIXELSY), pointsPerInch), 0, 0, 0,
      format.bold ? FW_BOLD : FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
      CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH | FF_DONTCARE, format.face.c_str()));
  const int length = static_cast<int>(text.size());
  const int left = pixelsAcross(page, x);
  const int top = pixelsDown(page, y);
  SIZE size{};
  const int saved = SaveDC(page);
  SelectObject(page, font.get());
  SetTextColor(page, RGB(0, 0, 0));
  SetBkMode(page, TRANSPARENT);
  SetTextAlign(page, TA_TOP);
  TextOutA(page, left, top, text.c_str(), length);
  GetTextExtentPoint32A(page, text.c_str(), length, &size);
  RestoreDC(page, saved);
  MoveToEx(page, left + static_cast<int>(size.cx), top, nullptr);
}

void drawPageRule(HDC page, double x, double y, double toX) {
  // Half a point. A line of one pixel could hardly be seen at a printer's resolution.
  constexpr double thickness = 10;
  const values::PenHandle pen(
      CreatePen(PS_SOLID, std::max(1, pixelsDown(page, thickness)), RGB(0, 0, 0)));
  const values::Selected selected(page, pen.get());
  MoveToEx(page, pixelsAcross(page, x), pixelsDown(page, y), nullptr);
  LineTo(page, pixelsAcross(page, toX), pixelsDown(page, y));
}

}  // namespace paper
