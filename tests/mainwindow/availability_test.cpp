#include "mainwindow/commands.h"

#include <gtest/gtest.h>

#include "mainwindow/availability.h"

using namespace mainwindow;
namespace id = library::id;

TEST(Commands, MenusReadFromTopToBottom) {
  std::string all;
  for (const Menu& menu : menus) {
    all += std::string(menu.caption) + ":";
    for (std::size_t i = 0; i < menu.count; ++i) {
      const MenuLine& line = menuLines[menu.first + i];
      all += line.command == 0 ? "-" : menuCaption(*findCommand(line.command));
      all += "|";
    }
  }
  EXPECT_EQ(all,
            "&File:&New|&Open...|-|&Save|Save &As...|-|&Print...|Print Pre&view|Page Set&up...|-|"
            "E&xit\tAlt+F4|&Edit:&Add\tIns|&Remove\tCtrl+Del|&View:&Standard Toolbar|S&tatus Bar|-|"
            "&Header/Footer...|&Properties...|&Go To:&First Page\tHome|&Previous Page\tPgUp|"
            "&Next Page\tPgDn|&Last Page\tEnd|&Help:&Zandor Online|-|&About|");
}

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
  for (const auto& row : rows) {
    std::string seen = nameBoxAvailable(row.state) ? "B" : "-";
    const struct {
      int command;
      char letter;
    } marks[] = {{id::REMOVE, 'R'},   {id::PRINT, 'P'}, {id::PRINTPREVIEW, 'V'}, {id::FIRST, 'f'},
                 {id::PREVIOUS, 'p'}, {id::NEXT, 'N'},  {id::LAST, 'L'},         {id::SAVE, 'S'}};
    for (const auto& mark : marks)
      seen += commandAvailable(mark.command, row.state) ? mark.letter : '-';
    EXPECT_EQ(seen, row.available) << row.state.count << " " << row.state.current;
  }
}
