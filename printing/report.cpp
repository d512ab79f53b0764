#include "printing/report.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

namespace printing {
namespace {

using document::ContactRecord;
using document::Slot;

constexpr std::size_t addressParts = 5;

// A line of the report: a field behind its own label, or an address, which begins with this field.
struct Line {
  Slot field;
  std::string_view addressLabel{};  // empty for a line of one field
};

// clang-format off
constexpr Line lines[] = {
  {Slot::DateOfBirth},
  {Slot::JobTitle},
  {Slot::MobilePhone},
  {Slot::Pager},
  {Slot::Other1},
  {Slot::Other2},
  {Slot::Comments},
  {Slot::HomeAddress1, "Address: "},
  {Slot::HomePhone},
  {Slot::HomeFax},
  {Slot::Company},
  {Slot::WorkAddress1, "Work Address: "},
  {Slot::WorkPhone},
  {Slot::WorkFax},
  {Slot::HomeEmail},
  {Slot::WorkEmail},
  {Slot::HomeWebsite},
  {Slot::WorkWebsite},
};
// clang-format on

constexpr bool everyLineHasALabel() {
  return std::all_of(std::begin(lines), std::end(lines), [](const Line& line) {
    return line.addressLabel.empty() != document::fieldOf(line.field).reportLabel.empty();
  });
}
static_assert(everyLineHasALabel());

constexpr bool everyFieldIsPrintedOnce() {
  std::array<int, document::fieldCount> printed{};
  const auto count = [&](Slot field, std::size_t fields) {
    for (std::size_t i = 0; i < fields; ++i) ++printed.at(static_cast<std::size_t>(field) + i);
  };
  count(Slot::FirstNames, 1);  // the two in the heading
  count(Slot::Surname, 1);
  for (const Line& line : lines) count(line.field, line.addressLabel.empty() ? 1 : addressParts);
  return std::all_of(printed.begin(), printed.end(), [](int times) { return times == 1; });
}
static_assert(everyFieldIsPrintedOnce());

// The fields of an address follow each other: two lines of the street, city, country, postcode.
std::string addressFrom(const ContactRecord& values, Slot street) {
  std::string address;
  const auto first = values.fields.begin() + static_cast<std::ptrdiff_t>(street);
  std::for_each(first, first + addressParts, [&](const std::string& part) {
    if (part.empty()) return;
    if (!address.empty()) address += ", ";
    address += part;
  });
  return address;
}

std::string nameOf(const ContactRecord& values) {
  const std::string name = values[Slot::FirstNames] + ' ' + values[Slot::Surname];
  constexpr std::size_t shortestName = 2;  // one character and the blank
  return name.size() < shortestName ? std::string() : name;
}

}  // namespace

std::vector<ReportStep> reportOf(const ContactRecord& values) {
  using Kind = ReportStep::Kind;
  std::vector<ReportStep> steps{{Kind::lineBreak, {}}, {Kind::boldText, nameOf(values)}};
  for (const Line& line : lines) {
    const bool address = !line.addressLabel.empty();
    const std::string value =
        address ? addressFrom(values, line.field) : std::string(values[line.field]);
    if (value.empty()) continue;
    const std::string label(address ? line.addressLabel
                                    : document::fieldOf(line.field).reportLabel);
    steps.push_back({Kind::lineBreak, {}});
    // Deliberate: only for the work fax are label and number two insertions.
    if (line.field == Slot::WorkFax) {
      steps.push_back({Kind::text, label});
      steps.push_back({Kind::text, value});
    } else {
      steps.push_back({Kind::text, label + value});
    }
  }
  return steps;
}

}  // namespace printing
