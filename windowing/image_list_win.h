// Small pictures with transparency, from a strip resource: enabled and disabled, at the size
// that fits the screen's resolution.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <span>

#include "values/handles_win.h"

namespace windowing {

struct ImageListTraits {
  using Type = HIMAGELIST;
  static Type empty() { return nullptr; }
  static void free(Type handle) { ImageList_Destroy(handle); }
};
using ImageListHandle = values::UniqueHandle<ImageListTraits>;

/// A strip of square pictures: their size in pixels and the bitmap resource that holds them
/// side by side, with 32 bits a pixel and straight alpha.
struct ImageStrip {
  int size;
  int resource;
};

class ImageList {
 public:
  /// Takes the largest strip whose pictures are not larger than 16 pixels at 96 dots per inch,
  /// scaled to this screen. The list is empty where the resource is missing.
  explicit ImageList(std::span<const ImageStrip> strips);

  [[nodiscard]] HIMAGELIST enabled() const { return enabled_.get(); }
  [[nodiscard]] HIMAGELIST disabled() const { return disabled_.get(); }
  /// Width and height of a picture, pixels.
  [[nodiscard]] int size() const { return size_; }
  [[nodiscard]] int count() const;
  void draw(HDC dc, int x, int y, int index, bool enabled) const;

 private:
  int size_ = 0;
  ImageListHandle enabled_;
  ImageListHandle disabled_;
};

}  // namespace windowing
