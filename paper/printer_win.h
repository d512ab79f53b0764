// The program's current printer: its device, its page settings, and the document that is being
// printed.
#pragma once

#include <windows.h>

#include <winspool.h>

#include <string>
#include <vector>

#include "paper/text_format.h"
#include "values/handles_win.h"

namespace paper {

/// Full names of the installed printers in the system's order.
[[nodiscard]] std::vector<std::string> printerNames();

enum class PrinterScale : int { twips = 1, pixels = 3 };
enum class Orientation : int { portrait = 1, landscape = 2 };

/// A printer with the program's own settings for it. At first it is the Windows default printer,
/// whose own settings never change. Every operation that needs a printer raises a printer error
/// when there is none or the device refuses; settings that the device refuses do not change.
class Printer {
 public:
  Printer() = default;
  Printer(const Printer&) = delete;
  Printer& operator=(const Printer&) = delete;
  /// Gives up a document that is still open.
  ~Printer() { abandonDocument(); }

  /// Name of the printer, also of one that does not answer: no device is asked. Empty where there
  /// is no printer.
  [[nodiscard]] std::string name() const;
  /// Changes to another printer, by its full name.
  void select(const std::string& name);

  /// Raises a printer error when the device is gone or cannot be asked for its settings.
  void check() const;

  /// Settings of the device, with the driver's own data. Never empty.
  [[nodiscard]] const std::vector<BYTE>& settings();
  /// Changes to the printer and the settings that the user chose in a dialog.
  void adopt(const std::string& name, const DEVMODEA& settings);

  /// Device context with the current settings. It stays the same until another printer is chosen.
  /// Settings that change while a page is open hold from the next page on.
  [[nodiscard]] HDC dc();

  /// Size of the paper, twips.
  [[nodiscard]] double width();
  [[nodiscard]] double height();
  /// Unit of `scaleWidth` and `scaleHeight`; twips at first.
  void setScaleMode(PrinterScale mode) { scaleMode_ = mode; }
  /// Size of the printable area, in the unit that `setScaleMode` set.
  [[nodiscard]] double scaleWidth();
  [[nodiscard]] double scaleHeight();
  /// Size of the paper, and widths of the unprintable strips at its left and top, device pixels.
  [[nodiscard]] SIZE physicalSize();
  [[nodiscard]] POINT physicalOffset();
  [[nodiscard]] double twipsPerPixelX();
  [[nodiscard]] double twipsPerPixelY();

  /// Code of the paper as the device reports it. Setting raises an invalid call for the code 0. For
  /// a code that the device does not know, the paper is the one that the device reports afterwards.
  [[nodiscard]] int paperSize();
  void setPaperSize(int code);
  /// Setting raises an invalid call for any value but the two.
  [[nodiscard]] Orientation orientation();
  void setOrientation(Orientation orientation);
  /// Number of copies of each document, 1 to 32767.
  [[nodiscard]] int copies();
  void setCopies(int copies);

  /// Format of texts that the program itself writes on a page.
  [[nodiscard]] const TextFormat& font() const { return font_; }
  void setFont(const TextFormat& font) { font_ = font; }

  /// Called before any output: starts the document and its first page if they are not open, and
  /// returns the device context.
  HDC startOutput();
  /// Ends the open page (starting the document when there is none) and begins another.
  void newPage();
  /// Ends page and document. Does nothing when none is open.
  void endDocument();
  /// For use after an error: ends page and document like `endDocument`, but ignores further errors.
  void abandonDocument() noexcept;
  [[nodiscard]] bool documentOpen() const { return documentOpen_; }

 private:
  DEVMODEA& mode();
  void load(const std::string& name);
  void applyMode();
  [[nodiscard]] int capability(int index) { return GetDeviceCaps(dc(), index); }

  std::string name_;  ///< empty, like the settings, until these are read from the device
  std::vector<BYTE> settings_;
  values::MemoryDc dc_;
  bool stale_ = false;  ///< the settings changed since dc_ was given them
  bool documentOpen_ = false;
  bool pageOpen_ = false;
  PrinterScale scaleMode_ = PrinterScale::twips;
  TextFormat font_;
};

/// The program's current printer.
[[nodiscard]] Printer& printer();

}  // namespace paper
