#include "paper/page_picture_win.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <span>

#include "paper/wine/smooth_shrink.h"
#include "values/system_error_win.h"
#include "values/units.h"

namespace paper {
namespace {

// A picture is drawn this many times larger than it is shown, and then scaled down, so that letters
// can be read. A small picture needs a larger factor.
int fineness(const SIZE& shown) {
  constexpr std::int64_t mostPixels = 16'000'000;
  constexpr std::int64_t smallPage = 300'000;  // pixels; here letters are only a few pixels high
  const std::int64_t pixels = std::int64_t{shown.cx} * shown.cy;
  int factor = pixels < smallPage ? 4 : 3;
  while (factor > 1 && pixels * factor * factor > mostPixels) --factor;
  return factor;
}

// The most pixels of a surface that is made large enough for the picture before as well as this
// one.
constexpr LONG mostKept = 4'000'000;

// How many rows are drawn at a time. Drawing in strips limits the memory for a large picture.
int rowsAtOnce(LONG width, int factor) {
  constexpr LONG pixels = 2'000'000;
  return std::max<int>(1, pixels / (width * factor * factor));
}

}  // namespace

// A bitmap in memory whose pixels can be read and written directly; the top row comes first.
class PixelSurface {
 public:
  explicit PixelSurface(const SIZE& size)
      : size_(size),
        count_(static_cast<std::size_t>(size.cx) * static_cast<std::size_t>(size.cy)),
        dc_(CreateCompatibleDC(nullptr)) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.cx;
    info.bmiHeader.biHeight = -size.cy;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    bitmap_.reset(CreateDIBSection(dc_.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    bits_ = static_cast<std::uint32_t*>(bits);
    if (bitmap_) old_ = SelectObject(dc_.get(), bitmap_.get());
  }
  PixelSurface(const PixelSurface&) = delete;
  PixelSurface& operator=(const PixelSurface&) = delete;
  ~PixelSurface() {
    if (bitmap_) SelectObject(dc_.get(), old_);
  }
  [[nodiscard]] bool usable() const { return bits_ != nullptr; }
  [[nodiscard]] const SIZE& size() const { return size_; }
  [[nodiscard]] HDC dc() const { return dc_.get(); }
  [[nodiscard]] std::span<std::uint32_t> pixels() const { return {bits_, count_}; }

 private:
  SIZE size_;
  std::size_t count_;
  std::uint32_t* bits_ = nullptr;
  values::MemoryDc dc_;
  values::BitmapHandle bitmap_;
  HGDIOBJ old_ = nullptr;
};

PagePicture::PagePicture() = default;

PagePicture::~PagePicture() {
  finish();
}

// The surface is kept for the next drawing, since getting new memory takes longer than drawing.
PixelSurface* PagePicture::surface(const SIZE& size) const {
  const SIZE had = surface_ ? surface_->size() : SIZE{};
  if (had.cx < size.cx || had.cy < size.cy) {
    const SIZE both{std::max(had.cx, size.cx), std::max(had.cy, size.cy)};
    surface_.reset();
    surface_ = std::make_unique<PixelSurface>(both.cx <= mostKept / both.cy ? both : size);
  }
  if (!surface_->usable()) surface_.reset();  // no memory; the next drawing tries again
  return surface_.get();
}

void PagePicture::resize(double width, double height) {
  width_ = width;
  height_ = height;
}

void PagePicture::begin(HDC reference) {
  finish();
  constexpr double hundredthsOfMillimetre = 2540.0 / values::twipsPerInch;
  const RECT frame{0, 0, static_cast<LONG>(std::lround(width_ * hundredthsOfMillimetre)),
                   static_cast<LONG>(std::lround(height_ * hundredthsOfMillimetre))};
  dc_ = CreateEnhMetaFileA(reference, nullptr, &frame, nullptr);
  if (dc_ == nullptr) values::raiseLastError();
}

void PagePicture::finish() {
  if (dc_ == nullptr) return;
  recording_.reset(CloseEnhMetaFile(dc_));
  dc_ = nullptr;
}

void PagePicture::draw(HDC device, const RECT& place, const RECT& part) const {
  const SIZE whole{place.right - place.left, place.bottom - place.top};
  RECT visible{};
  if (!IntersectRect(&visible, &place, &part)) return;
  // From the size of the whole picture, so that all parts look the same.
  const int factor = fineness(whole);
  const int width = visible.right - visible.left;
  const int rows = std::min<int>(rowsAtOnce(width, factor), visible.bottom - visible.top);
  const PixelSurface* fine = surface({width * factor, rows * factor});
  const PixelSurface coarse({width, rows});
  if (fine == nullptr || !coarse.usable()) return;
  const RECT band{0, 0, width * factor, rows * factor};
  for (LONG top = visible.top; top < visible.bottom; top += rows) {
    FillRect(fine->dc(), &band, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    RECT page{0, 0, whole.cx * factor, whole.cy * factor};
    OffsetRect(&page, (place.left - visible.left) * factor, (place.top - top) * factor);
    if (recording_) PlayEnhMetaFile(fine->dc(), recording_.get(), &page);
    GdiFlush();
    wine::shrinkSmoothly(fine->pixels(), fine->size().cx, coarse.pixels(), width, factor);
    BitBlt(device, visible.left, top, width, std::min<int>(rows, visible.bottom - top), coarse.dc(),
           0, 0, SRCCOPY);
  }
}

}  // namespace paper
