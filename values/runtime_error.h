// The one type of run-time error. It is thrown where a step cannot be done and
// caught in event handlers, nowhere else but where errors are ignored on purpose.
#pragma once

#include <exception>
#include <new>
#include <stdexcept>
#include <string>

namespace values {

/// Numbers of run-time errors, as users of the product family know them from its reports.
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
  pathAccess = 75,
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

/// `undone` is a sentence that names what there was too little memory for; empty where nobody
/// knows.
[[noreturn]] inline void raiseOutOfMemory(const std::string& undone = {}) {
  const std::string text = "Out of memory";
  throw RuntimeError(ErrorNumber::outOfMemory, undone.empty() ? text : text + "\r\n\r\n" + undone);
}

/// Whether an error says that there is too little memory, in this program's words or in those of
/// the language's library, which also calls a text of more than half of all memory too long.
[[nodiscard]] inline bool isOutOfMemory(const std::exception& error) {
  if (const auto* known = dynamic_cast<const RuntimeError*>(&error))
    return known->number() == ErrorNumber::outOfMemory;
  return dynamic_cast<const std::bad_alloc*>(&error) != nullptr ||
         dynamic_cast<const std::length_error*>(&error) != nullptr;
}

/// Runs a step that the rest can do without: whatever error ends it, the caller goes on.
template <typename Step>
void ignoringErrors(Step step) {
  try {
    step();
  } catch (const std::exception&) {
    // What the step would have shown or done stays as it was.
  }
}

}  // namespace values
