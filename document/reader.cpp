#include "document/reader.h"

#include <cstddef>
#include <utility>
#include <vector>

#include "document/items.h"

namespace document {
namespace {

// Skips one contact. Sets `asWritten` to false where the program would write an item in another
// way.
bool skipRecord(ItemScanner& scanner, bool& asWritten) {
  std::string_view item;
  for (int i = 0; i < fieldCount; ++i) {
    if (scanner.skipOwnLine()) continue;
    asWritten = false;
    if (!scanner.next(item)) return false;
  }
  return true;
}

}  // namespace

ReadOutcome read(Bytes bytes, ContactList& list) {
  list.clear();
  ReadResult result = ReadResult::whole;
  std::vector<ContactList::Place> places;
  for (ItemScanner scanner(bytes.view()); !scanner.atEnd();) {
    const std::size_t start = scanner.position();
    bool asWritten = true;
    if (!skipRecord(scanner, asWritten)) {
      result = ReadResult::inputPastEnd;
      break;
    }
    if (places.size() == static_cast<std::size_t>(ContactList::maxCount)) {
      result = ReadResult::overflow;
      break;
    }
    places.push_back({start, asWritten ? scanner.position() - start : 0});
  }
  list.replace(std::move(bytes), places);
  return {result, list.count()};
}

ReadOutcome read(std::string_view text, ContactList& list) {
  return read(Bytes(text), list);
}

}  // namespace document
