// A document of the largest size, for measuring: a smaller one repeated until the list is full.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "document/ContactList.h"
#include "document/reader.h"
#include "document/writer.h"

namespace bench {

/// The text of a document of 32,767 contacts that repeats those of `small`; empty where
/// `small` holds none.
[[nodiscard]] inline std::string bigDocument(std::string_view small) {
  document::ContactList list;
  const int count = document::read(small, list).contacts;
  std::string once;
  std::vector<std::size_t> ends;  // where each contact ends, for the last, partial round
  for (int i = 0; i < count; ++i) {
    const document::ContactList::Texts texts = list.texts(i);
    for (const document::Slot slot : document::slotAtFilePosition)
      once.append("\"").append(texts[static_cast<std::size_t>(slot)]).append("\"\r\n");
    ends.push_back(once.size());
  }
  std::string text;
  for (int left = document::ContactList::maxCount; left > 0 && count > 0; left -= count)
    text.append(once, 0, ends[static_cast<std::size_t>(std::min(left, count) - 1)]);
  return text;
}

/// Number of line ends: the least that anyone who reads lines has to do.
[[nodiscard]] inline std::size_t countNewlines(std::string_view bytes) {
  std::size_t lines = 0;
  for (std::size_t at = bytes.find('\n'); at != std::string_view::npos;
       at = bytes.find('\n', at + 1))
    ++lines;
  return lines;
}

}  // namespace bench
