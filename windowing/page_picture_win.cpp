#include "windowing/page_picture_win.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "windowing/system_error_win.h"
#include "windowing/units.h"

namespace windowing {
namespace {

// How many times finer than shown a picture is drawn before it is brought to its size: small
// pages need it to stay readable, large ones would only take memory.
int fineness(const SIZE& shown) {
  constexpr std::int64_t mostPixels = 6'000'000;
  constexpr int finest = 4;
  const std::int64_t pixels = std::int64_t{shown.cx} * shown.cy;
  int factor = finest;
  while (factor > 1 && pixels * factor * factor > mostPixels) --factor;
  return factor;
}

}  // namespace

void PagePicture::resize(double width, double height) {
  width_ = width;
  height_ = height;
}

void PagePicture::begin(HDC reference) {
  finish();
  constexpr double hundredthsOfMillimetre = 2540.0 / twipsPerInch;
  const RECT frame{0, 0, static_cast<LONG>(std::lround(width_ * hundredthsOfMillimetre)),
                   static_cast<LONG>(std::lround(height_ * hundredthsOfMillimetre))};
  dc_ = CreateEnhMetaFileA(reference, nullptr, &frame, nullptr);
  if (dc_ == nullptr) raiseLastError();
}

void PagePicture::finish() {
  if (dc_ == nullptr) return;
  recording_.reset(CloseEnhMetaFile(dc_));
  dc_ = nullptr;
}

void PagePicture::draw(HDC device, const RECT& place) const {
  const SIZE shown{place.right - place.left, place.bottom - place.top};
  if (shown.cx <= 0 || shown.cy <= 0) return;
  const int factor = fineness(shown);
  const RECT all{0, 0, shown.cx * factor, shown.cy * factor};
  const MemoryDc memory(CreateCompatibleDC(device));
  const BitmapHandle bitmap(CreateCompatibleBitmap(device, all.right, all.bottom));
  if (!memory || !bitmap) return;
  const Selected selected(memory.get(), bitmap.get());
  FillRect(memory.get(), &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
  if (recording_) PlayEnhMetaFile(memory.get(), recording_.get(), &all);
  SetStretchBltMode(device, HALFTONE);
  SetBrushOrgEx(device, 0, 0, nullptr);
  StretchBlt(device, place.left, place.top, shown.cx, shown.cy, memory.get(), 0, 0, all.right,
             all.bottom, SRCCOPY);
}

}  // namespace windowing
