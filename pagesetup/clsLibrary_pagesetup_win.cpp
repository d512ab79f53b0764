// The functions of the library that open the page setup.
#include <windows.h>

#include "library/clsLibrary_win.h"
#include "library/message_numbers.h"
#include "pagesetup/frmPSetup_win.h"
#include "paper/printer_win.h"
#include "values/runtime_error.h"
#include "values/units.h"
#include "windowing/hourglass_win.h"
#include "windowing/modal_win.h"

namespace library {
namespace {

/// Shows an hourglass and a text in the main window's status bar until the end of the scope, since
/// asking printers may take long.
class Obtaining {
 public:
  Obtaining() { tell("Obtaining settings..."); }
  Obtaining(const Obtaining&) = delete;
  Obtaining& operator=(const Obtaining&) = delete;
  ~Obtaining() { tell(""); }

 private:
  static void tell(const std::string& text) {
    values::ignoringErrors([&] {
      windowing::Form* const main = windowing::formOf(windowing::mainWindow());
      if (main == nullptr) return;
      LIBRARY().STATUSBARCAPTION(*main, text, false);
      UpdateWindow(main->control("SBMAIN").handle());
    });
  }

  windowing::Hourglass waiting_;
};

// Opens the page setup. Where there is no printer, the user is told so first; margins, header and
// footer can be set all the same.
void showPageSetup(const char* tab) {
  pagesetup::frmPSetup form;
  bool printers = false;
  {
    const Obtaining obtaining;
    printers = !paper::printerNames().empty();
    form.load();
    form.selectTab(tab);
  }
  if (!printers) LIBRARY().MESSAGEBOX(message::noPrinter, "", "", "", "");
  form.showModal();
}

}  // namespace

void clsLibrary::PAGESETUPPAGESHOW() {
  showPageSetup("PAGE");
}

void clsLibrary::PAGESETUPHEADFOOTSHOW() {
  showPageSetup("HEADERFOOTER");
}

double clsLibrary::SHOWUNITS(std::int32_t PIXELS, bool VERTICAL) {
  paper::Printer& printer = paper::printer();
  const double twips = VERTICAL ? printer.twipsPerPixelY() : printer.twipsPerPixelX();
  return PIXELS * twips / values::twipsPerInch;
}

}  // namespace library
