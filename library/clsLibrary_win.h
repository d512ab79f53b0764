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
  // Settings store. Root keys travel as the decimal text of their signed 32-bit value.

  /// The stored text, or `SDEFAULT` for a missing key, a missing or too long value (255 bytes
  /// with its terminator are the most) and any type that is no text. Empty after an error.
  std::string REGSTRREAD(const std::string& hKey, const std::string& SUBKEY,
                         const std::string& VALNAME, const std::string& SDEFAULT);
  /// Stores a text; whether that succeeded.
  bool REGSTRWRITE(const std::string& hKey, const std::string& SUBKEY, const std::string& VALNAME,
                   const std::string& SDATAVAL);
  /// In spite of its name it writes: stores bytes; whether that succeeded. Deliberate.
  bool REGBINARYREAD(const std::string& hKey, const std::string& SUBKEY, const std::string& VALNAME,
                     const std::vector<std::uint8_t>& DATA);
  /// Stores the fixed toolbar bytes of the product family.
  void REGBINARYWRITE();
  /// In spite of its name it writes: stores a number; always 0. Deliberate.
  std::int32_t REGDWORDREAD(std::int32_t hKey, const std::string& SUBKEY,
                            const std::string& VALNAME, std::int32_t DATA);

  /// Folder that documents are kept in, ending in a backslash.
  std::string FILESLOCATION();
  /// A folder's path with a backslash at its end; one of three characters or fewer stays as it is.
  std::string FILENAMELENCHK(const std::string& PATHSTR);
  /// Registered owner of this Windows; empty where there is none.
  std::string GETCOMPANYNAME();
  /// Registered organization of this Windows, looked for under the user; empty where there is none.
  std::string GETCOMPANYREG();
  /// The program's version as major.minor.
  std::string GETAPPNUMBER();
  /// Folder of Windows, without a final backslash.
  std::string GETWINDOWSDIR();
  /// The folder "Desktop" in that of Windows, with a final backslash; the program's own folder, as
  /// it is, where there is none.
  std::string GETDESKTOPDIR();
  /// Folder part of a path, without its final backslash. Raises overflow where no backslash
  /// stands within the last 32,767 characters of a longer text.
  std::string GETFOLDERPATH(const std::string& PATHSTR);

  // Window placement.

  /// Puts a form where the user left it. Raises type mismatch for a stored value that is no
  /// number and overflow for a screen too wide for 16 bits.
  void FORMLOAD(const std::string& FORMNAME, windowing::Form& CURRENTFORM, bool RESIZE);
  /// Stores where a form is, in twips, and, with `RESIZE` set, its size and state; nothing while it
  /// is minimised.
  void FORMSAVE(const std::string& FORMNAME, windowing::Form& CURRENTFORM, bool RESIZE);
  /// Places the form's BTNCLOSE at the right end of its strip. Raises where there is none.
  void RESIZEBTNCLOSE(windowing::Form& CURRENTFORM);
  /// Places the form's BTNOK and BTNCANCEL likewise. Raises without the former; without the latter
  /// OK keeps its left edge.
  void RESIZEBTNSOKCANCEL(windowing::Form& CURRENTFORM);
  /// Arms the hook that centres the next dialog of the system, and that one only.
  void HOOKFRMLOAD();
  /// Disarms it where no dialog came.
  void HOOKFRMUNLOAD();

  // Menus, status bar and descriptions.

  /// Adds one item to the icon menu of `ICOMNUFORM`, with a picture from `IMGLSTFORM` when
  /// `ICONKEY` is not empty.
  void MENUCREATE(CommandForm& ICOMNUFORM, CommandForm& IMGLSTFORM, const std::string& CAPTION,
                  const std::string& ICONKEY, int PARENT, bool ENABLED, bool CHECKED,
                  int MENUNUMBER);
  /// Gives an item the picture of `IMAGEKEY`; nothing for an empty key.
  void ICOMNUSETUP(CommandForm& ICOMNUFORM, CommandForm& IMGLSTFORM, int MENUNUMBER,
                   const std::string& IMAGEKEY);
  /// Shows a text, with a full stop appended, in the first panel of the form's SBMAIN; an empty
  /// text empties the panel. Raises when the form has no status bar.
  void STATUSBARCAPTION(windowing::Form& SBFORM, const std::string& STATUSTEXT, bool FLAG);
  /// Describes the highlighted item, or, with `SHOWVAL` set, clears the description.
  void STATUSTEXTDESC(CommandForm& ICOMNUFORM, CommandForm& SBFORM, int MENUNUMBER, bool SHOWVAL,
                      const std::string& NOUN);
  /// Describes a toolbar button, known by its key.
  void GETTBARDESCRIPTIONS(CommandForm& FORM, const std::string& BUTTONKEY,
                           const std::string& NOUN);
  /// Describes a command of the system menu; any other code clears the text.
  void describeSystemCommand(windowing::Form& SBFORM, std::uint32_t CODE);
  /// Whether the pointer lies in a rectangle of the form's client area, in pixels; right and bottom
  /// edge lie outside.
  bool MOUSEMOVE(windowing::Form& FORM, int CONTROLLEFT, int CONTROLRIGHT, int CONTROLTOP,
                 int CONTROLBOTTOM);
  /// The same for the frame of a program with several documents.
  bool MOUSEMOVEMDI(windowing::Form& FORM, int CONTROLLEFT, int CONTROLRIGHT, int CONTROLTOP,
                    int CONTROLBOTTOM);

  // Messages by number. Raise type mismatch where a count is not a number.

  /// Shows message `MSGNO` with the given texts; an empty box where there is no such message.
  void MESSAGEBOX(int MSGNO, const std::string& FILE1, const std::string& FILE2,
                  const std::string& FILE3, const std::string& FILE4);
  /// Asks question `MSGNO`, an empty box likewise; the button pressed: IDYES 6, IDNO 7, IDCANCEL 2
  /// or IDOK 1.
  int MESSAGEBOXFCN(int MSGNO, const std::string& FILE1, const std::string& FILE2,
                    const std::string& FILE3, const std::string& FILE4);

  // Files.

  /// The name, or "Untitled" where it is empty.
  std::string FILECHK(const std::string& FILENAME);
  /// Whether there is a file of this path; a folder is none, and a wildcard finds nothing.
  bool FILEEXISTS(const std::string& FILEPATH);
  /// Whether there is a folder of this path, with or without a final backslash.
  bool FOLDEREXIST(const std::string& FILELOCATION);
  /// Has the shell put a file into the recycle bin; it asks and reports itself. Nothing for
  /// all but the full path of one file or folder.
  void FILEDELETE(const std::string& FILEPATH);
  /// Has the shell move or rename what it finds by the path or pattern given.
  void FILEMOVE(const std::string& FILELOCATION, const std::string& FILEDESTINATION);
  void FILERENAME(const std::string& CURRENTFILENAME, const std::string& NEWFILENAME);
  /// Whether the caller may write a file of this name: there is none, or the user agrees.
  bool OVERWRITECHK(const std::string& CURRENTFILENAME);
  /// Shows a form that browses folders, modal to `CURRENTFORM`; it finds owner and starting folder
  /// in the program-wide variables. A form that cannot be shown is no error.
  void FOLDERBROWSE(windowing::Form& CURRENTFORM, const std::string& CURRENTFLDRLOCATION,
                    windowing::Form& MODALFORM);
  /// Opens an address, after the prefix `LINKTYPESTR`, with the program registered for it; nothing
  /// for an empty address. A double quote goes to the shell as "%22". `HWNDTEXT` is the owner's
  /// handle as decimal text.
  void INTERNETACCESS(const std::string& HWNDTEXT, const std::string& LINKTYPESTR,
                      const std::string& ADDRESS);
  /// The address with "http://" before it, unless it is empty or begins with "http://" or "ftp://".
  std::string HTMLFORMATCHECK(const std::string& ADDRESS);

  // Text and numbers.

  /// False where the character occurs in the text, true otherwise.
  bool CHARCHECK(const std::string& TEXT, char CHAR);
  /// The number in a text with two decimals and the user's decimal sign; empty where it is none.
  std::string CURRENCYFMT(const std::string& TEXT);
  /// Likewise, with one decimal.
  std::string TEXTJUSTIFY(const std::string& TEXT);
  /// Likewise, with two decimals.
  std::string TEXTJUSTIFYCURRENCY(const std::string& TEXT);
  /// What stands before the first `TOKEN`, which is one character; empty where there is none.
  std::string TOKENLEFT(const std::string& SOURCE, const std::string& TOKEN);
  /// Number that piece `PIECENO`, from 1, begins with; 0 for none. Raises overflow where the piece
  /// ends beyond character 32,767.
  double PIECE(const std::string& TEXT, char SEPARATOR, std::int16_t PIECENO);
  /// Number of words between blanks and line ends; a "-" at a line's end joins two lines.
  std::int32_t WORDCOUNT(const std::string& TEXT);
  /// "#", then red, green and blue as two hexadecimal digits each, then the three in decimal.
  std::string GETHEXVAL(std::int32_t COLOR);
  /// Decimal text of a signed 16-bit value in hexadecimal digits; "0" for what is none.
  std::string HEX2STR(const std::string& INHEX);
  /// A caption cut to 32 characters, then without its "&".
  std::string GETCAPTION(const std::string& CAPTION);
  /// Wording of a colour depth in bits per pixel; empty for one without.
  std::string GETCOLORDEPTH(const std::string& DEPTH);
  /// The key to accept in an amount box, or 0 to reject it.
  int TXTCURRENCYLOCK(windowing::TextBox TXTBOX, int KEYASCIIVAL);
  /// Makes a combo box's list open tall enough for a number of entries, and gives it the flat
  /// look when `FLAT` is set. Handle and number are decimal texts; raises type mismatch or overflow
  /// where they are none.
  void COMBOINIT(const std::string& HWNDTEXT, const std::string& ITEMCOUNT,
                 windowing::ComboBox CBONAME, bool FLAT);

  // Page setup, header and footer; their bodies live with the page setup form.

  /// Opens the page setup, modal, on its page settings or on its header and footer. Where no
  /// printer is installed, the user is told so instead.
  void PAGESETUPPAGESHOW();
  void PAGESETUPHEADFOOTSHOW();
  /// Inches of a distance in pixels of the current printer. Raises a printer error where there is
  /// none.
  double SHOWUNITS(std::int32_t PIXELS, bool VERTICAL);
  /// Draws header and footer on the current printer's open page, or on a preview's picture.
  /// Margins are twips. The engine hands them over as left, top, right, bottom; the crossing is
  /// deliberate. Raises overflow where a place leaves 16 bits.
  void PAGEHEADERFOOTERINFO(const std::string& PGNO, std::int16_t Left, std::int16_t Top,
                            std::int16_t Bottom, std::int16_t Right);
  void PAGEHEADERFOOTERINFOPREVIEW(paper::PagePicture& TARGET, const std::string& PGNO,
                                   std::int16_t Left, std::int16_t Top, std::int16_t Bottom,
                                   std::int16_t Right);
};

/// The program's one library object.
[[nodiscard]] clsLibrary& LIBRARY();

}  // namespace library
