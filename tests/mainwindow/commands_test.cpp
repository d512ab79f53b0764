#include "mainwindow/commands.h"

#include <gtest/gtest.h>

#include "library/command_descriptions.h"
#include "mainwindow/availability.h"

using namespace mainwindow;
namespace id = library::id;

TEST(Commands, KeysInTheirOrderAndButtons) {
  std::string keys, buttons;
  for (const Command& command : commands) {
    if (!command.key.empty()) keys += std::string(command.key) + ",";
    if (!command.key.empty() && !command.onToolbar) buttons += std::string(command.key) + ",";
  }
  EXPECT_EQ(keys,
            "NEW,OPEN,SAVE,SAVE AS,PRINT,PRINT PREVIEW,ADD,REMOVE,HEADERFOOTER,PROPERTIES,"
            "FIRST PAGE,PREVIOUS PAGE,NEXT PAGE,LAST PAGE,ZANDOR ONLINE,ABOUT,");
  EXPECT_EQ(buttons, "PROPERTIES,ZANDOR ONLINE,ABOUT,");
}

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

TEST(Commands, FoundByNumberAndByExactKey) {
  ASSERT_NE(findCommand("SAVE AS"), nullptr);
  EXPECT_EQ(findCommand("SAVE AS")->id, id::SAVEAS);
  EXPECT_EQ(findCommand(id::WEBSITE)->menuItem, "MNUHELPWEBSITE");
  for (const char* key : {"", "save", "EXIT", "SAVE "}) EXPECT_EQ(findCommand(key), nullptr) << key;
  for (const int number : {0, 1, 2, 40021, id::preview::PRINT})
    EXPECT_EQ(findCommand(number), nullptr) << number;
  for (const Command& command : commands)
    EXPECT_TRUE(library::commandDescription(command.caption, {"noun", "Product"}))
        << command.caption;
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

TEST(Availability, TheRestIsAlwaysThere) {
  for (const int command :
       {id::NEW, id::OPEN, id::SAVEAS, id::PAGESETUP, id::EXIT, id::ADD, id::STANDARDBAR,
        id::STATUSBAR, id::HEADERFOOTER, id::PROPERTIES, id::WEBSITE, id::ABOUT})
    EXPECT_TRUE(commandAvailable(command, {})) << command;
}
