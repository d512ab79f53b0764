// What must hold for every sequence of bytes taken as a picture file.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "dialogs/image_header.h"

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const auto header = dialogs::readImageHeader(bytes);
  if (!header) return 0;
  require(header->width > 0 && header->width <= 0x7FFFFFFF);
  require(header->height > 0 && header->height <= 0x7FFFFFFF);
  require(header->depth >= 1 && header->depth <= 64);
  require(!dialogs::imageTypeName(header->type).empty());
  // What follows a header does not change it.
  const auto more = dialogs::readImageHeader(std::string(bytes) + "more");
  require(more && more->width == header->width && more->height == header->height &&
          more->depth == header->depth && more->type == header->type);
  return 0;
}
