#include "dialogs/image_header.h"

#include <gtest/gtest.h>

#include <string>

namespace dialogs {
namespace {

std::string little(std::uint32_t value, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i) text += static_cast<char>(value >> 8 * i & 0xFF);
  return text;
}
std::string big(std::uint32_t value, int bytes) {
  const std::string text = little(value, bytes);
  return {text.rbegin(), text.rend()};
}

std::string bmp(std::uint32_t width, std::uint32_t height, std::uint32_t depth,
                std::uint32_t headerSize = 40) {
  const int side = headerSize == 12 ? 2 : 4;
  return "BM" + std::string(12, '\0') + little(headerSize, 4) + little(width, side) +
         little(height, side) + little(1, 2) + little(depth, 2);
}
std::string png(std::uint32_t width, std::uint32_t height, std::uint32_t bits,
                std::uint32_t colour) {
  return std::string("\x89PNG\r\n\x1A\n", 8) + big(13, 4) + "IHDR" + big(width, 4) +
         big(height, 4) + big(bits, 1) + big(colour, 1);
}
std::string gif(std::uint32_t width, std::uint32_t height, std::uint32_t flags,
                const std::string& version = "GIF89a") {
  return version + little(width, 2) + little(height, 2) + little(flags, 1);
}
std::string segment(unsigned marker, const std::string& content) {
  return "\xFF" + big(marker, 1) + big(static_cast<std::uint32_t>(content.size()) + 2, 2) + content;
}
std::string frame(unsigned marker, std::uint32_t width, std::uint32_t height,
                  std::uint32_t components, std::uint32_t precision = 8) {
  return segment(marker, big(precision, 1) + big(height, 2) + big(width, 2) + big(components, 1) +
                             std::string(3 * static_cast<std::size_t>(components), '\1'));
}
const std::string jpegStart = "\xFF\xD8";

// "PNG 3x2 24", or "none".
std::string read(const std::string& bytes) {
  const auto header = readImageHeader(bytes);
  if (!header) return "none";
  return std::string(imageTypeName(header->type)) + " " + std::to_string(header->width) + "x" +
         std::to_string(header->height) + " " + std::to_string(header->depth);
}

TEST(ImageHeader, TellsTypeSidesAndDepth) {
  const std::string preview = segment(0xE1, std::string(60000, '\xFF'));
  const std::pair<std::string, const char*> cases[] = {
      {bmp(3, 2, 1, 12), "BMP 3x2 1"},
      {bmp(65535, 65535, 4, 12), "BMP 65535x65535 4"},
      {bmp(640, 480, 8, 124), "BMP 640x480 8"},
      {bmp(10, static_cast<std::uint32_t>(-20), 32), "BMP 10x20 32"},
      {png(3, 2, 8, 2), "PNG 3x2 24"},
      {png(3, 2, 16, 6), "PNG 3x2 64"},
      {png(300, 200, 4, 3), "PNG 300x200 4"},
      {png(3, 2, 8, 4), "PNG 3x2 16"},
      {gif(320, 200, 0xF7), "GIF 320x200 8"},
      {gif(320, 200, 0x30, "GIF87a"), "GIF 320x200 4"},
      {jpegStart + segment(0xE0, "JFIF") + frame(0xC0, 800, 600, 3), "JPEG 800x600 24"},
      {jpegStart + segment(0xC4, "tables") + frame(0xC2, 800, 600, 1), "JPEG 800x600 8"},
      {jpegStart + preview + preview + frame(0xC1, 8, 6, 4), "JPEG 8x6 32"},
      {jpegStart + "\xFF\xFF\xFF\x01\xFF\xD0" + frame(0xCF, 9, 9, 3, 12), "JPEG 9x9 36"}};
  for (const auto& [bytes, expected] : cases) {
    EXPECT_EQ(read(bytes), expected);
    // Cut anywhere, a header says nothing; but the components of a frame are not looked at.
    const std::size_t needed = bytes.starts_with(jpegStart) ? bytes.size() - 12 : bytes.size();
    const std::size_t step = bytes.size() > 1000 ? 997 : 1;
    for (std::size_t cut = 0; cut < needed; cut += step)
      EXPECT_EQ(read(bytes.substr(0, cut)), "none") << expected << " cut at " << cut;
  }
}

TEST(ImageHeader, BelievesNoLies) {
  const std::string lies[] = {
      "",
      "text",
      bmp(0, 2, 24),
      bmp(3, 0, 24),
      bmp(static_cast<std::uint32_t>(-3), 2, 24),
      bmp(3, 0x80000000U, 24),
      bmp(3, 2, 0),
      bmp(3, 2, 7),
      bmp(3, 2, 24, 13),
      png(0, 2, 8, 2),
      png(3, 0x80000000U, 8, 2),
      png(3, 2, 0, 2),
      png(3, 2, 3, 0),
      png(3, 2, 4, 2),
      png(3, 2, 16, 3),
      png(3, 2, 8, 5),
      "\x89PNG\r\n\x1A\n" + std::string(40, '\0'),
      gif(0, 2, 0xF7),
      gif(3, 0, 0xF7),
      gif(3, 2, 0xF7, "GIF88a"),
      jpegStart + frame(0xC0, 0, 600, 3),
      jpegStart + frame(0xC0, 800, 0, 3),
      jpegStart + frame(0xC0, 800, 600, 0),
      jpegStart + frame(0xC0, 800, 600, 5),
      jpegStart + frame(0xC0, 800, 600, 3, 99),
      jpegStart + frame(0xC8, 800, 600, 3),
      jpegStart + segment(0xDA, "scan") + frame(0xC0, 800, 600, 3),
      jpegStart + "\xFF\xD9" + frame(0xC0, 800, 600, 3),
      jpegStart + std::string("\xFF\xE0\0\1", 4) + frame(0xC0, 800, 600, 3),
      jpegStart + std::string("\xFF\xE0\0\0", 4) + frame(0xC0, 800, 600, 3),
      jpegStart + segment(0xE0, "JFIF") + "junk" + frame(0xC0, 800, 600, 3),
      jpegStart + std::string(5000, '\xFF'),
  };
  for (const std::string& lie : lies) EXPECT_EQ(read(lie), "none") << &lie - lies;
}

}  // namespace
}  // namespace dialogs
