#include "mainwindow/availability.h"

#include <gtest/gtest.h>

#include "library/identifiers.h"

using namespace mainwindow;
namespace id = library::id;

TEST(Availability, FollowsCountAndPosition) {
  const struct {
    CommandState state;
    const char* available;  // name box, remove, print, preview, first, previous, next, last, save
  } rows[] = {
      {{0, 0, false}, "---------"},         {{0, 0, true}, "--------S"},
      {{1, 0, false}, "BRPV-----"},         {{1, 1, false}, "BRPV-----"},
      {{2, 0, false}, "BRPV--NL-"},         {{2, 1, true}, "BRPVfp--S"},
      {{3, 1, false}, "BRPVfpNL-"},         {{3, 2, false}, "BRPVfp---"},
      {{32767, 32766, false}, "BRPVfp---"},
  };
  const std::pair<int, char> marks[] = {
      {id::REMOVE, 'R'},   {id::PRINT, 'P'}, {id::PRINTPREVIEW, 'V'}, {id::FIRST, 'f'},
      {id::PREVIOUS, 'p'}, {id::NEXT, 'N'},  {id::LAST, 'L'},         {id::SAVE, 'S'}};
  for (const auto& row : rows) {
    std::string seen = nameBoxAvailable(row.state) ? "B" : "-";
    for (const auto& [command, letter] : marks)
      seen += commandAvailable(command, row.state) ? letter : '-';
    EXPECT_EQ(seen, row.available) << row.state.count << " " << row.state.current;
  }
}
