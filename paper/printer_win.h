// The program's current printer: which device it is, how its page is set up, and the document
// that is being sent to it.
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

/// A printer with the program's own settings for it. It starts as the Windows default printer
/// and never changes that. Every operation that needs a printer raises a printer error when
/// there is none, or when the device refuses; settings it did not take are as they were before.
class Printer {
 public:
  Printer() = default;
  Printer(const Printer&) = delete;
  Printer& operator=(const Printer&) = delete;
  /// A document still open is left to the printing system.
  ~Printer() { abandonDocument(); }

  /// Asks no device: a printer that does not answer has a name, too. Empty where there is none.
  [[nodiscard]] std::string name() const;
  /// Changes to another printer, by its full name or its index in `printerNames`.
  void select(const std::string& name);
  void selectAt(int index);

  /// Raises a printer error when the device is gone or cannot be asked for its settings.
  void check() const;

  /// Settings of the device, driver's own data included. Never empty.
  [[nodiscard]] const std::vector<BYTE>& settings();
  /// Takes printer and settings as a dialog gave them.
  void adopt(const std::string& name, const DEVMODEA& settings);

  /// Device context with the settings in force. It stays the same until another printer is
  /// chosen; changes made while a page is open wait for the next page.
  [[nodiscard]] HDC dc();

  /// Size of the paper, twips.
  [[nodiscard]] double width();
  [[nodiscard]] double height();
  /// Unit of the scale size; twips at first.
  void setScaleMode(PrinterScale mode) { scaleMode_ = mode; }
  [[nodiscard]] PrinterScale scaleMode() const { return scaleMode_; }
  /// Size of the printable area in the unit of the scale mode.
  [[nodiscard]] double scaleWidth();
  [[nodiscard]] double scaleHeight();
  /// Paper and unprintable strip at its left and top, in device pixels.
  [[nodiscard]] SIZE physicalSize();
  [[nodiscard]] POINT physicalOffset();
  [[nodiscard]] double twipsPerPixelX();
  [[nodiscard]] double twipsPerPixelY();

  /// Code of the paper as the device reports it. Setting takes any code but 0, which raises an
  /// invalid call; a paper the device does not know leaves it with what it reports then.
  [[nodiscard]] int paperSize();
  void setPaperSize(int code);
  /// Values other than the two raise an invalid call.
  [[nodiscard]] Orientation orientation();
  void setOrientation(Orientation orientation);
  /// Copies that the device makes of each document, 1 to 32767.
  [[nodiscard]] int copies();
  void setCopies(int copies);

  /// Format of texts that the program itself writes on a page.
  [[nodiscard]] const TextFormat& font() const { return font_; }
  void setFont(const TextFormat& font) { font_ = font; }

  /// The first output starts the document and its first page; returns the device context.
  HDC startOutput();
  /// Ends the open page (starting the document when there is none) and begins another.
  void newPage();
  /// Ends page and document; nothing when none is open.
  void endDocument();
  /// As `endDocument`, but whatever the device says to it: after an error.
  void abandonDocument() noexcept;
  [[nodiscard]] bool documentOpen() const { return documentOpen_; }

 private:
  DEVMODEA& mode();
  void load(const std::string& name);
  void applyMode();
  [[nodiscard]] int capability(int index) { return GetDeviceCaps(dc(), index); }

  std::string name_;  ///< empty, with the settings, until the device was asked for them
  std::vector<BYTE> settings_;
  values::MemoryDc dc_;
  bool stale_ = false;  ///< dc_ does not have the settings yet
  bool documentOpen_ = false;
  bool pageOpen_ = false;
  PrinterScale scaleMode_ = PrinterScale::twips;
  TextFormat font_;
};

/// The program's current printer.
[[nodiscard]] Printer& printer();

}  // namespace paper
