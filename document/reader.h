// Reading a document file.
#pragma once

#include <string_view>

#include "document/ContactList.h"
#include "document/bytes.h"

namespace document {

enum class ReadResult {
  whole,         ///< every byte of the file was read
  inputPastEnd,  ///< the file ended inside a contact
  overflow,      ///< the file holds more than 32,767 contacts
};

struct ReadOutcome {
  ReadResult result;
  int contacts;  ///< complete contacts read; the list holds them after every result
};

/// Replaces the list by the contacts of a file whose content is `bytes` (which the list keeps)
/// and makes the first one current. A file may end only between contacts; a contact that is not
/// complete is dropped. Raises nothing but std::bad_alloc.
ReadOutcome read(Bytes bytes, ContactList& list);

/// The same from a copy of `text`.
ReadOutcome read(std::string_view text, ContactList& list);

}  // namespace document
