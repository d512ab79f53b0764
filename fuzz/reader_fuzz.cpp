// What must hold for every sequence of bytes taken as a document.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "document/ContactList.h"
#include "document/reader.h"
#include "document/writer.h"

namespace {

using document::ContactList;
using document::ReadResult;
using document::Slot;

void require(bool holds) {
  if (!holds) std::abort();
}

std::string written(const ContactList& list) {
  std::string text;
  document::write(list, [&](std::string_view piece) { text += piece; });
  return text;
}

/// Reads `text` and checks what holds of any reading; true when no field has a double quote.
bool readChecked(std::string_view text, ContactList& list, ReadResult* result = nullptr) {
  const document::ReadOutcome outcome = document::read(text, list);
  require(outcome.contacts == list.count() && list.current() == 0);
  // An item takes a byte at least, were it only the comma or line end behind it.
  require(static_cast<std::size_t>(outcome.contacts) * document::fieldCount <= text.size());
  require(outcome.result != ReadResult::overflow || list.count() == ContactList::maxCount);
  if (result != nullptr) *result = outcome.result;
  bool plain = true;
  std::size_t held = 0;
  for (int i = 0; i < list.count(); ++i) {
    const ContactList::Texts texts = list.texts(i);
    for (const std::string_view one : texts) {
      plain = plain && one.find('"') == std::string_view::npos;
      held += one.size();
    }
    // Reaching one field walks the contact again: a different one each time is enough.
    const std::size_t some = (text.size() + static_cast<std::size_t>(i)) % texts.size();
    require(list.field(i, static_cast<Slot>(some)) == texts[some]);
  }
  require(held <= text.size());
  for (const document::Field& field : document::fields)
    require(list.field(list.count(), field.slot).empty() && list.field(-1, field.slot).empty());
  return plain;
}

/// Every field of `again` is that of `first` up to its first double quote.
void requireSameUpToQuotes(const ContactList& first, const ContactList& again) {
  require(first.count() == again.count());
  for (int i = 0; i < first.count(); ++i) {
    const ContactList::Texts before = first.texts(i);
    const ContactList::Texts after = again.texts(i);
    for (std::size_t k = 0; k < before.size(); ++k)
      require(after[k] == before[k].substr(0, before[k].find('"')));
  }
}

/// Cuts the input into the fields of new contacts, so that any byte can be in a field, and checks
/// that a file made by the writer comes back.
void writeAndReadBack(std::string_view bytes) {
  ContactList list;
  std::size_t slot = document::fieldCount;
  while (!bytes.empty() && list.count() < 4) {
    if (slot == document::fieldCount) {
      require(list.append());
      slot = 0;
    }
    const std::size_t length = static_cast<unsigned char>(bytes.front()) % 16U;
    std::string text(bytes.substr(1, length));
    for (char& c : text)
      if (c == '"') c = '\'';
    list.store(list.count() - 1, static_cast<Slot>(slot++), text);
    bytes.remove_prefix(std::min(bytes.size(), length + 1));
  }
  const std::string file = written(list);
  ContactList again;
  ReadResult result{};
  require(readChecked(file, again, &result) && result == ReadResult::whole);
  requireSameUpToQuotes(list, again);
  require(written(again) == file);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  ContactList list;
  const bool plain = readChecked(bytes, list);

  const std::string file = written(list);
  ContactList again;
  readChecked(file, again);
  // A quote can only come from an item without quotes, which holds neither comma nor line end:
  // what follows the quote is dropped, and no item is gained or lost.
  requireSameUpToQuotes(list, again);
  if (plain) require(written(again) == file);

  writeAndReadBack(bytes);

  // The list in use: whatever happens to it, it stays within its bounds.
  for (const char byte : bytes.substr(0, 64)) {
    const auto step = static_cast<unsigned char>(byte);
    const int index = step % 8 - 1;
    switch (step / 8 % 8) {
      case 0:
        list.remove(index);
        break;
      case 1:
        list.store(index, static_cast<Slot>(step % 28), bytes);
        break;
      case 2:
        list.store(index, Slot::Comments, list.field(index + 1, Slot::Surname));
        break;
      case 3:
        require(list.append());
        break;
      case 4:
        list.ClearLastRecord();
        break;
      case 5:
        list.GoNext();
        break;
      case 6:
        list.GoLast();
        break;
      default:
        list.setCurrent(static_cast<std::int16_t>(index));
        break;
    }
    require(list.nameEntry(list.current()).size() >= 1);
  }
  return 0;
}
