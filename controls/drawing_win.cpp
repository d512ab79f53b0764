#include "controls/drawing_win.h"

namespace controls {

bool highContrast() {
  HIGHCONTRASTA setting{};
  setting.cbSize = sizeof setting;
  return SystemParametersInfoA(SPI_GETHIGHCONTRAST, sizeof setting, &setting, 0) &&
         (setting.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

COLORREF mixedColour(int under, int over, int percent) {
  if (highContrast()) return GetSysColor(percent >= 50 ? over : under);
  const COLORREF a = GetSysColor(under);
  const COLORREF b = GetSysColor(over);
  const auto mix = [percent](int from, int to) {
    return static_cast<BYTE>(from + (to - from) * percent / 100);
  };
  return RGB(mix(GetRValue(a), GetRValue(b)), mix(GetGValue(a), GetGValue(b)),
             mix(GetBValue(a), GetBValue(b)));
}

void fill(HDC dc, const RECT& area, COLORREF colour) {
  const values::BrushHandle brush(CreateSolidBrush(colour));
  FillRect(dc, &area, brush.get());
}

void frame(HDC dc, const RECT& area, COLORREF colour, int thickness) {
  const values::BrushHandle brush(CreateSolidBrush(colour));
  RECT ring = area;
  for (int i = 0; i < thickness; ++i) {
    FrameRect(dc, &ring, brush.get());
    InflateRect(&ring, -1, -1);
  }
}

Buffered::Buffered(HDC target, const RECT& area)
    : target_(target),
      area_(area),
      memory_(CreateCompatibleDC(target)),
      bitmap_(CreateCompatibleBitmap(target, widthOf(area), heightOf(area))) {
  old_ = SelectObject(memory_.get(), bitmap_.get());
  SetViewportOrgEx(memory_.get(), -area.left, -area.top, nullptr);
}

Buffered::~Buffered() {
  BitBlt(target_, area_.left, area_.top, widthOf(area_), heightOf(area_), memory_.get(), area_.left,
         area_.top, SRCCOPY);
  SelectObject(memory_.get(), old_);
}

}  // namespace controls
