// Messages by number: composed by the catalogue, shown here.
#include "library/clsLibrary_win.h"
#include "library/message_catalogue.h"
#include "values/user_locale_win.h"
#include "windowing/application_win.h"
#include "windowing/modal_win.h"
#include "windowing/seams_win.h"

namespace library {
namespace {

using Composer = Message (*)(int number, const MessageInserts& inserts);

int showMessage(Composer compose, int number, const std::string& file1, const std::string& file2,
                const std::string& file3) {
  const std::string product = windowing::productName();
  const std::string folder = windowing::programFolder();
  const Message message =
      compose(number, {file1, file2, file3, product, folder, values::userDecimalSign()});
  if (message.beep) windowing::seams().beep();
  return windowing::seams().messageBox(windowing::dialogOwner(), message.text, message.title,
                                       message.flags);
}

}  // namespace

void clsLibrary::MESSAGEBOX(int MSGNO, const std::string& FILE1, const std::string& FILE2,
                            const std::string& FILE3, const std::string& FILE4) {
  (void)FILE4;  // other products of the maker pass it; no message uses it
  showMessage(composeMessage, MSGNO, FILE1, FILE2, FILE3);
}

int clsLibrary::MESSAGEBOXFCN(int MSGNO, const std::string& FILE1, const std::string& FILE2,
                              const std::string& FILE3, const std::string& FILE4) {
  (void)FILE4;
  return showMessage(composeQuestion, MSGNO, FILE1, FILE2, FILE3);
}

}  // namespace library
