// The report as rich text.
#pragma once

#include "document/ContactRecord.h"
#include "paper/richtextbox_win.h"

namespace printing {

/// Composes the report of `values`, the texts on screen. Each piece is made in `RTF1` and added to
/// `RTF3`; in the end `RTF1` gets the whole report. The text is 10 points in the face of `RTF1`.
void composeReport(const document::ContactRecord& values, paper::RichTextBox& RTF1,
                   paper::RichTextBox& RTF3);

}  // namespace printing
