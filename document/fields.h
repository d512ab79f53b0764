// The 28 fields of a contact, in one table that all other code goes by. The slots, the edit boxes
// and the items of the file have three different orders, because the company was added late: it
// has slot 24 and box 23, and is the last item in the file.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace document {

/// The fields of a contact in slot order.
enum class Slot : int {
  Surname,
  FirstNames,
  DateOfBirth,
  JobTitle,
  MobilePhone,
  Pager,
  HomeAddress1,
  HomeAddress2,
  HomeCity,
  HomeCountry,
  HomePostcode,
  HomePhone,
  HomeFax,
  WorkAddress1,
  WorkAddress2,
  WorkCity,
  WorkCountry,
  WorkPostcode,
  WorkPhone,
  WorkFax,
  HomeEmail,
  WorkEmail,
  HomeWebsite,
  WorkWebsite,
  Company,
  Other1,
  Other2,
  Comments,
  Count  ///< not a field; how many there are
};

constexpr int fieldCount = static_cast<int>(Slot::Count);
constexpr int linkCount = 4;  ///< boxes with a button: two for mail, two for the web
constexpr int itemCount = fieldCount - linkCount;  ///< boxes of the control array TXTITEMS

/// The control that shows a field: a box of the array, or one of the four link boxes.
enum class Box : int { TXTITEMS, CBOPEMAIL, CBOPWORKEMAIL, CBOPWEBSITE, CBOPWORKWEBSITE };

struct Field {
  Slot slot;
  std::string_view name;
  int filePosition;  ///< 1 to 28
  Box box;
  int item;                      ///< index in TXTITEMS, -1 for a link box
  std::string_view caption;      ///< of the label above the box; empty for second address lines
  std::string_view reportLabel;  ///< printed before the value; empty where none is
};

// clang-format off
/// All fields in slot order.
constexpr std::array<Field, fieldCount> fields{{
  {Slot::Surname,      "Surname",       1, Box::TXTITEMS,         0, "&Surname:",         ""},
  {Slot::FirstNames,   "FirstNames",    2, Box::TXTITEMS,         1, "First &name(s):",   ""},
  {Slot::DateOfBirth,  "DateOfBirth",   3, Box::TXTITEMS,         2, "&Date of birth:",   "Date of birth: "},
  {Slot::JobTitle,     "JobTitle",      4, Box::TXTITEMS,         3, "&Job title:",       "Job title: "},
  {Slot::MobilePhone,  "MobilePhone",   5, Box::TXTITEMS,         4, "&Mobile phone:",    "Mobile Phone: "},
  {Slot::Pager,        "Pager",         6, Box::TXTITEMS,         5, "&Pager:",           "Pager: "},
  {Slot::HomeAddress1, "HomeAddress1",  7, Box::TXTITEMS,         6, "&Address:",         ""},
  {Slot::HomeAddress2, "HomeAddress2",  8, Box::TXTITEMS,         7, "",                  ""},
  {Slot::HomeCity,     "HomeCity",      9, Box::TXTITEMS,         8, "C&ity / state:",    ""},
  {Slot::HomeCountry,  "HomeCountry",  10, Box::TXTITEMS,         9, "C&ountry:",         ""},
  {Slot::HomePostcode, "HomePostcode", 11, Box::TXTITEMS,        10, "&Postcode / zip:",  ""},
  {Slot::HomePhone,    "HomePhone",    12, Box::TXTITEMS,        11, "Phone &number:",    "Home Phone: "},
  {Slot::HomeFax,      "HomeFax",      13, Box::TXTITEMS,        12, "Fa&x number:",      "Fax Number: "},
  {Slot::WorkAddress1, "WorkAddress1", 16, Box::TXTITEMS,        13, "&Address:",         ""},
  {Slot::WorkAddress2, "WorkAddress2", 17, Box::TXTITEMS,        14, "",                  ""},
  {Slot::WorkCity,     "WorkCity",     18, Box::TXTITEMS,        15, "C&ity / state:",    ""},
  {Slot::WorkCountry,  "WorkCountry",  19, Box::TXTITEMS,        16, "C&ountry:",         ""},
  {Slot::WorkPostcode, "WorkPostcode", 20, Box::TXTITEMS,        17, "&Postcode / zip:",  ""},
  {Slot::WorkPhone,    "WorkPhone",    21, Box::TXTITEMS,        18, "Phone &number:",    "Work Phone: "},
  {Slot::WorkFax,      "WorkFax",      22, Box::TXTITEMS,        19, "Fa&x number:",      "Work Fax Number: "},
  {Slot::HomeEmail,    "HomeEmail",    14, Box::CBOPEMAIL,       -1, "E&mail address:",   "Home Email: "},
  {Slot::WorkEmail,    "WorkEmail",    23, Box::CBOPWORKEMAIL,   -1, "E&mail address:",   "Work Email: "},
  {Slot::HomeWebsite,  "HomeWebsite",  15, Box::CBOPWEBSITE,     -1, "&Website address:", "Home Website: "},
  {Slot::WorkWebsite,  "WorkWebsite",  24, Box::CBOPWORKWEBSITE, -1, "&Website address:", "Work Website: "},
  {Slot::Company,      "Company",      28, Box::TXTITEMS,        23, "&Company:",         "Company Name: "},
  {Slot::Other1,       "Other1",       25, Box::TXTITEMS,        20, "&Other 1:",         "Other 1: "},
  {Slot::Other2,       "Other2",       26, Box::TXTITEMS,        21, "O&ther 2:",         "Other 2: "},
  {Slot::Comments,     "Comments",     27, Box::TXTITEMS,        22, "&Comments:",        "Comments: "},
}};
// clang-format on

/// The row of `slot`.
[[nodiscard]] constexpr const Field& fieldOf(Slot slot) {
  return fields[static_cast<std::size_t>(slot)];
}

namespace detail {

constexpr std::array<Slot, fieldCount> slotsInFileOrder() {
  std::array<Slot, fieldCount> slots{};
  for (const Field& field : fields)
    slots[static_cast<std::size_t>(field.filePosition - 1)] = field.slot;
  return slots;
}

constexpr bool tableIsSound() {
  std::array<int, fieldCount> positions{};
  std::array<int, itemCount> items{};
  std::array<int, linkCount + 1> boxes{};
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const Field& field = fields[i];
    if (static_cast<std::size_t>(field.slot) != i || field.name.empty()) return false;
    if (field.filePosition < 1 || field.filePosition > fieldCount) return false;
    if (++positions[static_cast<std::size_t>(field.filePosition - 1)] > 1) return false;
    ++boxes[static_cast<std::size_t>(field.box)];
    const bool inArray = field.box == Box::TXTITEMS;
    if (inArray != (field.item >= 0) || field.item >= itemCount) return false;
    if (inArray && ++items[static_cast<std::size_t>(field.item)] > 1) return false;
    for (std::size_t k = 0; k < i; ++k)
      if (fields[k].name == field.name ||
          (!field.reportLabel.empty() && fields[k].reportLabel == field.reportLabel))
        return false;
  }
  return boxes == std::array<int, linkCount + 1>{itemCount, 1, 1, 1, 1};
}

}  // namespace detail

static_assert(detail::tableIsSound());

/// Slot of each file position, position 1 at index 0.
constexpr std::array<Slot, fieldCount> slotAtFilePosition = detail::slotsInFileOrder();

}  // namespace document
