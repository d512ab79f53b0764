#include "mainwindow/commands.h"

#include <gtest/gtest.h>

using namespace mainwindow;
TEST(Availability, FollowsCountAndPosition) {
  const struct {
    CommandState state;
    const char* available;  // name box, remove, print, preview, first, previous, next, last
  } rows[] = {
      {{0, 0}, "--------"},         {{1, 0}, "BRPV----"}, {{1, 1}, "BRPV----"},
      {{2, 0}, "BRPV--NL"},         {{2, 1}, "BRPVfp--"}, {{3, 1}, "BRPVfpNL"},
      {{32767, 32766}, "BRPVfp--"},
  };
  const std::pair<int, char> marks[] = {
      {id::REMOVE, 'R'},   {id::PRINT, 'P'}, {id::PRINTPREVIEW, 'V'}, {id::FIRST, 'f'},
      {id::PREVIOUS, 'p'}, {id::NEXT, 'N'},  {id::LAST, 'L'}};
  for (const auto& row : rows) {
    std::string seen = nameBoxAvailable(row.state) ? "B" : "-";
    for (const auto& [command, letter] : marks)
      seen += availability(command, row.state).value() ? letter : '-';
    EXPECT_EQ(seen, row.available) << row.state.count << " " << row.state.current;
  }
}
