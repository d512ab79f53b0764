// Documents as the tests compose them: every expected byte is spelled out here, from the
// format, not from the program's own tables.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "library/identifiers.h"

namespace drive {

/// Texts of a contact in the order of the file.
using Contact = std::array<std::string, 28>;

// Places in a contact that tests speak of by name.
constexpr std::size_t surname = 0, firstNames = 1, homeEmail = 13, homeWebsite = 14,
                      workWebsite = 23, other1 = 24, comments = 26, company = 27;

/// The box that shows each text of a contact.
constexpr std::array<int, 28> boxOf = [] {
  namespace id = library::id;
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

/// A contact with a text in every field; the texts tell the fields and the `number` apart.
inline Contact fullContact(int number) {
  Contact contact;
  for (std::size_t i = 0; i < contact.size(); ++i)
    contact[i]
        .append("c")
        .append(std::to_string(number))
        .append(" field ")
        .append(std::to_string(i + 1));
  contact[homeWebsite] = "http://home" + std::to_string(number) + ".example/";
  contact[workWebsite] = "http://work" + std::to_string(number) + ".example/";
  return contact;
}

inline std::vector<Contact> fullContacts(int count) {
  std::vector<Contact> contacts;
  for (int number = 1; number <= count; ++number) contacts.push_back(fullContact(number));
  return contacts;
}

/// The bytes of a document.
inline std::string bytesOf(const std::vector<Contact>& contacts) {
  std::string bytes;
  for (const Contact& contact : contacts)
    for (const std::string& text : contact) bytes.append("\"").append(text).append("\"\r\n");
  return bytes;
}

/// What the name box shows for a contact.
inline std::string nameOf(const Contact& contact) {
  return contact[firstNames] + " " + contact[surname];
}

/// What the status bar shows for contact `number` (from 1) of `count`.
inline std::string place(int number, int count) {
  return std::to_string(number) + " of " + std::to_string(count) + " contacts.";
}

}  // namespace drive
