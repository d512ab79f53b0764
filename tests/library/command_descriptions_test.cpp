#include "library/command_descriptions.h"

#include <gtest/gtest.h>

using namespace library;

namespace {

const DescriptionContext mainWindow{"noun", "Product"};
const DescriptionContext preview{"noun", "Product", true};

std::string described(std::string_view caption, const DescriptionContext& context = mainWindow) {
  return commandDescription(caption, context).value_or("(none)");
}

}  // namespace

TEST(CommandDescriptions, CommandsOfThisProgram) {
  const struct {
    const char *caption, *text;
  } rows[] = {
      {"&New", "Create a new noun"},
      {"&Open...", "Open an existing noun"},
      {"&Save", "Save current noun"},
      {"Save &As...", "Save current noun under a new name"},
      {"&Print...", "Print the current noun"},
      {"Print Pre&view", "Show a preview before printing"},
      {"Page Set&up...", "Change page options"},
      {"E&xit\tAlt+F4", "Quits Product; prompts to save noun"},
      {"&Add\tIns", "Add to current noun"},
      {"&Remove\tCtrl+Del", "Remove from current noun"},
      {"&Standard Toolbar", "Show or hide the standard toolbar"},
      {"S&tatus Bar", "Show or hide the status bar"},
      {"&Header/Footer...", "Change header and footer details"},
      {"&Properties...", "Display properties from current noun"},
      {"&First Page\tHome", "Show the first page"},
      {"&Previous Page\tPgUp", "Show the previous page"},
      {"&Next Page\tPgDn", "Show the next page"},
      {"&Last Page\tEnd", "Show the last page"},
      {"&Zandor Online", "Visit Zandor Online website"},
      {"&About", "Display information about Product"},
      {"&Zoom In", "Zoom in to noun"},
      {"&Zoom Out", "Zoom out of noun"},
      {"200 %", "View noun at 200 %"},
      {"25 %", "View noun at 25 %"},
      {"&Page Width", "View noun at page width"},
      {"&Whole Page", "View the whole page"},
      {"&Close", "Close the current document"},
  };
  for (const auto& row : rows) EXPECT_EQ(described(row.caption), row.text) << row.caption;
  EXPECT_EQ(described("&Close\tAlt+F4", preview), "Close Print Preview");
  EXPECT_EQ(described("&About", preview), "Display information about Product");
  EXPECT_EQ(described("E&xit", {"noun", "Product", false, true}), "Quits Product");
}

TEST(CommandDescriptions, CommandsOfTheFamily) {
  const struct {
    const char *caption, *text;
  } rows[] = {
      {"&ReOpen", "Reopen the current noun and loosing any changes"},
      {"&Rename", "Rename current noun"},
      {"&Delete", "Delete current noun"},
      {"&HTML Preview", "View the noun in the default browser"},
      {"Cl&ear Recent List", "Clear the recently opened documents list"},
      {"Pre&ferences", "Change settings that affect how Product works"},
      {"&Help Topics", "Display help contents for Product"},
      {"&Undo", "Undo the last action"},
      {"Cu&t", "Cut the selection to the Clipboard"},
      {"&Copy", "Copy the selection to the Clipboard"},
      {"&Paste", "Insert Clipboard contents at cursor"},
      {"Select &All", "Select the entire document"},
      {"&Find", "Find text within the current document"},
      {"&Replace", "Replace text within the current document"},
      {"&Go To", "Go to text within the current document"},
      {"Phone &Number", "Insert phone number"},
      {"&Email Address", "Insert email address"},
      {"&Website Address", "Insert website address"},
      {"&Left", "Set alignment to left"},
      {"&Bold", "Toggle font bold"},
      {"Ca&scade", "Arrange windows so they overlap"},
      {"Close &All", "Close all current documents"},
      {"Nex&t", "Switch to the next page window"},
      {"&7 C:\\Book.tly", "Open this recent document in Product"},
  };
  for (const auto& row : rows) EXPECT_EQ(described(row.caption), row.text) << row.caption;
}

TEST(CommandDescriptions, EveryCaptionOfTheFamilyFindsARow) {
  // In table order; a row that hides a later one is the one found.
  const char* captions[] = {"&New",
                            "&Open",
                            "&ReOpen",
                            "&Save",
                            "Save &As",
                            "&HTML Export",
                            "E&xcel Export",
                            "&Rename",
                            "&Delete",
                            "Page Set&up",
                            "&Print",
                            "Print Pre&view",
                            "&Zoom In",
                            "&Zoom Out",
                            "200 %",
                            "150 %",
                            "100 %",
                            "75 %",
                            "50 %",
                            "25 %",
                            "&Page Width",
                            "&Whole Page",
                            "&Previous Page",
                            "&Next Page",
                            "&First Page",
                            "&Last Page",
                            "&HTML Preview",
                            "Pre&view",
                            "&Run Viewer",
                            "Pre&ferences",
                            "&1",
                            "&2",
                            "&3",
                            "&4",
                            "&5",
                            "&6",
                            "&7",
                            "&8",
                            "&9",
                            "&0",
                            "&10",
                            "&11",
                            "&12",
                            "&13",
                            "&14",
                            "&15",
                            "&16",
                            "&17",
                            "&18",
                            "&19",
                            "&20",
                            "&21",
                            "&22",
                            "&23",
                            "&24",
                            "&25",
                            "&26",
                            "&27",
                            "&28",
                            "&29",
                            "&30",
                            "Cl&ear Recent List",
                            "E&xit",
                            "&Close",
                            "&Undo",
                            "Cu&t",
                            "&Copy",
                            "&Copy to",
                            "&Add",
                            "A&dd All",
                            "&Move to",
                            "&Paste",
                            "Cl&ear",
                            "&Remove",
                            "Re&move",
                            "Select &All",
                            "Spe&ll Checker",
                            "&Calculate",
                            "&Salary Details",
                            "&Find",
                            "Find &Next",
                            "&Replace",
                            "&Go To",
                            "&Standard Toolbar",
                            "&Formatting Toolbar",
                            "R&uler",
                            "S&tatus Bar",
                            "&Header/Footer",
                            "&Properties",
                            "Proper&ties",
                            "&Date Of Birth",
                            "&Date",
                            "&Time",
                            "&Address",
                            "Phone &N",
                            "&Fax N",
                            "&Email Address",
                            "&Website Address",
                            "&Full Name",
                            "&Job Title",
                            "&Mobile Phone",
                            "&Pager",
                            "&Picture",
                            "&Symbol",
                            "&File",
                            "&HTML Color Code",
                            "In&sert and Close",
                            "&Insert",
                            "&Settings",
                            "&Left",
                            "C&enter",
                            "&Right",
                            "Fo&nt",
                            "C&olor",
                            "&Bold",
                            "&Italic",
                            "&Underline",
                            "Bulle&ts",
                            "&Increase Font Size",
                            "&Decrease Font Size",
                            "&Increase Indent",
                            "&Decrease Indent",
                            "For&mat Painter",
                            "&Small Capitals",
                            "&Paragraph",
                            "&Tabs",
                            "&New Window",
                            "Ca&scade",
                            "Tile &Horizontal",
                            "Tile &Vertical",
                            "Arrange &Icons",
                            "Close &All",
                            "&Help Topics",
                            "&Zandor Online",
                            "&About",
                            "Nex&t"};
  EXPECT_EQ(std::size(captions), 136U);
  for (const char* caption : captions)
    for (const DescriptionContext& context : {mainWindow, preview})
      EXPECT_GT(described(caption, context).size(), 8U) << caption;
}

TEST(CommandDescriptions, FirstMatchInTableOrderWins) {
  const struct {
    const char *caption, *sameAs;
  } hidden[] = {{"&Save All", "&Save"}, {"&New Window", "&New"},
                {"&Copy to", "&Copy"},  {"&Address", "&Add"},
                {"&27", "&2"},          {"&Date Of Birth", "&Date Of Birth!"}};
  for (const auto& row : hidden) EXPECT_EQ(described(row.caption), described(row.sameAs));
  EXPECT_NE(described("&Date Of Birth"), described("&Date"));
  EXPECT_NE(described("&Properties"), described("Proper&ties"));
  EXPECT_NE(described("&Remove"), described("Re&move"));
  EXPECT_NE(described("Save &As"), described("&Save"));
  EXPECT_NE(described("Cl&ear Recent List"), described("Cl&ear"));
  for (const char* unknown : {"", "&save", "Save", "&Edit", "&View", "100%", " &New"})
    EXPECT_FALSE(commandDescription(unknown, mainWindow)) << unknown;
}

TEST(CommandDescriptions, SystemMenu) {
  const struct {
    unsigned code;
    const char* text;
  } rows[] = {{61728, "Restore the window to normal size"},
              {61456, "Change the window position"},
              {61440, "Change the window size"},
              {61472, "Reduce the window to an icon"},
              {61488, "Enlarge the window to full size"},
              {61536, "Close the current window and prompts to save the documents"},
              {0, ""},
              {61504, ""},
              {static_cast<unsigned>(static_cast<short>(61536)), ""}};
  for (const auto& row : rows) EXPECT_EQ(systemCommandDescription(row.code), row.text);
}
