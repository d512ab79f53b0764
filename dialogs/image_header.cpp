#include "dialogs/image_header.h"

#include <algorithm>
#include <array>

namespace dialogs {
namespace {

using namespace std::string_view_literals;

// Reads numbers from bytes. A number past the end makes `whole` false, so that callers need to
// check only once.
class Bytes {
 public:
  explicit Bytes(std::string_view bytes) : bytes_(bytes) {}

  [[nodiscard]] bool whole() const { return whole_; }
  [[nodiscard]] std::size_t size() const { return bytes_.size(); }

  std::uint32_t byte(std::size_t at) {
    if (at < bytes_.size()) return static_cast<unsigned char>(bytes_[at]);
    whole_ = false;
    return 0;
  }
  std::uint32_t little16(std::size_t at) { return byte(at) | byte(at + 1) << 8; }
  std::uint32_t little32(std::size_t at) { return little16(at) | little16(at + 2) << 16; }
  std::uint32_t big16(std::size_t at) { return byte(at) << 8 | byte(at + 1); }
  std::uint32_t big32(std::size_t at) { return big16(at) << 16 | big16(at + 2); }

 private:
  std::string_view bytes_;
  bool whole_ = true;
};

using Header = std::optional<ImageHeader>;

// The header, if all its bytes were there and the picture has a size.
Header checked(const Bytes& bytes, const ImageHeader& header) {
  const bool possible =
      bytes.whole() && header.width != 0 && header.height != 0 && header.depth != 0;
  return possible ? Header(header) : std::nullopt;
}

Header readBmp(Bytes bytes) {
  constexpr std::uint32_t coreSize = 12;  // the old header, with sides of 16 bits
  constexpr std::uint32_t infoSize = 40;  // the smallest of the later headers
  constexpr std::uint32_t signBit = 0x80000000U;
  constexpr std::array<std::uint32_t, 6> depths{1, 4, 8, 16, 24, 32};

  const std::uint32_t headerSize = bytes.little32(14);
  ImageHeader header{ImageType::bmp};
  std::uint32_t depth = 0;
  if (headerSize == coreSize) {
    header.width = bytes.little16(18);
    header.height = bytes.little16(20);
    depth = bytes.little16(24);
  } else if (headerSize >= infoSize) {
    header.width = bytes.little32(18);
    header.height = bytes.little32(22);
    depth = bytes.little16(28);
    if ((header.width & signBit) != 0) return std::nullopt;
    // A negative height means that the top row comes first.
    if ((header.height & signBit) != 0) header.height = 0U - header.height;
    if (header.height == signBit) return std::nullopt;
  }
  if (std::find(depths.begin(), depths.end(), depth) != depths.end())
    header.depth = static_cast<int>(depth);
  return checked(bytes, header);
}

/// Kinds of PNG pixels, by their number in the header.
struct PngColour {
  std::uint32_t type;
  int samples;  ///< per pixel
  int leastBits;
  int mostBits;
};
constexpr PngColour pngColours[] = {
    {0, 1, 1, 16},  // grey
    {2, 3, 8, 16},  // red, green, blue
    {3, 1, 1, 8},   // indexes into a palette
    {4, 2, 8, 16},  // grey and alpha
    {6, 4, 8, 16},  // red, green, blue and alpha
};

Header readPng(Bytes bytes) {
  constexpr std::uint32_t chunkSize = 13;
  constexpr std::uint32_t chunkName = 0x49484452;  // "IHDR"
  constexpr std::uint32_t longestSide = 0x7FFFFFFF;
  if (bytes.big32(8) != chunkSize || bytes.big32(12) != chunkName) return std::nullopt;
  ImageHeader header{ImageType::png, bytes.big32(16), bytes.big32(20), 0};
  if (header.width > longestSide || header.height > longestSide) return std::nullopt;
  const auto bits = static_cast<int>(bytes.byte(24));
  const std::uint32_t type = bytes.byte(25);
  const bool powerOfTwo = bits > 0 && (bits & (bits - 1)) == 0;
  for (const PngColour& colour : pngColours)
    if (colour.type == type && powerOfTwo && bits >= colour.leastBits && bits <= colour.mostBits)
      header.depth = bits * colour.samples;
  return checked(bytes, header);
}

// Markers of a JPEG file that begin a frame. The three numbers left out are two tables and a
// reserved one.
constexpr bool beginsFrame(std::uint32_t marker) {
  return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

// Markers that have no length behind them.
constexpr bool standsAlone(std::uint32_t marker) {
  return marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8);
}

Header readJpegFrame(Bytes bytes, std::size_t at) {
  constexpr std::uint32_t frameSize = 8;  // of a frame without components
  constexpr std::uint32_t componentSize = 3;
  const std::uint32_t length = bytes.big16(at);
  const std::uint32_t precision = bytes.byte(at + 2);
  const std::uint32_t components = bytes.byte(at + 7);
  const bool possible = precision >= 2 && precision <= 16 && components >= 1 && components <= 4 &&
                        length == frameSize + components * componentSize;
  if (!possible) return std::nullopt;
  return checked(bytes, {ImageType::jpeg, bytes.big16(at + 5), bytes.big16(at + 3),
                         static_cast<int>(precision * components)});
}

Header readJpeg(Bytes bytes) {
  constexpr std::uint32_t fill = 0xFF;
  constexpr std::uint32_t scan = 0xDA;
  constexpr std::uint32_t end = 0xD9;
  std::size_t at = 2;
  while (at < bytes.size()) {
    if (bytes.byte(at) != fill) return std::nullopt;
    while (at < bytes.size() && bytes.byte(at) == fill) ++at;
    const std::uint32_t marker = bytes.byte(at++);
    if (standsAlone(marker)) continue;
    // No frame can follow the first scan.
    if (marker == 0 || marker == scan || marker == end) return std::nullopt;
    if (beginsFrame(marker)) return readJpegFrame(bytes, at);
    const std::uint32_t length = bytes.big16(at);
    if (length < 2) return std::nullopt;
    at += length;
  }
  return std::nullopt;
}

Header readGif(Bytes bytes) {
  constexpr std::uint32_t hasTable = 0x80;
  constexpr std::uint32_t sizeBits = 0x07;
  const std::uint32_t flags = bytes.byte(10);
  // A file without a colour table tells the depth of the original colours.
  const std::uint32_t bits = (flags & hasTable) != 0 ? flags & sizeBits : flags >> 4 & sizeBits;
  return checked(
      bytes, {ImageType::gif, bytes.little16(6), bytes.little16(8), static_cast<int>(bits) + 1});
}

struct Signature {
  std::string_view bytes;
  Header (*read)(Bytes bytes);
};
constexpr Signature signatures[] = {
    {"BM"sv, readBmp},
    {"\x89PNG\r\n\x1A\n"sv, readPng},
    {"\xFF\xD8\xFF"sv, readJpeg},
    {"GIF87a"sv, readGif},
    {"GIF89a"sv, readGif},
};

}  // namespace

std::optional<ImageHeader> readImageHeader(std::string_view bytes) {
  for (const Signature& signature : signatures)
    if (bytes.substr(0, signature.bytes.size()) == signature.bytes)
      return signature.read(Bytes(bytes));
  return std::nullopt;
}

std::string_view imageTypeName(ImageType type) {
  constexpr std::array<std::string_view, 4> names{"BMP", "PNG", "JPEG", "GIF"};
  return names[static_cast<std::size_t>(type)];
}

}  // namespace dialogs
