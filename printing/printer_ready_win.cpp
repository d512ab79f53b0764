#include "printing/printer_ready_win.h"

#include <windows.h>

#include <string>

#include "library/clsLibrary_win.h"
#include "library/message_numbers.h"
#include "paper/printer_win.h"
#include "values/runtime_error.h"
#include "windowing/application_win.h"
#include "windowing/modal_win.h"
#include "windowing/seams_win.h"

namespace printing {

bool printerInstalled() {
  if (!paper::printerNames().empty()) return true;
  library::LIBRARY().MESSAGEBOX(library::message::noPrinter, "", "", "", "");
  return false;
}

bool printerReady() {
  if (!printerInstalled()) return false;
  try {
    paper::printer().check();
    return true;
  } catch (const values::RuntimeError&) {
    windowing::seams().messageBox(windowing::dialogOwner(),
                                  "The printer \"" + paper::printer().name() +
                                      "\" does not answer. Choose another one in Page Setup.",
                                  windowing::productName(), MB_OK | MB_ICONEXCLAMATION);
    return false;
  }
}

}  // namespace printing
