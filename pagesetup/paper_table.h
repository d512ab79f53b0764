// The papers that the user can choose, in the order of their list, with their codes for the
// printer.
#pragma once

#include <array>
#include <cstddef>

namespace pagesetup {

struct Paper {
  const char* name;
  int code;
};

// The maker's products have codes of their own from 256 up, which go to the driver as they are.
// Deliberate: Executive and Envelope B5 have such codes too, although Windows has numbers for both.
// The table has no sizes; the printer tells them.
// clang-format off
constexpr std::array<Paper, 22> papers{{
  {"Letter",         1},
  {"A4",             9},
  {"Legal",          5},
  {"B5",             13},
  {"Executive",      261},
  {"A5",             11},
  {"A6 Card",        264},
  {"Index Card",     257},
  {"Banner Letter",  268},
  {"Banner A4",      269},
  {"Postcard",       258},
  {"Envelope 6 3/4", 267},
  {"Envelope #9",    19},
  {"Envelope #10",   20},
  {"Envelope DL",    27},
  {"Envelope C5",    28},
  {"Envelope C6",    31},
  {"Envelope B5",    259},
  {"Envelope 7 3/4", 260},
  {"Baronial",       265},
  {"Hagaki",         262},
  {"User Defined",   256},
}};
// clang-format on

/// Index in the list of the paper with this code; -1 for any other code.
[[nodiscard]] constexpr int paperIndex(int code) {
  for (std::size_t i = 0; i < papers.size(); ++i)
    if (papers[i].code == code) return static_cast<int>(i);
  return -1;
}

namespace detail {
constexpr bool everyCodeHasOnePaper() {
  for (std::size_t i = 0; i < papers.size(); ++i)
    if (paperIndex(papers[i].code) != static_cast<int>(i)) return false;
  return true;
}
}  // namespace detail
static_assert(detail::everyCodeHasOnePaper());
static_assert(paperIndex(263) < 0 && paperIndex(266) < 0, "two numbers stay unused");

}  // namespace pagesetup
