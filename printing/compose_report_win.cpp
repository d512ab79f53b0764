#include "printing/compose_report_win.h"

#include "printing/report.h"

namespace printing {

void composeReport(const document::ContactRecord& values, windowing::RichTextBox& RTF1,
                   windowing::RichTextBox& RTF3) {
  windowing::TextFormat format = RTF1.format();
  format.points = windowing::documentPoints;
  RTF1.setPlain({});
  RTF3.setPlain({});
  for (const ReportStep& step : reportOf(values)) {
    if (step.kind == ReportStep::Kind::lineBreak) {
      RTF3.insertLineBreak();
      continue;
    }
    format.bold = step.kind == ReportStep::Kind::boldText;
    RTF1.setFormat(format);
    RTF1.setPlain(step.text);
    RTF3.replaceSelection(RTF1.richText());
  }
  format.bold = false;
  RTF1.setFormat(format);
  RTF1.setRichText(RTF3.richText());
}

}  // namespace printing
