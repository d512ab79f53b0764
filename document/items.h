// Items of text that commas and line ends divide; a document file is a row of them.
#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>

namespace document {

/// Reads one item after the other. Blanks before an item are skipped (blanks only: a tab is
/// text). A quoted item runs to the next double quote, line breaks included; what follows the
/// quote is dropped up to a comma or the line end. An item without quotes runs to a comma or the
/// line end. CR LF, CR and LF each end one line. All other bytes are text, NUL and 0x1A too.
class ItemScanner {
 public:
  explicit ItemScanner(std::string_view bytes, std::size_t start = 0)
      : begin_(bytes.data()),
        at_(start < bytes.size() ? begin_ + start : begin_ + bytes.size()),
        end_(begin_ + bytes.size()) {}

  [[nodiscard]] bool atEnd() const { return at_ == end_; }
  [[nodiscard]] std::size_t position() const { return static_cast<std::size_t>(at_ - begin_); }

  /// Skips the next item if it is a line as this program writes it: a quote, text, a quote, CR LF.
  /// Returns false and skips nothing for any other item.
  bool skipOwnLine() {
    if (end_ - at_ < 4 || *at_ != '"') return false;
    const void* quote = std::memchr(at_ + 1, '"', static_cast<std::size_t>(end_ - at_ - 1));
    if (quote == nullptr) return false;
    const char* const close = static_cast<const char*>(quote);
    if (end_ - close < 3 || close[1] != '\r' || close[2] != '\n') return false;
    at_ = close + 3;
    return true;
  }

  /// Sets `item` to the next item, a view of the scanned bytes. False when no bytes are left. An
  /// item whose quote is never closed runs to the end of the bytes. The last line needs no line
  /// end.
  bool next(std::string_view& item) {
    if (at_ == end_) return false;
    while (*at_ == ' ')
      if (++at_ == end_) {
        item = {};
        return true;
      }
    const bool quoted = *at_ == '"';
    const char* const text = quoted ? at_ + 1 : at_;
    if (quoted) {
      const void* quote = std::memchr(text, '"', static_cast<std::size_t>(end_ - text));
      const char* const close = quote != nullptr ? static_cast<const char*>(quote) : end_;
      item = {text, static_cast<std::size_t>(close - text)};
      if (close == end_) {
        at_ = end_;
        return true;
      }
      at_ = close + 1;
    }
    while (at_ != end_ && *at_ != ',' && *at_ != '\r' && *at_ != '\n') ++at_;
    if (!quoted) item = {text, static_cast<std::size_t>(at_ - text)};
    if (at_ != end_ && *at_++ == '\r' && at_ != end_ && *at_ == '\n') ++at_;
    return true;
  }

 private:
  const char* begin_;
  const char* at_;
  const char* end_;
};

}  // namespace document
