// The one type of run-time error. It is thrown where a step cannot be done, and caught in event
// handlers and where errors are ignored on purpose.
#pragma once

#include <exception>
#include <new>
#include <stdexcept>
#include <string>

namespace values {

/// Numbers of run-time errors. Users of the maker's other products know them too.
enum class ErrorNumber : int {
  invalidCall = 5,
  overflow = 6,
  outOfMemory = 7,
  outOfRange = 9,
  typeMismatch = 13,
  fileNotFound = 53,
  ioError = 57,
  diskFull = 61,
  inputPastEnd = 62,
  permissionDenied = 70,
  pathNotFound = 76,
  objectMissing = 438,
  printer = 482,
  cancelled = 32755,
};

/// A run-time error: its number and a sentence for the user. `what()` is the sentence.
class RuntimeError : public std::runtime_error {
 public:
  RuntimeError(ErrorNumber number, const std::string& text)
      : std::runtime_error(text), number_(number) {}

  [[nodiscard]] ErrorNumber number() const { return number_; }

 private:
  ErrorNumber number_;
};

[[noreturn]] inline void raiseOverflow() {
  throw RuntimeError(ErrorNumber::overflow, "Overflow");
}
[[noreturn]] inline void raiseTypeMismatch() {
  throw RuntimeError(ErrorNumber::typeMismatch, "Type mismatch");
}

/// `undone` is a sentence for the user that says what could not be done; may be empty.
[[noreturn]] inline void raiseOutOfMemory(const std::string& undone = {}) {
  const std::string text = "Out of memory";
  throw RuntimeError(ErrorNumber::outOfMemory, undone.empty() ? text : text + "\r\n\r\n" + undone);
}

/// Whether an error means that there is too little memory: a `RuntimeError`, `std::bad_alloc`, or
/// the `std::length_error` that the C++ library raises for a text of more than half of all memory.
[[nodiscard]] inline bool isOutOfMemory(const std::exception& error) {
  if (const auto* known = dynamic_cast<const RuntimeError*>(&error))
    return known->number() == ErrorNumber::outOfMemory;
  return dynamic_cast<const std::bad_alloc*>(&error) != nullptr ||
         dynamic_cast<const std::length_error*>(&error) != nullptr;
}

/// Runs a step that may fail: the caller goes on after any error.
template <typename Step>
void ignoringErrors(Step step) {
  try {
    step();
  } catch (const std::exception&) {
    // Ignored on purpose.
  }
}

}  // namespace values
