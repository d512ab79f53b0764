// The common library of the maker's products: settings, placement, menus and descriptions,
// messages, file and text helpers, header and footer drawing. One object serves the program.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <vector>

#include "windowing/control_win.h"
#include "windowing/form_win.h"

namespace paper {
class PagePicture;
}

namespace library {

class CommandForm;

class clsLibrary {
 public:
  // Settings store. Root keys are given as the decimal text of their signed 32-bit value.

  /// The stored text. `SDEFAULT` where the key or the value is missing, where the value is longer
  /// than 255 bytes with its terminator, and where it is not a text. Empty after an error.
  std::string REGSTRREAD(const std::string& hKey, const std::string& SUBKEY,
                         const std::string& VALNAME, const std::string& SDEFAULT);
  /// Stores a text; true where that succeeded.
  bool REGSTRWRITE(const std::string& hKey, const std::string& SUBKEY, const std::string& VALNAME,
                   const std::string& SDATAVAL);
  /// Stores bytes; true where that succeeded. That it writes in spite of its name is deliberate.
  bool REGBINARYREAD(const std::string& hKey, const std::string& SUBKEY, const std::string& VALNAME,
                     const std::vector<std::uint8_t>& DATA);
  /// Stores the fixed toolbar bytes of the product family.
  void REGBINARYWRITE();
  /// Stores a number and returns 0. That it writes in spite of its name is deliberate.
  std::int32_t REGDWORDREAD(std::int32_t hKey, const std::string& SUBKEY,
                            const std::string& VALNAME, std::int32_t DATA);

  /// The folder for documents, with a final backslash.
  std::string FILESLOCATION();
  /// A folder's path with a backslash at its end; one of three characters or fewer stays as it is.
  std::string FILENAMELENCHK(const std::string& PATHSTR);
  /// Registered owner of Windows; empty where there is none.
  std::string GETCOMPANYNAME();
  /// Registered organization of Windows, as stored for the user; empty where there is none.
  std::string GETCOMPANYREG();
  /// The program's version as major.minor.
  std::string GETAPPNUMBER();
  /// Folder of Windows, without a final backslash.
  std::string GETWINDOWSDIR();
  /// The folder "Desktop" in the folder of Windows, with a final backslash. Where that does not
  /// exist, the program's own folder, without one.
  std::string GETDESKTOPDIR();
  /// Folder part of a path, without its final backslash. Raises overflow where a text longer than
  /// 32,767 characters has no backslash within its last 32,767.
  std::string GETFOLDERPATH(const std::string& PATHSTR);

  // Window placement.

  /// Puts a form where the user left it; with `RESIZE` set, with its size and state too. Raises
  /// type mismatch for a stored value that is no number, and overflow for a screen too wide for 16
  /// bits.
  void FORMLOAD(const std::string& FORMNAME, windowing::Form& CURRENTFORM, bool RESIZE);
  /// Stores where a form is, in twips, and with `RESIZE` set its size and state too. Stores nothing
  /// while it is minimised.
  void FORMSAVE(const std::string& FORMNAME, windowing::Form& CURRENTFORM, bool RESIZE);
  /// Places the form's BTNCLOSE at the right end of its strip. Raises where the form has none.
  void RESIZEBTNCLOSE(windowing::Form& CURRENTFORM);
  /// Places the form's BTNOK and BTNCANCEL there. Raises where the form has no BTNOK; where it has
  /// no BTNCANCEL, BTNOK keeps its left edge.
  void RESIZEBTNSOKCANCEL(windowing::Form& CURRENTFORM);
  /// Arms a hook that centres the next dialog of the system, and no other.
  void HOOKFRMLOAD();
  /// Disarms the hook, in case no dialog opened.
  void HOOKFRMUNLOAD();

  // Menus, status bar and descriptions.

  /// Adds one item to the icon menu of `ICOMNUFORM`, with a picture from `IMGLSTFORM` when
  /// `ICONKEY` is not empty.
  void MENUCREATE(CommandForm& ICOMNUFORM, CommandForm& IMGLSTFORM, const std::string& CAPTION,
                  const std::string& ICONKEY, int PARENT, bool ENABLED, bool CHECKED,
                  int MENUNUMBER);
  /// Gives an item the picture of `IMAGEKEY`. Does nothing for an empty key.
  void ICOMNUSETUP(CommandForm& ICOMNUFORM, CommandForm& IMGLSTFORM, int MENUNUMBER,
                   const std::string& IMAGEKEY);
  /// Shows a text, with a full stop appended, in the first panel of the form's SBMAIN; an empty
  /// text empties the panel. Raises when the form has no status bar.
  void STATUSBARCAPTION(windowing::Form& SBFORM, const std::string& STATUSTEXT, bool FLAG);
  /// Shows the description of a highlighted item; with `SHOWVAL` set, clears the text instead.
  void STATUSTEXTDESC(CommandForm& ICOMNUFORM, CommandForm& SBFORM, int MENUNUMBER, bool SHOWVAL,
                      const std::string& NOUN);
  /// Shows the description of a toolbar button, which `BUTTONKEY` names.
  void GETTBARDESCRIPTIONS(CommandForm& FORM, const std::string& BUTTONKEY,
                           const std::string& NOUN);
  /// Shows the description of a command of the system menu; for any other code, clears the text.
  void describeSystemCommand(windowing::Form& SBFORM, std::uint32_t CODE);
  /// Whether the pointer is in a rectangle of the form's client area, given in pixels. The right
  /// and bottom edges do not belong to it.
  bool MOUSEMOVE(windowing::Form& FORM, int CONTROLLEFT, int CONTROLRIGHT, int CONTROLTOP,
                 int CONTROLBOTTOM);
  /// The same for the frame of a program with several documents.
  bool MOUSEMOVEMDI(windowing::Form& FORM, int CONTROLLEFT, int CONTROLRIGHT, int CONTROLTOP,
                    int CONTROLBOTTOM);

  // Messages by number. Raise type mismatch where a count is not a number.

  /// Shows message `MSGNO` with the given texts; an empty box where there is no such message.
  void MESSAGEBOX(int MSGNO, const std::string& FILE1, const std::string& FILE2,
                  const std::string& FILE3, const std::string& FILE4);
  /// Asks question `MSGNO` with the given texts; an empty box where there is no such question.
  /// Returns the button pressed: IDYES 6, IDNO 7, IDCANCEL 2 or IDOK 1.
  int MESSAGEBOXFCN(int MSGNO, const std::string& FILE1, const std::string& FILE2,
                    const std::string& FILE3, const std::string& FILE4);

  // Files.

  /// `FILENAME`, or "Untitled" where it is empty.
  std::string FILECHK(const std::string& FILENAME);
  /// Whether there is a file of this path. False for a folder and for a path with wildcards.
  bool FILEEXISTS(const std::string& FILEPATH);
  /// Whether there is a folder of this path, with or without a final backslash.
  bool FOLDEREXIST(const std::string& FILELOCATION);
  /// Has the shell move a file or folder to the recycle bin; the shell asks the user and reports
  /// errors. Does nothing where `FILEPATH` is not the full path of one file or folder.
  void FILEDELETE(const std::string& FILEPATH);
  /// Has the shell move or rename the files that the path or pattern names.
  void FILEMOVE(const std::string& FILELOCATION, const std::string& FILEDESTINATION);
  void FILERENAME(const std::string& CURRENTFILENAME, const std::string& NEWFILENAME);
  /// Whether the caller may write a file of this name: true where none exists or the user agrees.
  bool OVERWRITECHK(const std::string& CURRENTFILENAME);
  /// Shows a form that browses folders, modal to `CURRENTFORM`. The form reads its owner and its
  /// starting folder from the program-wide variables. An error of showing it is ignored.
  void FOLDERBROWSE(windowing::Form& CURRENTFORM, const std::string& CURRENTFLDRLOCATION,
                    windowing::Form& MODALFORM);
  /// Puts the prefix `LINKTYPESTR` before an address and opens it with the program registered for
  /// it. Does nothing for an empty address. Passes a double quote as "%22". `HWNDTEXT` is the
  /// owner's handle as decimal text.
  void INTERNETACCESS(const std::string& HWNDTEXT, const std::string& LINKTYPESTR,
                      const std::string& ADDRESS);
  /// The address with "http://" before it, unless it is empty or begins with "http://" or "ftp://".
  std::string HTMLFORMATCHECK(const std::string& ADDRESS);

  // Text and numbers.

  /// False where the character occurs in the text, true otherwise.
  bool CHARCHECK(const std::string& TEXT, char CHAR);
  /// The number in `TEXT` with two decimals and the user's decimal sign; empty where `TEXT` is no
  /// number.
  std::string CURRENCYFMT(const std::string& TEXT);
  /// The same with one decimal.
  std::string TEXTJUSTIFY(const std::string& TEXT);
  /// The same as CURRENCYFMT.
  std::string TEXTJUSTIFYCURRENCY(const std::string& TEXT);
  /// The part of `SOURCE` before the first `TOKEN` (one character); empty where it has none.
  std::string TOKENLEFT(const std::string& SOURCE, const std::string& TOKEN);
  /// The number at the start of piece `PIECENO` (from 1) of `TEXT`; 0 where there is none. Raises
  /// overflow where the piece ends beyond character 32,767.
  double PIECE(const std::string& TEXT, char SEPARATOR, std::int16_t PIECENO);
  /// Number of words. Blanks and line ends divide words; a "-" at the end of a line joins it to the
  /// next line.
  std::int32_t WORDCOUNT(const std::string& TEXT);
  /// "#", then red, green and blue as two hexadecimal digits each, then the three in decimal.
  std::string GETHEXVAL(std::int32_t COLOR);
  /// Decimal text of a signed 16-bit value that is given in hexadecimal digits; "0" for any other
  /// text.
  std::string HEX2STR(const std::string& INHEX);
  /// A caption cut to 32 characters, then without its "&".
  std::string GETCAPTION(const std::string& CAPTION);
  /// Text for a colour depth in bits per pixel; empty for an unknown depth.
  std::string GETCOLORDEPTH(const std::string& DEPTH);
  /// The key to accept in an amount box, or 0 to reject it.
  int TXTCURRENCYLOCK(windowing::TextBox TXTBOX, int KEYASCIIVAL);
  /// Makes the list of a combo box open tall enough for `ITEMCOUNT` entries, and gives the combo
  /// box the flat look when `FLAT` is set. Handle and number are decimal texts; raises type
  /// mismatch or overflow where they are not.
  void COMBOINIT(const std::string& HWNDTEXT, const std::string& ITEMCOUNT,
                 windowing::ComboBox CBONAME, bool FLAT);

  // Page setup, header and footer; their bodies are in pagesetup/.

  /// Opens the page setup, modal, on its page settings or on its header and footer. Where no
  /// printer is installed, tells the user so instead.
  void PAGESETUPPAGESHOW();
  void PAGESETUPHEADFOOTSHOW();
  /// Inches of a distance in pixels of the current printer. Raises a printer error where there is
  /// none.
  double SHOWUNITS(std::int32_t PIXELS, bool VERTICAL);
  /// Draws header and footer on the current printer's open page, or on a preview's picture.
  /// Margins are twips. The engine passes them in the order left, top, right, bottom; that the last
  /// two are swapped is deliberate. Raises overflow where a place does not fit in 16 bits.
  void PAGEHEADERFOOTERINFO(const std::string& PGNO, std::int16_t Left, std::int16_t Top,
                            std::int16_t Bottom, std::int16_t Right);
  void PAGEHEADERFOOTERINFOPREVIEW(paper::PagePicture& TARGET, const std::string& PGNO,
                                   std::int16_t Left, std::int16_t Top, std::int16_t Bottom,
                                   std::int16_t Right);
};

/// The program's one library object.
[[nodiscard]] clsLibrary& LIBRARY();

}  // namespace library
