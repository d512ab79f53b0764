// Documents as the tests compose them: every expected byte is spelled out here, from the
// format, not from the program's own tables.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "mainwindow/frmMain_ids.h"

namespace drive {

/// Texts of a contact in the order of the file.
using Contact = std::array<std::string, 28>;

// Places in a contact that tests speak of by name.
constexpr std::size_t surname = 0, firstNames = 1, homeEmail = 13, homeWebsite = 14,
                      workWebsite = 23, comments = 26, company = 27;

/// The box that shows each text of a contact.
constexpr std::array<int, 28> boxOf = [] {
  namespace id = mainwindow::id;
  std::array<int, 28> boxes{};
  std::size_t at = 0;
  for (int item = 0; item <= 12; ++item) boxes[at++] = id::textItem(item);
  boxes[at++] = id::CBOPEMAIL;
  boxes[at++] = id::CBOPWEBSITE;
  for (int item = 13; item <= 19; ++item) boxes[at++] = id::textItem(item);
  boxes[at++] = id::CBOPWORKEMAIL;
  boxes[at++] = id::CBOPWORKWEBSITE;
  for (int item = 20; item <= 23; ++item) boxes[at++] = id::textItem(item);
  return boxes;
}();

/// Contacts with a text in every field, all of them different.
inline std::vector<Contact> fullContacts(int count) {
  std::vector<Contact> contacts(static_cast<std::size_t>(count));
  for (std::size_t contact = 0; contact < contacts.size(); ++contact) {
    const std::string number = std::to_string(contact + 1);
    for (std::size_t field = 0; field < contacts[contact].size(); ++field)
      contacts[contact][field] = "c" + number + " field " + std::to_string(field + 1);
    contacts[contact][homeWebsite] = "http://home" + number + ".example/";
    contacts[contact][workWebsite] = "http://work" + number + ".example/";
  }
  return contacts;
}

/// The bytes of a document.
inline std::string bytesOf(const std::vector<Contact>& contacts) {
  std::string bytes;
  for (const Contact& contact : contacts)
    for (const std::string& text : contact) bytes.append("\"").append(text).append("\"\r\n");
  return bytes;
}

/// What the status bar shows for contact `number` (from 1) of `count`.
inline std::string place(int number, int count) {
  return std::to_string(number) + " of " + std::to_string(count) + " contacts.";
}

}  // namespace drive
