// Printing the contact on screen.
#include "mainwindow/frmMain_ids.h"
#include "mainwindow/frmMain_win.h"
#include "printing/clsPrinting_win.h"
#include "printing/compose_report_win.h"
#include "printing/frmPPrev_win.h"
#include "printing/printer_ready_win.h"
#include "windowing/hourglass_win.h"

namespace mainwindow {

// The box is made when something is printed for the first time: most sessions never do, and the
// system's rich text library takes its time to load.
paper::RichTextBox& frmMain::RTF1() {
  if (RTF1_.handle() == nullptr) RTF1_.create(handle(), id::RTF1, {0, 0, 100, 100});
  return RTF1_;
}

// From what stands in the boxes: edits that are not stored yet are printed as they stand.
void frmMain::ComposeContactReport() {
  const windowing::Hourglass waiting;
  const document::ContactRecord values = valuesOnScreen();
  try {
    printing::composeReport(values, RTF1(), printing::thePreview().RTF3());
  } catch (...) {
    // Half a report is none to be printed later.
    RTF1().setPlain({});
    throw;
  }
}

// The toolbar's button prints the contact on screen at once. The menu's command prints the report
// composed last, after the dialog; that is deliberate. The button stays silent about a printer that
// does not answer, also deliberately.
void frmMain::printAtOnce() {
  if (!printing::printerInstalled()) return;
  ComposeContactReport();
  printing::PRINTING().PRINTDOCUMENT(printing::thePreview(), RTF1(), true);
}

void frmMain::printLastReport() {
  if (!printing::printerReady()) return;
  printing::PRINTING().PRINTDOCUMENT(printing::thePreview(), RTF1(), false);
}

// As the menu's Print: the report composed last, deliberately.
void frmMain::previewLastReport() {
  printing::PRINTING().setReport(RTF1());
  printing::PRINTING().PRINTPREVIEW();
}

}  // namespace mainwindow
