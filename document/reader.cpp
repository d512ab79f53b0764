#include "document/reader.h"

#include <cstddef>
#include <utility>
#include <vector>

#include "document/items.h"

namespace document {
namespace {

bool skipRecord(ItemScanner& scanner) {
  std::string_view item;
  for (int i = 0; i < fieldCount; ++i)
    if (!scanner.next(item)) return false;
  return true;
}

}  // namespace

ReadOutcome read(Bytes bytes, ContactList& list) {
  list.clear();
  ReadResult result = ReadResult::whole;
  std::vector<std::size_t> starts;
  for (ItemScanner scanner(bytes.view()); !scanner.atEnd();) {
    const std::size_t start = scanner.position();
    if (!skipRecord(scanner)) {
      result = ReadResult::inputPastEnd;
      break;
    }
    if (starts.size() == static_cast<std::size_t>(ContactList::maxCount)) {
      result = ReadResult::overflow;
      break;
    }
    starts.push_back(start);
  }
  list.replace(std::move(bytes), starts);
  return {result, list.count()};
}

ReadOutcome read(std::string_view text, ContactList& list) {
  return read(Bytes(text), list);
}

}  // namespace document
