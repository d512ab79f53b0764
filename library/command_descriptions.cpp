#include "library/command_descriptions.h"

#include <algorithm>
#include <iterator>

namespace library {
namespace {

enum class Window { any, preview, others };

// In a description, "@" is replaced by the noun for documents, "#" by the product's name.
struct Row {
  std::string_view caption;
  std::string_view description;
  Window window = Window::any;
};

constexpr std::string_view recent = "Open this recent document in #";

// All products of the maker share this table, so most rows are for commands that this program does
// not have. A caption finds the first row that it begins with. Rows that can never be found,
// because an earlier one matches too ("&New" before "&New Window"), stay deliberately.
constexpr Row rows[] = {
    {"&New", "Create a new @"},
    {"&Open", "Open an existing @"},
    {"&ReOpen", "Reopen the current @ and loosing any changes"},
    {"&Save", "Save current @"},
    {"Save &As", "Save current @ under a new name"},
    {"&HTML Export", "Export current @ to an HTML document"},
    {"E&xcel Export", "Export current @ to a spreadsheet"},
    {"&Rename", "Rename current @"},
    {"&Delete", "Delete current @"},
    {"Page Set&up", "Change page options"},
    {"&Print", "Print the current @"},
    {"Print Pre&view", "Show a preview before printing"},
    {"&Zoom In", "Zoom in to @"},
    {"&Zoom Out", "Zoom out of @"},
    {"200 %", "View @ at 200 %"},
    {"150 %", "View @ at 150 %"},
    {"100 %", "View @ at 100 %"},
    {"75 %", "View @ at 75 %"},
    {"50 %", "View @ at 50 %"},
    {"25 %", "View @ at 25 %"},
    {"&Page Width", "View @ at page width"},
    {"&Whole Page", "View the whole page"},
    {"&Previous Page", "Show the previous page"},
    {"&Next Page", "Show the next page"},
    {"&First Page", "Show the first page"},
    {"&Last Page", "Show the last page"},
    {"&HTML Preview", "View the @ in the default browser"},
    {"Pre&view", "Show a preview of the current @"},
    {"&Run Viewer", "Start the viewer with the current @"},
    {"Pre&ferences", "Change settings that affect how # works"},
    {"&1", recent},
    {"&2", recent},
    {"&3", recent},
    {"&4", recent},
    {"&5", recent},
    {"&6", recent},
    {"&7", recent},
    {"&8", recent},
    {"&9", recent},
    {"&0", recent},
    {"&10", recent},
    {"&11", recent},
    {"&12", recent},
    {"&13", recent},
    {"&14", recent},
    {"&15", recent},
    {"&16", recent},
    {"&17", recent},
    {"&18", recent},
    {"&19", recent},
    {"&20", recent},
    {"&21", recent},
    {"&22", recent},
    {"&23", recent},
    {"&24", recent},
    {"&25", recent},
    {"&26", recent},
    {"&27", recent},
    {"&28", recent},
    {"&29", recent},
    {"&30", recent},
    {"Cl&ear Recent List", "Clear the recently opened documents list"},
    {"E&xit", "Quits #; prompts to save @"},
    {"&Close", "Close the current document", Window::others},
    {"&Close", "Close Print Preview", Window::preview},
    {"&Undo", "Undo the last action"},
    {"Cu&t", "Cut the selection to the Clipboard"},
    {"&Copy", "Copy the selection to the Clipboard"},
    {"&Copy to", "Copy the selection to another place"},
    {"&Add", "Add to current @"},
    {"A&dd All", "Add every item to current @"},
    {"&Move to", "Move the selection to another place"},
    {"&Paste", "Insert Clipboard contents at cursor"},
    {"Cl&ear", "Clear the selection"},
    {"&Remove", "Remove from current @"},
    {"Re&move", "Remove the selected item"},
    {"Select &All", "Select the entire document"},
    {"Spe&ll Checker", "Check the spelling of the current document"},
    {"&Calculate", "Calculate the current figures"},
    {"&Salary Details", "Change salary details"},
    {"&Find", "Find text within the current document"},
    {"Find &Next", "Find the next match within the current document"},
    {"&Replace", "Replace text within the current document"},
    {"&Go To", "Go to text within the current document"},
    {"&Standard Toolbar", "Show or hide the standard toolbar"},
    {"&Formatting Toolbar", "Show or hide the formatting toolbar"},
    {"R&uler", "Show or hide the ruler"},
    {"S&tatus Bar", "Show or hide the status bar"},
    {"&Header/Footer", "Change header and footer details"},
    {"&Properties", "Display properties from current @"},
    {"Proper&ties", "Display properties of the selected item"},
    {"&Date Of Birth", "Insert date of birth"},
    {"&Date", "Insert the current date"},
    {"&Time", "Insert the current time"},
    {"&Address", "Insert full address"},
    {"Phone &N", "Insert phone number"},
    {"&Fax N", "Insert fax number"},
    {"&Email Address", "Insert email address"},
    {"&Website Address", "Insert website address"},
    {"&Full Name", "Insert full name"},
    {"&Job Title", "Insert job title"},
    {"&Mobile Phone", "Insert mobile phone number"},
    {"&Pager", "Insert pager number"},
    {"&Picture", "Insert a picture at cursor"},
    {"&Symbol", "Insert a symbol at cursor"},
    {"&File", "Insert the contents of a file at cursor"},
    {"&HTML Color Code", "Insert the code of a color at cursor"},
    {"In&sert and Close", "Insert at cursor and close the window"},
    {"&Insert", "Insert at cursor"},
    {"&Settings", "Change settings of the current window"},
    {"&Left", "Set alignment to left"},
    {"C&enter", "Set alignment to center"},
    {"&Right", "Set alignment to right"},
    {"Fo&nt", "Change the font"},
    {"C&olor", "Change the font color"},
    {"&Bold", "Toggle font bold"},
    {"&Italic", "Toggle font italic"},
    {"&Underline", "Toggle font underline"},
    {"Bulle&ts", "Toggle bullets"},
    {"&Increase Font Size", "Increase the font size"},
    {"&Decrease Font Size", "Decrease the font size"},
    {"&Increase Indent", "Increase the indent"},
    {"&Decrease Indent", "Decrease the indent"},
    {"For&mat Painter", "Copy the format of the selection"},
    {"&Small Capitals", "Toggle small capitals"},
    {"&Paragraph", "Change paragraph settings"},
    {"&Tabs", "Change tab settings"},
    {"&New Window", "Create a new window"},
    {"Ca&scade", "Arrange windows so they overlap"},
    {"Tile &Horizontal", "Arrange windows one above the other"},
    {"Tile &Vertical", "Arrange windows side by side"},
    {"Arrange &Icons", "Arrange the icons of reduced windows"},
    {"Close &All", "Close all current documents"},
    {"&Help Topics", "Display help contents for #"},
    {"&Zandor Online", "Visit Zandor Online website"},
    {"&About", "Display information about #"},
    {"Nex&t", "Switch to the next page window"},
};
static_assert(std::size(rows) == 137, "a row was lost, or the number here is to be raised");

struct SystemRow {
  unsigned code;
  std::string_view description;
};
constexpr SystemRow systemRows[] = {
    {61728, "Restore the window to normal size"},
    {61456, "Change the window position"},
    {61440, "Change the window size"},
    {61472, "Reduce the window to an icon"},
    {61488, "Enlarge the window to full size"},
    {61536, "Close the current window and prompts to save the documents"},
};

bool matches(const Row& row, std::string_view caption, bool preview) {
  if (row.window != Window::any && (row.window == Window::preview) != preview) return false;
  return caption.starts_with(row.caption);
}

}  // namespace

std::optional<std::string> commandDescription(std::string_view caption,
                                              const DescriptionContext& context) {
  const auto* row = std::find_if(std::begin(rows), std::end(rows), [&](const Row& candidate) {
    return matches(candidate, caption, context.previewWindow);
  });
  if (row == std::end(rows)) return std::nullopt;
  std::string_view pattern = row->description;
  // Only the description of "E&xit" has a second half, which the picture product does not show.
  if (context.pictureProduct) pattern = pattern.substr(0, pattern.find(';'));
  std::string text;
  for (const char c : pattern) {
    if (c == '@')
      text += context.noun;
    else if (c == '#')
      text += context.product;
    else
      text += c;
  }
  return text;
}

std::string systemCommandDescription(unsigned code) {
  for (const SystemRow& row : systemRows)
    if (row.code == code) return std::string(row.description);
  return {};
}

}  // namespace library
