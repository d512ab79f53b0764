// The picture of a whole page. It records the drawing calls, so that it is sharp at any size.
#pragma once

#include <windows.h>

#include <memory>

#include "paper/text_format.h"
#include "values/handles_win.h"

namespace paper {

struct MetafileTraits {
  using Type = HENHMETAFILE;
  static Type empty() { return nullptr; }
  static void free(Type handle) { DeleteEnhMetaFile(handle); }
};
using MetafileHandle = values::UniqueHandle<MetafileTraits>;

class PixelSurface;

class PagePicture {
 public:
  PagePicture();
  PagePicture(const PagePicture&) = delete;
  PagePicture& operator=(const PagePicture&) = delete;
  ~PagePicture();

  /// Sets the size in twips. The old drawing stays until the next `begin`.
  void resize(double width, double height);
  [[nodiscard]] double width() const { return width_; }
  [[nodiscard]] double height() const { return height_; }

  /// Begins a new drawing on blank paper, in the device coordinates of `reference`; the origin is
  /// the paper's top-left corner. Raises when there is no memory for it.
  void begin(HDC reference);
  /// Device context to draw on, between `begin` and `finish`; null otherwise.
  [[nodiscard]] HDC dc() const { return dc_; }
  void finish();

  /// Shows the picture, smoothly scaled, on white paper that fills `place`. Draws only the part of
  /// it that lies in `part`.
  void draw(HDC device, const RECT& place, const RECT& part) const;
  /// The recording of the last drawing; null while there is none.
  [[nodiscard]] HENHMETAFILE recording() const { return recording_.get(); }

  /// Format of texts that the program itself writes on the picture.
  [[nodiscard]] const TextFormat& font() const { return font_; }
  void setFont(const TextFormat& font) { font_ = font; }

 private:
  [[nodiscard]] PixelSurface* surface(const SIZE& size) const;

  double width_ = 0;
  double height_ = 0;
  HDC dc_ = nullptr;
  MetafileHandle recording_;
  TextFormat font_;
  mutable std::unique_ptr<PixelSurface> surface_;  ///< the larger picture that is scaled down
};

}  // namespace paper
