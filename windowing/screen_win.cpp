#include "windowing/screen_win.h"

#include "values/handles_win.h"

namespace windowing {

int screenDpi() {
  static const int dpi = [] {
    const values::WindowDc screen(nullptr);
    const int reported = GetDeviceCaps(screen.get(), LOGPIXELSX);
    return reported > 0 ? reported : values::designDpi;
  }();
  return dpi;
}

values::Twips screenWidth() {
  return values::toTwips(values::Pixels{GetSystemMetrics(SM_CXSCREEN)}, screenDpi());
}
values::Twips screenHeight() {
  return values::toTwips(values::Pixels{GetSystemMetrics(SM_CYSCREEN)}, screenDpi());
}

int screenPixels(double twips) {
  return values::toPixels(values::Twips{twips}, screenDpi()).value;
}
double screenTwips(int pixels) {
  return values::toTwips(values::Pixels{pixels}, screenDpi()).value;
}

int scaled(int pixelsAt96) {
  return MulDiv(pixelsAt96, screenDpi(), values::designDpi);
}

}  // namespace windowing
