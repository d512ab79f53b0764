#include "document/writer.h"

#include <string>

namespace document {

namespace {

// Joins small pieces into larger ones before it hands them to the sink.
class Pieces {
 public:
  explicit Pieces(const std::function<void(std::string_view)>& sink) : sink_(sink) {}

  void add(std::string_view text) {
    if (text.size() >= writeChunk / 4) {
      flush();
      sink_(text);
      return;
    }
    gathered_ += text;
    if (gathered_.size() >= writeChunk) flush();
  }

  void flush() {
    if (!gathered_.empty()) sink_(gathered_);
    gathered_.clear();
  }

 private:
  const std::function<void(std::string_view)>& sink_;
  std::string gathered_;
};

bool follows(std::string_view next, std::string_view before) {
  return !before.empty() && before.data() + before.size() == next.data();
}

void writeLines(const ContactList::Texts& texts, Pieces& pieces) {
  for (const Slot slot : slotAtFilePosition) {
    pieces.add("\"");
    pieces.add(texts[static_cast<std::size_t>(slot)]);
    pieces.add("\"\r\n");
  }
}

}  // namespace

void write(const ContactList& list, const std::function<void(std::string_view)>& sink) {
  Pieces pieces(sink);
  // Contacts that stand one behind the other in the file they were read from are written as one
  // piece.
  std::string_view row;
  for (int index = 0; index < list.count(); ++index) {
    const std::string_view lines = list.linesInFile(index);
    if (!lines.empty() && follows(lines, row)) {
      row = {row.data(), row.size() + lines.size()};
      continue;
    }
    pieces.add(row);
    row = lines;
    if (lines.empty()) writeLines(list.texts(index), pieces);
  }
  pieces.add(row);
  pieces.flush();
}

}  // namespace document
