// Reading the header of a picture file.
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

/// How much of a file is read to find its header. In a JPEG file the header comes behind previews
/// and colour profiles.
constexpr std::size_t imageHeaderBytes = std::size_t{1024} * 1024;

/// The header at the start of `bytes`. No value where they are no picture of a known type, or the
/// header is incomplete or has impossible numbers.
[[nodiscard]] std::optional<ImageHeader> readImageHeader(std::string_view bytes);

/// "BMP", "PNG", "JPEG" or "GIF".
[[nodiscard]] std::string_view imageTypeName(ImageType type);

}  // namespace dialogs
