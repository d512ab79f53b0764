// The open document: its contacts in document order, and which of them is on screen.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "document/ContactRecord.h"
#include "document/bytes.h"
#include "document/fields.h"

namespace document {

/// A list of contacts, indexed from 0, with one spare element past the last contact. The list
/// keeps the bytes of the file; a contact that was read from it is only a place in them, and only
/// contacts that were changed own their texts. So the list of a large file takes little more
/// memory than the file, and removing a contact in the middle moves small entries only.
///
/// Indexes run from 0 to count(), which is the spare element. At any other index all texts are
/// empty, and storing does nothing. Such an index does occur, because the steps check no bounds.
class ContactList {
 public:
  static constexpr std::int16_t maxCount = std::numeric_limits<std::int16_t>::max();
  using Texts = std::array<std::string_view, fieldCount>;

  ContactList();
  ContactList(const ContactList&) = delete;
  ContactList& operator=(const ContactList&) = delete;
  ~ContactList() = default;

  /// Number of contacts, 0 to 32,767.
  [[nodiscard]] std::int16_t count() const {
    return static_cast<std::int16_t>(entries_.size() - 1);
  }
  /// Index of the contact on screen; 0 when the list is empty.
  [[nodiscard]] std::int16_t current() const { return current_; }
  void setCurrent(std::int16_t index) { current_ = index; }

  /// One text. The view is valid until the list changes.
  [[nodiscard]] std::string_view field(int index, Slot slot) const;
  /// All texts in slot order, in one pass. The views are valid until the list changes.
  [[nodiscard]] Texts texts(int index) const;
  /// A copy of a contact's texts.
  [[nodiscard]] ContactRecord record(int index) const;
  /// A contact's line in the name box: first names, a blank, surname. Never trimmed, so that a
  /// contact without names shows one blank.
  [[nodiscard]] std::string nameEntry(int index) const;

  /// Sets one text. Does nothing where the contact has this text already.
  void store(int index, Slot slot, std::string_view text);
  /// Empties all fields of the last contact. Does nothing on an empty list.
  void ClearLastRecord();
  /// Makes the spare element the last contact, with the texts that it has, and adds a new spare
  /// element. Returns false and changes nothing where the list is full (32,767).
  [[nodiscard]] bool append();
  /// Removes a contact: those behind it move down, the spare element becomes empty. If one contact
  /// is left, it becomes the current one; otherwise the current index stays, so that it is the
  /// spare element after the last contact was removed. Does nothing where there is no such contact.
  void remove(int index);
  /// Back to the empty list.
  void clear();
  /// Where a contact lies in a file's bytes.
  struct Place {
    std::size_t start;
    std::size_t size;  ///< up to the next contact; 0 where the program would write other bytes
  };
  /// Replaces everything by contacts that lie in `bytes` at `places` (at most 32,767), each 28
  /// items long. The first one becomes current.
  void replace(Bytes bytes, const std::vector<Place>& places);
  /// The bytes of an unchanged contact, if the program would write the same bytes again; empty for
  /// any other. The view is valid until the list changes.
  [[nodiscard]] std::string_view linesInFile(int index) const;

  /// The four steps set the current index. They deliberately check no bounds, since the commands
  /// are disabled at the ends. On an empty list GoLast steps to -1.
  void GoFirst() { current_ = 0; }
  void GoLast() { current_ = static_cast<std::int16_t>(count() - 1); }
  /// Returns false and does not step where the 16-bit index would overflow.
  bool GoNext();
  bool GoPrevious();

 private:
  static constexpr std::size_t nowhere = std::numeric_limits<std::size_t>::max();

  /// A contact: changed texts of its own, or its place in the file's bytes, or neither (empty).
  struct Entry {
    Place place{nowhere, 0};
    std::unique_ptr<ContactRecord> changed;
  };

  [[nodiscard]] const Entry* entry(int index) const;

  Bytes bytes_;
  std::vector<Entry> entries_;  ///< never empty: the last one is the spare
  std::int16_t current_ = 0;
};

}  // namespace document
