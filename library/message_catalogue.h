// The numbered messages that the product family shares. A message is composed here, whole,
// before anything is shown or sounds, so that a text that cannot be composed shows no box.
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

/// What is inserted into messages: the caller's texts, the product's name, and the folder of
/// the program, which one message has as its title.
struct MessageInserts {
  std::string_view file1, file2, file3;
  std::string_view product;
  std::string_view programFolder;
  char decimalSign = '.';
};

/// Information or warning `number`; an empty message without flags where the catalogue has
/// none. Raises type mismatch where a count that decides about a plural is no number.
[[nodiscard]] Message composeMessage(int number, const MessageInserts& inserts);

/// Question `number`, likewise.
[[nodiscard]] Message composeQuestion(int number, const MessageInserts& inserts);

}  // namespace library
