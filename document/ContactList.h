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

/// A list of contacts, indexed from 0, with one spare element past the last contact. A contact
/// that was read from a file stays there, in the file's bytes, which the list keeps; only
/// contacts that were changed own their texts. So the list of a large file costs little more
/// than the file, and taking one contact out of the middle moves a few small handles.
///
/// Indexes run from 0 to count(), the spare element included. Any other index reads as empty
/// texts and cannot be stored to: stepping checks no bounds, so an index may well be outside.
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

  /// One text. The view holds until the next change of the list.
  [[nodiscard]] std::string_view field(int index, Slot slot) const;
  /// All texts in slot order, in one pass. The views hold until the next change of the list.
  [[nodiscard]] Texts texts(int index) const;
  /// A copy of a contact's texts.
  [[nodiscard]] ContactRecord record(int index) const;
  /// A contact's line in the name box: first names, a blank, surname. Never trimmed, so that a
  /// contact without names shows one blank.
  [[nodiscard]] std::string nameEntry(int index) const;

  /// Sets one text. A text that is already there changes nothing.
  void store(int index, Slot slot, std::string_view text);
  /// Empties all fields of the last contact; nothing on an empty list.
  void ClearLastRecord();
  /// Makes the spare element, as it stands, the last contact and adds a new spare one. A full
  /// list (32,767) stays as it is, and the answer is false.
  [[nodiscard]] bool append();
  /// Takes a contact out: those behind it move down, the spare element becomes empty. With one
  /// contact left, that is the current one; otherwise the current index stays, and points at
  /// the spare element after the last contact was removed. Nothing when there is no such contact.
  void remove(int index);
  /// Back to the empty list.
  void clear();
  /// Where a contact lies in a file's bytes.
  struct Place {
    std::size_t start;
    std::size_t size;  ///< up to the next contact; 0 where it is not written as this program would
  };
  /// Replaces everything by contacts that lie in `bytes` at `places` (at most 32,767), each 28
  /// items long. The first one becomes current.
  void replace(Bytes bytes, const std::vector<Place>& places);
  /// The lines of a contact that stands in its file unchanged and just as it is to be written;
  /// empty for any other. The view holds until the next change of the list.
  [[nodiscard]] std::string_view linesInFile(int index) const;

  /// The four steps set the current index and check no bounds: that is deliberate, as the
  /// commands are not offered at the ends. On an empty list GoLast steps to -1.
  void GoFirst() { current_ = 0; }
  void GoLast() { current_ = static_cast<std::int16_t>(count() - 1); }
  /// False, and no step, where the 16-bit index would overflow.
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
