// The report as rich text.
#pragma once

#include "document/ContactRecord.h"
#include "paper/richtextbox_win.h"

namespace printing {

/// Composes the report of `values`, the texts on screen. `RTF1` is the scratch pad and takes the
/// whole report in the end; `RTF3` gathers it. Text is 10 points in the face of `RTF1`.
void composeReport(const document::ContactRecord& values, paper::RichTextBox& RTF1,
                   paper::RichTextBox& RTF3);

}  // namespace printing
