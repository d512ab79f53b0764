#include "document/writer.h"

#include <string>

namespace document {

void write(const ContactList& list, const std::function<void(std::string_view)>& sink) {
  std::string piece;
  const auto flush = [&] {
    if (!piece.empty()) sink(piece);
    piece.clear();
  };
  for (int index = 0; index < list.count(); ++index) {
    const ContactList::Texts texts = list.texts(index);
    for (const Slot slot : slotAtFilePosition) {
      const std::string_view text = texts[static_cast<std::size_t>(slot)];
      piece += '"';
      if (text.size() < writeChunk / 4) {
        piece += text;
      } else {  // a text of that size is not copied
        flush();
        sink(text);
      }
      piece += "\"\r\n";
      if (piece.size() >= writeChunk) flush();
    }
  }
  flush();
}

}  // namespace document
