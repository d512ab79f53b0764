// Printing the contact on screen.
#include "mainwindow/frmMain_ids.h"
#include "mainwindow/frmMain_win.h"
#include "printing/clsPrinting_win.h"
#include "printing/compose_report_win.h"
#include "printing/frmPPrev_win.h"
#include "printing/printer_ready_win.h"
#include "windowing/hourglass_win.h"

namespace mainwindow {

// The box is made when it is first used: the rich text library takes long to load, and often
// nothing is printed.
paper::RichTextBox& frmMain::RTF1() {
  if (RTF1_.handle() == nullptr) RTF1_.create(handle(), id::RTF1, {0, 0, 100, 100});
  return RTF1_;
}

// Composes the report from the texts in the boxes, with edits that are not stored yet.
void frmMain::ComposeContactReport() {
  const windowing::Hourglass waiting;
  const document::ContactRecord values = valuesOnScreen();
  try {
    printing::composeReport(values, RTF1(), printing::thePreview().RTF3());
  } catch (...) {
    // Part of a report must not be printed later.
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

// Deliberate: the preview shows the report composed last, as the menu's Print prints it.
void frmMain::previewLastReport() {
  printing::PRINTING().setReport(RTF1());
  printing::PRINTING().PRINTPREVIEW();
}

}  // namespace mainwindow
