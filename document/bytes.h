// The bytes of a document file: storage that is not zeroed before it is filled, for a large
// file would otherwise be walked through once more.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string_view>

namespace document {

/// A block of bytes, filled once by whoever made it. Moving keeps the bytes where they are.
class Bytes {
 public:
  Bytes() = default;
  /// Room for `size` bytes of arbitrary content; throws std::bad_alloc where there is none.
  explicit Bytes(std::size_t size) : data_(new char[size]), size_(size) {}
  /// A copy of `text`.
  explicit Bytes(std::string_view text) : Bytes(text.size()) {
    std::copy(text.begin(), text.end(), data_.get());
  }

  [[nodiscard]] char* data() { return data_.get(); }
  [[nodiscard]] std::size_t size() const { return size_; }
  [[nodiscard]] std::string_view view() const { return {data_.get(), size_}; }
  /// Forgets what lies past the first `size` bytes (a file that grew shorter while read).
  void shrink(std::size_t size) { size_ = std::min(size_, size); }

 private:
  std::unique_ptr<char[]> data_;
  std::size_t size_ = 0;
};

}  // namespace document
