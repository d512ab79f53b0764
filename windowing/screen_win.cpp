#include "windowing/screen_win.h"

#include "windowing/handles_win.h"

namespace windowing {

int screenDpi() {
  static const int dpi = [] {
    const WindowDc screen(nullptr);
    const int reported = GetDeviceCaps(screen.get(), LOGPIXELSX);
    return reported > 0 ? reported : designDpi;
  }();
  return dpi;
}

Twips screenWidth() {
  return toTwips(Pixels{GetSystemMetrics(SM_CXSCREEN)}, screenDpi());
}
Twips screenHeight() {
  return toTwips(Pixels{GetSystemMetrics(SM_CYSCREEN)}, screenDpi());
}

int screenPixels(double twips) {
  return toPixels(Twips{twips}, screenDpi()).value;
}
double screenTwips(int pixels) {
  return toTwips(Pixels{pixels}, screenDpi()).value;
}

int scaled(int pixelsAt96) {
  return MulDiv(pixelsAt96, screenDpi(), designDpi);
}

}  // namespace windowing
