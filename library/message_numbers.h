// The numbers of messages, the same in all of the maker's products. No message has the numbers
// between them.
#pragma once

namespace library {

// They are enumerators so that the compiler reports one without a text in the catalogue.

/// Messages that inform or warn, for MESSAGEBOX.
namespace message {
enum Number : int {
  spellingChecked = 1,
  textFound = 3,
  textReplaced = 6,
  noSuchLine = 9,
  problemSaving = 10,
  noRoomToPrint = 12,
  noPrinter = 13,
  problemsReading = 14,
  invalidImage = 15,
  cannotReopen = 19,
  unreadableTga = 22,
  tooManyDocuments = 24,
  goneFromList = 25,
};
}  // namespace message

/// Questions, for MESSAGEBOXFCN.
namespace question {
enum Number : int {
  deletePicture = 2,
  overwrite = 3,
  looseChanges = 5,
  saveBeforeClose = 6,
  saveFirst = 8,
};
}  // namespace question

}  // namespace library
