#include "library/message_catalogue.h"

#include "library/message_numbers.h"
#include "values/number_text.h"

namespace library {
namespace {

enum class Title { fixed, product, programFolder };

// In a text, %1 to %3 are replaced by the caller's texts. %b and %c are replaced by the plural "s"
// where the caller's second or third text is a number other than 1.
struct Entry {
  std::string_view text = {};
  Title titleKind = Title::fixed;
  std::string_view title = {};
  unsigned flags = 0;
  bool beep = false;
};

constexpr unsigned stop = 16, asking = 32, exclamation = 48, information = 64;
constexpr unsigned yesNoCancel = 3, yesNo = 4, secondIsDefault = 256;

// Mistakes in spelling and grammar ("loose", "have all been") are deliberate: the texts are the
// same in all of the maker's products.
constexpr Entry entryOf(message::Number number) {
  switch (number) {
    case message::spellingChecked:
      return {"Spell Checker has now finished checking your document.", Title::fixed,
              "Spell Checker", information};
    case message::textFound:
      return {"The text '%1' has been found '%2' time%b.", Title::fixed, "Find", information};
    // The plural follows the third text, not the second.
    case message::textReplaced:
      return {"The text '%1' have all been replaced by '%2' %3 time%c.", Title::fixed, "Replace",
              information};
    case message::noSuchLine:
      return {"The line number entered is larger than the current %1 lines available.",
              Title::fixed, "Go To", exclamation};
    case message::problemSaving:
      return {"There is a problem saving the document '%1'. This is possibly a read-only document.",
              Title::fixed, "Save", exclamation};
    case message::noRoomToPrint:
      return {"You cannot enter a value which leaves you with no room to print.", Title::fixed,
              "Page Setup", exclamation};
    // Deliberate: its title is the program's folder.
    case message::noPrinter:
      return {"There is no printer installed. You will not be able to use the printer functions.",
              Title::programFolder, "", stop, true};
    case message::problemsReading:
      return {"There are problems reading %1 so the details will be only partly available.",
              Title::fixed, "Properties", exclamation};
    case message::invalidImage:
      return {
          "%1 is either an invalid format or the document is corrupt. \r\n Try re-saving the image "
          "to "
          "a different name from within a paint package and trying again.",
          Title::product, "", stop, true};
    case message::cannotReopen:
      return {"The document '%1' cannot be reopened. The document may no longer exist.",
              Title::fixed, "ReOpen", exclamation};
    case message::unreadableTga:
      return {"There is a problem with reading TGA 16 bit format, please try another format.",
              Title::fixed, "Picture", exclamation};
    // Deliberate: it names another product, whichever product shows it.
    case message::tooManyDocuments:
      return {
          "You have reached the limit of documents that can be opened in a session, sorry.\r\nYou "
          "could always close Pressling and re-launch it.",
          Title::product, "", stop, true};
    case message::goneFromList:
      return {"The document %1 is no longer available and will now be removed from the list.",
              Title::product, "", exclamation};
  }
  return {};  // a number without a message
}

constexpr Entry entryOf(question::Number number) {
  switch (number) {
    case question::deletePicture:
      return {"Are you really sure you want to delete '%1' to the Recycle Bin ?", Title::fixed,
              "Clear Picture", yesNo | asking | secondIsDefault};
    case question::overwrite:
      return {"The document '%1' already exists.\r\nDo you really want to overwrite this ?",
              Title::fixed, "Save As", yesNo | asking};
    case question::looseChanges:
      return {"Continuing will loose any unsaved changes for the %1\r\nDo you want to continue ?",
              Title::fixed, "ReOpen", yesNo | asking};
    case question::saveBeforeClose:
      return {"Do you wish to save '%1' before you close ?", Title::product, "",
              yesNoCancel | asking};
    case question::saveFirst:
      return {"You have unsaved work, do you want to save first ?", Title::fixed, "New",
              yesNoCancel | asking};
  }
  return {};  // a number without a message
}

std::string_view pluralOf(std::string_view count, const MessageInserts& inserts) {
  return values::toNumber(count, inserts.decimalSign) == 1 ? "" : "s";
}

std::string_view insertFor(char mark, const MessageInserts& inserts) {
  switch (mark) {
    case '1':
      return inserts.file1;
    case '2':
      return inserts.file2;
    case '3':
      return inserts.file3;
    case 'b':
      return pluralOf(inserts.file2, inserts);
    default:
      return pluralOf(inserts.file3, inserts);
  }
}

std::string titleOf(const Entry& entry, const MessageInserts& inserts) {
  switch (entry.titleKind) {
    case Title::product:
      return std::string(inserts.product);
    case Title::programFolder:
      return std::string(inserts.programFolder);
    default:
      return std::string(entry.title);
  }
}

Message compose(const Entry& entry, const MessageInserts& inserts) {
  Message message{{}, titleOf(entry, inserts), entry.flags, entry.beep};
  for (std::size_t i = 0; i < entry.text.size(); ++i) {
    if (entry.text[i] == '%')
      message.text += insertFor(entry.text[++i], inserts);
    else
      message.text += entry.text[i];
  }
  return message;
}

}  // namespace

Message composeMessage(int number, const MessageInserts& inserts) {
  return compose(entryOf(static_cast<message::Number>(number)), inserts);
}

Message composeQuestion(int number, const MessageInserts& inserts) {
  return compose(entryOf(static_cast<question::Number>(number)), inserts);
}

}  // namespace library
