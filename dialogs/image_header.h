// What the first bytes of a picture file say of the picture.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace dialogs {

enum class ImageType { bmp, png, jpeg, gif };

struct ImageHeader {
  ImageType type = ImageType::bmp;
  std::uint32_t width = 0;   ///< pixels, never 0
  std::uint32_t height = 0;  ///< pixels, never 0
  int depth = 0;             ///< bits per pixel
};

/// As much of a file as is worth reading for its header. That of a JPEG file comes last of what
/// stands before the picture, behind previews and colour profiles.
constexpr std::size_t imageHeaderBytes = std::size_t{1024} * 1024;

/// The header at the start of `bytes`; nothing where they are no picture of a known type, or
/// where its header is cut or says what cannot be.
[[nodiscard]] std::optional<ImageHeader> readImageHeader(std::string_view bytes);

/// "BMP", "PNG", "JPEG" or "GIF".
[[nodiscard]] std::string_view imageTypeName(ImageType type);

}  // namespace dialogs
