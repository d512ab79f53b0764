// The numbered messages that the maker's products share. A message is composed completely before it
// is shown, so that an error in composing it shows no box.
#pragma once

#include <string>
#include <string_view>

namespace library {

/// A composed message: its flags are those of the platform's message box.
struct Message {
  std::string text;
  std::string title;
  unsigned flags = 0;
  bool beep = false;
  friend bool operator==(const Message&, const Message&) = default;
};

/// What is inserted into messages: the caller's texts, the product's name, and the program's
/// folder, which is the title of one message.
struct MessageInserts {
  std::string_view file1, file2, file3;
  std::string_view product;
  std::string_view programFolder;
  char decimalSign = '.';
};

/// Information or warning `number`; an empty message without flags where there is none of this
/// number. Raises type mismatch where a text that decides about a plural is no number.
[[nodiscard]] Message composeMessage(int number, const MessageInserts& inserts);

/// The same for question `number`.
[[nodiscard]] Message composeQuestion(int number, const MessageInserts& inserts);

}  // namespace library
