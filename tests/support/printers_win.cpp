#include "tests/support/printers_win.h"

#include <windows.h>

#include <winspool.h>

#include <stdexcept>
#include <string>

#include "tests/support/files_win.h"

namespace test_support {
namespace {

struct Paper {
  const char* name;
  short code;
  int width;  // points
  int height;
};

constexpr char workingDriver[] = "wineps.drv";

struct Device {
  const char* name;
  const char* driver;
  const char* file;  // of its description and its output, without extension
  int dpi;
  int left;  // unprintable strips, points
  int right;
  int top;
  int bottom;
  Paper first;
  Paper second;
};

constexpr Paper letterPaper{"Letter", DMPAPER_LETTER, 612, 792};
constexpr Paper a4Paper{"A4", DMPAPER_A4, 595, 842};
constexpr Device devices[] = {
    {TestPrinters::letter, "Tellary Letter driver", "letter", 600, 18, 24, 36, 30, letterPaper,
     a4Paper},
    {TestPrinters::a4, "Tellary A4 driver", "a4", 300, 10, 14, 12, 20, a4Paper, letterPaper},
};
constexpr Device brokenDevice{
    TestPrinters::broken, "Tellary broken driver", "broken", 300, 0, 0, 0, 0, a4Paper, letterPaper};

std::string folder() {
  char path[MAX_PATH] = "";
  GetTempPathA(MAX_PATH, path);
  return path;
}

std::string outputOf(const Device& device) {
  return folder() + "tellary_" + device.file + ".ps";
}

std::string numbers(int a, int b) {
  return std::to_string(a) + ' ' + std::to_string(b);
}

std::string description(const Device& device) {
  std::string papers;
  for (const Paper& paper : {device.first, device.second}) {
    const std::string name = paper.name;
    const std::string size = numbers(paper.width, paper.height);
    const std::string area = numbers(device.left, device.bottom) + ' ' +
                             numbers(paper.width - device.right, paper.height - device.top);
    papers.append("*PageSize ").append(name).append(": \"<</PageSize[").append(size);
    papers.append("]>>setpagedevice\"\n*ImageableArea ").append(name).append(": \"").append(area);
    papers.append("\"\n*PaperDimension ").append(name).append(": \"").append(size).append("\"\n");
  }
  return "*PPD-Adobe: \"4.3\"\n*NickName: \"" + std::string(device.driver) +
         "\"\n*LanguageLevel: \"3\"\n*ColorDevice: True\n*TTRasterizer: Type42\n"
         "*LandscapeOrientation: Plus90\n*DefaultResolution: " +
         std::to_string(device.dpi) + "dpi\n*DefaultPageSize: " + device.first.name + '\n' +
         papers + "*DefaultFont: Courier\n*Font Courier: Standard \"(001.000)\" Standard ROM\n";
}

void check(BOOL done, const char* step) {
  if (!done && GetLastError() != ERROR_PRINTER_ALREADY_EXISTS &&
      GetLastError() != ERROR_PRINTER_DRIVER_ALREADY_INSTALLED)
    throw std::runtime_error(std::string(step) + " failed: " + std::to_string(GetLastError()));
}

char* mutableText(const char* text) {
  return const_cast<char*>(text);
}

void install(const Device& device, const char* module = workingDriver) {
  const std::string ppd = folder() + "tellary_" + device.file + ".ppd";
  writeFile(ppd, description(device));
  DRIVER_INFO_3A driver{};
  driver.cVersion = 3;
  driver.pName = mutableText(device.driver);
  driver.pEnvironment = mutableText("Windows NT x86");
  driver.pDriverPath = mutableText(module);
  driver.pDataFile = mutableText(ppd.c_str());
  driver.pConfigFile = mutableText(module);
  driver.pDefaultDataType = mutableText("RAW");
  check(AddPrinterDriverExA(nullptr, 3, reinterpret_cast<BYTE*>(&driver),
                            APD_COPY_NEW_FILES | APD_COPY_FROM_DIRECTORY),
        "AddPrinterDriverEx");
  const std::string port = outputOf(device);
  PRINTER_INFO_2A printer{};
  printer.pPrinterName = mutableText(device.name);
  printer.pPortName = mutableText(port.c_str());
  printer.pDriverName = mutableText(device.driver);
  printer.pPrintProcessor = mutableText("WinPrint");
  printer.pDatatype = mutableText("RAW");
  const HANDLE added = AddPrinterA(nullptr, 2, reinterpret_cast<BYTE*>(&printer));
  check(added != nullptr, "AddPrinter");
  if (added != nullptr) ClosePrinter(added);
}

// The driver keeps what a program asked for as its default as long as the process lives.
void restoreDefaults(const Device& device) {
  HANDLE printer = nullptr;
  check(OpenPrinterA(mutableText(device.name), &printer, nullptr), "OpenPrinter");
  char* const name = mutableText(device.name);
  std::string settings(
      static_cast<std::size_t>(DocumentPropertiesA(nullptr, printer, name, nullptr, nullptr, 0)),
      '\0');
  auto* mode = reinterpret_cast<DEVMODEA*>(settings.data());
  DocumentPropertiesA(nullptr, printer, name, mode, nullptr, DM_OUT_BUFFER);
  mode->dmFields = DM_PAPERSIZE | DM_ORIENTATION | DM_COPIES;
  mode->dmPaperSize = device.first.code;
  mode->dmOrientation = DMORIENT_PORTRAIT;
  mode->dmCopies = 1;
  DocumentPropertiesA(nullptr, printer, name, mode, mode, DM_IN_BUFFER | DM_OUT_BUFFER);
  ClosePrinter(printer);
}

void remove(const Device& device) {
  PRINTER_DEFAULTSA access{nullptr, nullptr, PRINTER_ALL_ACCESS};
  HANDLE printer = nullptr;
  if (!OpenPrinterA(mutableText(device.name), &printer, &access)) return;
  DeletePrinter(printer);
  ClosePrinter(printer);
}

}  // namespace

TestPrinters::TestPrinters() {
  for (const Device& device : devices) {
    install(device);
    restoreDefaults(device);
  }
  check(SetDefaultPrinterA(letter), "SetDefaultPrinter");
  clearJobs();
}

TestPrinters::~TestPrinters() {
  for (const Device& device : devices) remove(device);
  remove(brokenDevice);
  clearJobs();
}

void TestPrinters::addBroken() {
  const std::string module = folder() + "tellary_broken.drv";
  writeFile(module, "no program");
  install(brokenDevice, module.c_str());
  check(SetDefaultPrinterA(broken), "SetDefaultPrinter");
}
void TestPrinters::removeLetter() {
  remove(devices[0]);
}

std::string TestPrinters::letterJob() {
  return readFile(outputOf(devices[0])).value_or("");
}
std::string TestPrinters::a4Job() {
  return readFile(outputOf(devices[1])).value_or("");
}
void TestPrinters::clearJobs() {
  for (const Device& device : devices) {
    const std::string output = outputOf(device);
    if (!DeleteFileA(output.c_str())) RemoveDirectoryA(output.c_str());
  }
}
void TestPrinters::blockLetterOutput() {
  clearJobs();
  CreateDirectoryA(outputOf(devices[0]).c_str(), nullptr);
}

}  // namespace test_support
