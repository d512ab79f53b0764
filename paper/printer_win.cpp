#include "paper/printer_win.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include "values/runtime_error.h"
#include "values/units.h"
#include "windowing/application_win.h"
#include "windowing/system_library_win.h"

namespace paper {
namespace {

// The printers' functions. Called through pointers, because an imported winspool.drv could come
// from the program's own folder.
struct Spooler {
  windowing::SystemLibrary library{"winspool.drv"};
  decltype(&OpenPrinterA) openPrinter = library.function("OpenPrinterA");
  decltype(&ClosePrinter) closePrinter = library.function("ClosePrinter");
  decltype(&DocumentPropertiesA) documentProperties = library.function("DocumentPropertiesA");
  decltype(&GetDefaultPrinterA) getDefaultPrinter = library.function("GetDefaultPrinterA");
  decltype(&EnumPrintersA) enumPrinters = library.function("EnumPrintersA");
};

const Spooler& spooler() {
  static const Spooler functions;
  return functions;
}

struct PrinterTraits {
  using Type = HANDLE;
  static Type empty() { return nullptr; }
  static void free(Type handle) { spooler().closePrinter(handle); }
};
using PrinterHandle = values::UniqueHandle<PrinterTraits>;

[[noreturn]] void raisePrinter() {
  throw values::RuntimeError(values::ErrorNumber::printer, "Printer error");
}
[[noreturn]] void raiseInvalidCall() {
  throw values::RuntimeError(values::ErrorNumber::invalidCall,
                             "Invalid procedure call or argument");
}

PrinterHandle open(const std::string& name) {
  HANDLE handle = nullptr;
  if (name.empty() || !spooler().openPrinter(const_cast<char*>(name.c_str()), &handle, nullptr))
    raisePrinter();
  return PrinterHandle(handle);
}

std::vector<BYTE> settingsOf(const std::string& name) {
  const PrinterHandle device = open(name);
  char* const deviceName = const_cast<char*>(name.c_str());
  const LONG size =
      spooler().documentProperties(nullptr, device.get(), deviceName, nullptr, nullptr, 0);
  if (size < static_cast<LONG>(sizeof(DEVMODEA))) raisePrinter();
  std::vector<BYTE> settings(static_cast<std::size_t>(size));
  if (spooler().documentProperties(nullptr, device.get(), deviceName,
                                   reinterpret_cast<DEVMODEA*>(settings.data()), nullptr,
                                   DM_OUT_BUFFER) < 0)
    raisePrinter();
  return settings;
}

std::string defaultPrinterName() {
  DWORD size = 0;
  spooler().getDefaultPrinter(nullptr, &size);
  std::vector<char> name(size + 1, '\0');
  if (size != 0 && spooler().getDefaultPrinter(name.data(), &size)) return name.data();
  // Where no printer is the default, the first one is used.
  const std::vector<std::string> names = printerNames();
  return names.empty() ? std::string() : names.front();
}

/// Restores settings at the end of a scope, unless the device accepted the changed ones (`taken`).
class UnlessTaken {
 public:
  explicit UnlessTaken(std::vector<BYTE>& settings) : settings_(settings), before_(settings) {}
  UnlessTaken(const UnlessTaken&) = delete;
  UnlessTaken& operator=(const UnlessTaken&) = delete;
  ~UnlessTaken() {
    if (!taken_) settings_.swap(before_);
  }
  void taken() { taken_ = true; }

 private:
  std::vector<BYTE>& settings_;
  std::vector<BYTE> before_;
  bool taken_ = false;
};

}  // namespace

std::vector<std::string> printerNames() {
  constexpr DWORD kinds = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS;
  constexpr DWORD level = 4;  // names only: Windows need not ask a printer or a server
  DWORD size = 0;
  DWORD count = 0;
  spooler().enumPrinters(kinds, nullptr, level, nullptr, 0, &size, &count);
  std::vector<PRINTER_INFO_4A> found(size / sizeof(PRINTER_INFO_4A) + 1);
  const std::size_t room = found.size() * sizeof(PRINTER_INFO_4A);
  if (size == 0 ||
      !spooler().enumPrinters(kinds, nullptr, level, reinterpret_cast<BYTE*>(found.data()),
                              static_cast<DWORD>(room), &size, &count))
    return {};
  std::vector<std::string> names;
  for (DWORD i = 0; i < count; ++i) names.emplace_back(found[i].pPrinterName);
  return names;
}

std::string Printer::name() const {
  return name_.empty() ? defaultPrinterName() : name_;
}

void Printer::check() const {
  static_cast<void>(settingsOf(name()));
}

void Printer::select(const std::string& wanted) {
  if (wanted == name_) return;
  load(wanted);
}

// Where the printer's settings cannot be read, this raises and changes nothing.
void Printer::load(const std::string& wanted) {
  std::vector<BYTE> settings = settingsOf(wanted);
  abandonDocument();
  dc_.reset();
  settings_ = std::move(settings);
  name_ = wanted;
}

void Printer::adopt(const std::string& device, const DEVMODEA& settings) {
  const bool other = device != name_;
  if (other) load(device);
  const auto* bytes = reinterpret_cast<const BYTE*>(&settings);
  settings_.assign(bytes, bytes + settings.dmSize + settings.dmDriverExtra);
  stale_ = true;
}

const std::vector<BYTE>& Printer::settings() {
  if (settings_.empty()) load(name());
  return settings_;
}

DEVMODEA& Printer::mode() {
  static_cast<void>(settings());
  return *reinterpret_cast<DEVMODEA*>(settings_.data());
}

// Has the driver check the settings: it replaces those that the device does not have.
void Printer::applyMode() {
  DEVMODEA& wanted = mode();
  const PrinterHandle device = open(name_);
  std::vector<BYTE> result(settings_.size());
  if (spooler().documentProperties(nullptr, device.get(), const_cast<char*>(name_.c_str()),
                                   reinterpret_cast<DEVMODEA*>(result.data()), &wanted,
                                   DM_IN_BUFFER | DM_OUT_BUFFER) < 0)
    raisePrinter();
  settings_ = std::move(result);
  stale_ = true;
}

HDC Printer::dc() {
  const DEVMODEA& wanted = mode();
  if (!dc_) {
    dc_.reset(CreateDCA("WINSPOOL", name_.c_str(), nullptr, &wanted));
    if (!dc_) raisePrinter();
    stale_ = false;
  } else if (stale_ && !pageOpen_) {
    if (ResetDCA(dc_.get(), &wanted) == nullptr) raisePrinter();
    stale_ = false;
  }
  return dc_.get();
}

double Printer::width() {
  return physicalSize().cx * twipsPerPixelX();
}
double Printer::height() {
  return physicalSize().cy * twipsPerPixelY();
}

double Printer::scaleWidth() {
  const double pixels = capability(HORZRES);
  return scaleMode_ == PrinterScale::pixels ? pixels : pixels * twipsPerPixelX();
}
double Printer::scaleHeight() {
  const double pixels = capability(VERTRES);
  return scaleMode_ == PrinterScale::pixels ? pixels : pixels * twipsPerPixelY();
}

SIZE Printer::physicalSize() {
  return {capability(PHYSICALWIDTH), capability(PHYSICALHEIGHT)};
}
POINT Printer::physicalOffset() {
  return {capability(PHYSICALOFFSETX), capability(PHYSICALOFFSETY)};
}

double Printer::twipsPerPixelX() {
  return values::toTwips(values::Pixels{1}, std::max(1, capability(LOGPIXELSX))).value;
}
double Printer::twipsPerPixelY() {
  return values::toTwips(values::Pixels{1}, std::max(1, capability(LOGPIXELSY))).value;
}

int Printer::paperSize() {
  return mode().dmPaperSize;
}

void Printer::setPaperSize(int code) {
  if (code <= 0 || code > std::numeric_limits<short>::max()) raiseInvalidCall();
  static_cast<void>(settings());
  UnlessTaken change(settings_);
  // The driver would prefer a form's name or a size in the settings to the code.
  const auto codeAlone = [this] {
    mode().dmFields &= ~static_cast<DWORD>(DM_FORMNAME | DM_PAPERLENGTH | DM_PAPERWIDTH);
    std::memset(mode().dmFormName, 0, sizeof mode().dmFormName);
    mode().dmPaperLength = 0;
    mode().dmPaperWidth = 0;
  };
  codeAlone();
  mode().dmPaperSize = static_cast<short>(code);
  mode().dmFields |= DM_PAPERSIZE;
  applyMode();
  change.taken();
  codeAlone();  // on Wine the driver has put the form of the old paper back
}

Orientation Printer::orientation() {
  return mode().dmOrientation == DMORIENT_LANDSCAPE ? Orientation::landscape
                                                    : Orientation::portrait;
}

void Printer::setOrientation(Orientation wanted) {
  if (wanted != Orientation::portrait && wanted != Orientation::landscape) raiseInvalidCall();
  static_cast<void>(settings());
  UnlessTaken change(settings_);
  mode().dmOrientation = static_cast<short>(wanted);
  mode().dmFields |= DM_ORIENTATION;
  applyMode();
  change.taken();
}

int Printer::copies() {
  return (mode().dmFields & DM_COPIES) != 0 ? std::max<int>(1, mode().dmCopies) : 1;
}

void Printer::setCopies(int wanted) {
  if (wanted < 1 || wanted > std::numeric_limits<short>::max()) raiseInvalidCall();
  if (copies() == wanted) return;
  mode().dmCopies = static_cast<short>(wanted);
  mode().dmFields |= DM_COPIES;
  stale_ = true;
}

HDC Printer::startOutput() {
  const HDC device = dc();
  if (!documentOpen_) {
    const std::string title = windowing::productName();
    DOCINFOA document{};
    document.cbSize = sizeof document;
    document.lpszDocName = title.c_str();
    if (StartDocA(device, &document) <= 0) raisePrinter();
    documentOpen_ = true;
  }
  if (!pageOpen_) {
    if (StartPage(device) <= 0) raisePrinter();
    pageOpen_ = true;
  }
  return device;
}

void Printer::newPage() {
  const HDC device = startOutput();
  pageOpen_ = false;
  if (EndPage(device) <= 0) raisePrinter();
  startOutput();
}

void Printer::endDocument() {
  if (!documentOpen_) return;
  const HDC device = dc_.get();
  const bool pageEnded = !pageOpen_ || EndPage(device) > 0;
  const bool documentEnded = EndDoc(device) > 0;
  pageOpen_ = false;
  documentOpen_ = false;
  // After an error, the next document may fail in the same device context.
  if (!pageEnded || !documentEnded) {
    dc_.reset();
    raisePrinter();
  }
}

void Printer::abandonDocument() noexcept {
  try {
    endDocument();
  } catch (const values::RuntimeError&) {
    dc_.reset();
  }
}

Printer& printer() {
  static Printer current;
  return current;
}

}  // namespace paper
