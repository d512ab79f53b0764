#include "windowing/indexed_picture.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

namespace windowing {
namespace {

using Bytes = std::vector<std::byte>;

void append(Bytes& bytes, std::initializer_list<unsigned> values, int size = 1) {
  for (const unsigned value : values)
    for (int i = 0; i < size; ++i) bytes.push_back(static_cast<std::byte>(value >> 8 * i));
}

// Three pixels wide, two high: blue, half clear red, clear in the lower row, the same
// turned round in the upper one.
Bytes sample(unsigned bits) {
  Bytes bytes;
  append(bytes, {40, 3, 2}, 4);
  append(bytes, {1, bits}, 2);
  append(bytes, {0, 0, 0, 0, 3, 0}, 4);
  append(bytes, {0xFF2E78C9, 0x80FF0013, 0x00000000}, 4);
  if (bits == 8)
    append(bytes, {0, 1, 2, 99, 2, 1, 0, 99});
  else
    append(bytes, {0x01, 0x29, 99, 99, 0x21, 0x09, 99, 99});
  return bytes;
}

TEST(IndexedPicture, UnpacksRowsAndAlpha) {
  for (const unsigned bits : {4U, 8U}) {
    const auto straight = unpackPicture(sample(bits), Alpha::straight);
    ASSERT_TRUE(straight) << bits;
    EXPECT_EQ(straight->pixels,
              (std::vector<std::uint32_t>{0xFF2E78C9, 0x80FF0013, 0, 0, 0x80FF0013, 0xFF2E78C9}))
        << bits;
    EXPECT_EQ(unpackPicture(sample(bits), Alpha::premultiplied)->pixels[1], 0x8080000AU);
  }
}

}  // namespace
}  // namespace windowing
