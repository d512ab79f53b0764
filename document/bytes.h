// The bytes of a document file. The storage is not set to zero before it is filled, because that
// would be one more pass over a large file.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string_view>

namespace document {

/// A block of bytes, filled once by its maker. Moving it does not move the bytes.
class Bytes {
 public:
  Bytes() = default;
  /// `size` bytes of any content. Throws std::bad_alloc.
  explicit Bytes(std::size_t size) : data_(new char[size]), size_(size) {}
  /// A copy of `text`.
  explicit Bytes(std::string_view text) : Bytes(text.size()) {
    std::copy(text.begin(), text.end(), data_.get());
  }

  [[nodiscard]] char* data() { return data_.get(); }
  [[nodiscard]] std::size_t size() const { return size_; }
  [[nodiscard]] std::string_view view() const { return {data_.get(), size_}; }
  /// Drops all but the first `size` bytes (for a file that became shorter while it was read).
  void shrink(std::size_t size) { size_ = std::min(size_, size); }

 private:
  std::unique_ptr<char[]> data_;
  std::size_t size_ = 0;
};

}  // namespace document
