#include "printing/compose_report_win.h"

#include "printing/report.h"

namespace printing {
namespace {

// Empties the box before the format is set, since formatting a long text takes long and the text is
// replaced anyway.
void prepare(paper::RichTextBox& box, const paper::TextFormat& format) {
  box.setPlain({});
  box.setFormat(format);
}

}  // namespace

void composeReport(const document::ContactRecord& values, paper::RichTextBox& RTF1,
                   paper::RichTextBox& RTF3) {
  paper::TextFormat format = RTF1.format();
  format.points = paper::documentPoints;
  RTF3.setPlain({});
  for (const ReportStep& step : reportOf(values)) {
    if (step.kind == ReportStep::Kind::lineBreak) {
      RTF3.insertLineBreak();
      continue;
    }
    format.bold = step.kind == ReportStep::Kind::boldText;
    prepare(RTF1, format);
    RTF1.setPlain(step.text);
    RTF3.replaceSelection(RTF1.richText());
  }
  format.bold = false;
  prepare(RTF1, format);
  RTF1.setRichText(RTF3.richText());
}

}  // namespace printing
