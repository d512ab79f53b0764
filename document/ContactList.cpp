#include "document/ContactList.h"

#include <utility>

#include "document/items.h"

namespace document {

ContactList::ContactList() : entries_(1) {}

const ContactList::Entry* ContactList::entry(int index) const {
  if (index < 0 || static_cast<std::size_t>(index) >= entries_.size()) return nullptr;
  return &entries_[static_cast<std::size_t>(index)];
}

std::string_view ContactList::field(int index, Slot slot) const {
  const Entry* const contact = entry(index);
  if (contact == nullptr) return {};
  if (contact->changed) return (*contact->changed)[slot];
  if (contact->place.start == nowhere) return {};
  ItemScanner scanner(bytes_.view(), contact->place.start);
  std::string_view text;
  for (int position = fieldOf(slot).filePosition; position > 0; --position)
    if (!scanner.next(text)) return {};
  return text;
}

ContactList::Texts ContactList::texts(int index) const {
  Texts texts;
  const Entry* const contact = entry(index);
  if (contact == nullptr) return texts;
  if (contact->changed) {
    for (std::size_t i = 0; i < texts.size(); ++i) texts[i] = contact->changed->fields[i];
  } else if (contact->place.start != nowhere) {
    ItemScanner scanner(bytes_.view(), contact->place.start);
    for (const Slot slot : slotAtFilePosition) scanner.next(texts[static_cast<std::size_t>(slot)]);
  }
  return texts;
}

ContactRecord ContactList::record(int index) const {
  ContactRecord copy;
  const Texts views = texts(index);
  for (std::size_t i = 0; i < views.size(); ++i) copy.fields[i] = views[i];
  return copy;
}

std::string ContactList::nameEntry(int index) const {
  std::string name(field(index, Slot::FirstNames));
  name += ' ';
  name += field(index, Slot::Surname);
  return name;
}

void ContactList::store(int index, Slot slot, std::string_view text) {
  if (entry(index) == nullptr || field(index, slot) == text) return;
  Entry& contact = entries_[static_cast<std::size_t>(index)];
  if (!contact.changed) contact.changed = std::make_unique<ContactRecord>(record(index));
  (*contact.changed)[slot] = text;
}

void ContactList::ClearLastRecord() {
  if (count() > 0) entries_[entries_.size() - 2] = {};
}

bool ContactList::append() {
  if (count() == maxCount) return false;
  entries_.emplace_back();
  return true;
}

void ContactList::remove(int index) {
  if (index < 0 || index >= count()) return;
  entries_.erase(entries_.begin() + index);
  entries_.back() = {};
  if (count() == 1) current_ = 0;
}

void ContactList::clear() {
  entries_.clear();
  entries_.emplace_back();
  bytes_ = {};
  current_ = 0;
}

void ContactList::replace(Bytes bytes, const std::vector<Place>& places) {
  clear();
  entries_.reserve(places.size() + 1);
  for (std::size_t i = 0; i < places.size() && i < static_cast<std::size_t>(maxCount); ++i) {
    entries_.back().place = places[i];
    entries_.emplace_back();
  }
  if (!places.empty()) bytes_ = std::move(bytes);
}

std::string_view ContactList::linesInFile(int index) const {
  const Entry* const contact = entry(index);
  if (contact == nullptr || contact->changed || contact->place.start == nowhere) return {};
  return bytes_.view().substr(contact->place.start, contact->place.size);
}

bool ContactList::GoNext() {
  if (current_ == std::numeric_limits<std::int16_t>::max()) return false;
  ++current_;
  return true;
}

bool ContactList::GoPrevious() {
  if (current_ == std::numeric_limits<std::int16_t>::min()) return false;
  --current_;
  return true;
}

}  // namespace document
