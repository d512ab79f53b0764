// The common library of the maker's products: settings, placement, menus and descriptions,
// messages, file and text helpers, header and footer drawing. One object serves the program.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <vector>

#include "windowing/control_win.h"
#include "windowing/form_win.h"

namespace windowing {
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
  std::string FILENAMELENCHK(const std::string& PATHSTR);
  /// Registered owner and organization of this Windows; empty where there is none.
  std::string GETCOMPANYNAME();
  std::string GETCOMPANYREG();
  /// The program's version as major.minor.
  std::string GETAPPNUMBER();
  std::string GETWINDOWSDIR();
  std::string GETDESKTOPDIR();
  /// Folder part of a path, without its final backslash. Raises overflow where no backslash
  /// stands within the last 32,767 characters of a longer text.
  std::string GETFOLDERPATH(const std::string& PATHSTR);

  // Window placement.

  /// Puts a form where the user left it. Raises type mismatch for a stored value that is no
  /// number and overflow for a screen too wide for 16 bits.
  void FORMLOAD(const std::string& FORMNAME, windowing::Form& CURRENTFORM, bool RESIZE);
  void FORMSAVE(const std::string& FORMNAME, windowing::Form& CURRENTFORM, bool RESIZE);
  void RESIZEBTNCLOSE(windowing::Form& CURRENTFORM);
  void RESIZEBTNSOKCANCEL(windowing::Form& CURRENTFORM);
  /// Arms and disarms the hook that centres the next dialog of the system.
  void HOOKFRMLOAD();
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
  void SYSTEMMENUDESC(windowing::Form& SBFORM, std::uint32_t CODE);
  /// Whether the pointer lies in a rectangle of the form's client area.
  bool MOUSEMOVE(windowing::Form& FORM, int CONTROLLEFT, int CONTROLRIGHT, int CONTROLTOP,
                 int CONTROLBOTTOM);
  bool MOUSEMOVEMDI(windowing::Form& FORM, int CONTROLLEFT, int CONTROLRIGHT, int CONTROLTOP,
                    int CONTROLBOTTOM);

  // Messages by number. Raise type mismatch where a count is not a number.

  void MESSAGEBOX(int MSGNO, const std::string& FILE1, const std::string& FILE2,
                  const std::string& FILE3, const std::string& FILE4);
  /// The button pressed: IDYES 6, IDNO 7, IDCANCEL 2 or IDOK 1.
  int MESSAGEBOXFCN(int MSGNO, const std::string& FILE1, const std::string& FILE2,
                    const std::string& FILE3, const std::string& FILE4);

  // Files.

  std::string FILECHK(const std::string& FILENAME);
  bool FILEEXISTS(const std::string& FILEPATH);
  bool FOLDEREXIST(const std::string& FILELOCATION);
  void FILEDELETE(const std::string& FILEPATH);
  void FILEMOVE(const std::string& FILELOCATION, const std::string& FILEDESTINATION);
  void FILERENAME(const std::string& CURRENTFILENAME, const std::string& NEWFILENAME);
  /// Whether the caller may write a file of this name: there is none, or the user agrees.
  bool OVERWRITECHK(const std::string& CURRENTFILENAME);
  void FOLDERBROWSE(windowing::Form& CURRENTFORM, const std::string& CURRENTFLDRLOCATION,
                    windowing::Form& MODALFORM);
  /// Opens an address with the program registered for it; nothing for an empty address.
  void INTERNETACCESS(const std::string& HWNDTEXT, const std::string& LINKTYPESTR,
                      const std::string& ADDRESS);
  std::string HTMLFORMATCHECK(const std::string& ADDRESS);

  // Text and numbers.

  bool CHARCHECK(const std::string& TEXT, char CHAR);
  std::string CURRENCYFMT(const std::string& TEXT);
  std::string TEXTJUSTIFY(const std::string& TEXT);
  std::string TEXTJUSTIFYCURRENCY(const std::string& TEXT);
  std::string TOKENLEFT(const std::string& SOURCE, const std::string& TOKEN);
  double PIECE(const std::string& TEXT, char SEPARATOR, std::int16_t PIECENO);
  std::int32_t WORDCOUNT(const std::string& TEXT);
  std::string GETHEXVAL(std::int32_t COLOR);
  std::string HEX2STR(const std::string& INHEX);
  std::string GETCAPTION(const std::string& CAPTION);
  std::string GETCOLORDEPTH(const std::string& DEPTH);
  /// The key to accept in an amount box, or 0 to reject it.
  int TXTCURRENCYLOCK(windowing::TextBox TXTBOX, int KEYASCIIVAL);
  /// Makes a combo box's list open tall enough for a number of entries, and gives it the flat
  /// look when `FLAT` is set.
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
  void PAGEHEADERFOOTERINFOPREVIEW(windowing::PagePicture& TARGET, const std::string& PGNO,
                                   std::int16_t Left, std::int16_t Top, std::int16_t Bottom,
                                   std::int16_t Right);
};

/// The program's one library object.
[[nodiscard]] clsLibrary& LIBRARY();

}  // namespace library
