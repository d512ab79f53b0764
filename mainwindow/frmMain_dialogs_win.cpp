// Opening the dialogs.
#include "dialogs/frmProps_win.h"
#include "library/modLibrary_win.h"
#include "mainwindow/frmMain_design_win.h"
#include "mainwindow/frmMain_win.h"
#include "printing/report.h"

namespace mainwindow {

document::ContactRecord frmMain::valuesOnScreen() const {
  document::ContactRecord values = list_.record(list_.current());
  if (!shownWhole_) return values;
  for (const auto& [field, box] : boxesOn(madePages_)) values[field->slot] = box.text();
  return values;
}

// The properties count the lines of the report of the contact on screen, with its edits. That
// report is composed separately: the menu's Print still prints the one that was composed last.
void frmMain::showProperties() {
  library::modLibrary().documentKind = CMD1.fileName.empty() ? "UNTITLED" : "DOCUMENT";
  dialogs::frmProps properties;
  properties.setDocumentText([this] {
    std::string text;
    for (const printing::ReportStep& step : printing::reportOf(valuesOnScreen()))
      text += step.kind == printing::ReportStep::Kind::lineBreak ? "\r\n" : step.text;
    return text;
  });
  properties.showModal();
}

}  // namespace mainwindow
