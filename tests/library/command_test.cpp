#include "library/command.h"

#include <gtest/gtest.h>

#include "library/command_descriptions.h"
#include "mainwindow/commands.h"
#include "printing/preview_commands.h"

using namespace library;

namespace {

// Each row is refused by one check, behind two that all accept.
TEST(Commands, AreCheckedRowByRow) {
  using enum ToolButton;
  constexpr Shortcut key{Key::home};
  const struct {
    Command row;
    const char* found;  // Number or name, Menu, Line, Picture, Shortcut
  } rows[] = {
      {{3, 1, "C", "&Copy", "SAVE", plain, {Key::end}}, "-----"},
      {{line, 1, "C"}, "-----"},
      {{2, 1, "C", "&Copy"}, "N----"},
      {{3, 1, "B", "&Copy"}, "N----"},
      {{3, 4, "C", "&Copy"}, "-M---"},
      {{3, 3, "C", "&Copy"}, "-M---"},
      {{3, 1, "C"}, "--L--"},
      {{line, 1, "C", "&Copy"}, "--L--"},
      {{line, menuBar, "C"}, "--L--"},
      {{3, 1, "C", "&Copy", "", plain}, "---P-"},
      {{3, 1, "C", "&Copy", "COPY"}, "---P-"},
      {{3, 1, "C", "&Copy", "", none, key}, "----S"},
      {{3, 1, "C", "&Copy", "", none, {Key{'C'}, Held::alt}}, "----S"},
      {{3, 1, "C", "&Copy", "", none, {Key{'C'}}}, "----S"},
  };
  for (const auto& [row, found] : rows) {
    const Command table[] = {{1, menuBar, "A", "&A"}, {2, 1, "B", "&B", "NEW", plain, key}, row};
    std::string seen;
    seen += numbersAndNamesAreUnique(table) ? '-' : 'N';
    seen += menusStandBeforeTheirItems(table) ? '-' : 'M';
    seen += linesAreBare(table) ? '-' : 'L';
    seen += picturesAreThere(table) ? '-' : 'P';
    seen += shortcutsCanWork(table) ? '-' : 'S';
    EXPECT_EQ(seen, found) << row.number << row.name << row.caption;
  }
  const Command table[] = {{2, menuBar, "A", "&A"}, {5, 2, "B", "&B"}};
  for (const int known : {5, 6, 0})
    EXPECT_EQ(holdsEveryCommand(table, 4, [&](int number) { return number == known; }), known == 5);
}

TEST(Commands, AreDescribed) {
  for (const Commands table :
       {Commands(mainwindow::mainCommands), Commands(printing::previewCommands)}) {
    for (const Command& command : table) {
      const bool known = commandDescription(command.caption, {}).has_value();
      EXPECT_TRUE(known || command.number < mainwindow::id::NEW) << command.caption;
    }
  }
}

}  // namespace
