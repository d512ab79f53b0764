// The print preview window. The print engine's own boxes and dialog belong to it, so that it is
// loaded, hidden, whenever anything is printed.
#pragma once

#include "library/command_form_win.h"
#include "printing/print_host_win.h"

namespace printing {

class frmPPrev : public library::CommandForm, public PrintHost, public DialogForm {
 public:
  frmPPrev();
  ~frmPPrev() override;

  // Each loads the form when it is needed.
  [[nodiscard]] windowing::RichTextBox& RTF2() override;
  [[nodiscard]] windowing::RichTextBox& RTF3() override;
  [[nodiscard]] windowing::PagePicture& PICSTDPAGE() override;
  [[nodiscard]] windowing::PrintDialog& CMD1() override { return CMD1_; }

 protected:
  HWND createCustom(const windowing::ControlDesign& design, HWND container,
                    const RECT& place) override;

 private:
  windowing::RichTextBox RTF2_{"RTF2"};
  windowing::RichTextBox RTF3_{"RTF3"};
  windowing::PagePicture PICSTDPAGE_;
  windowing::PrintDialog CMD1_;
};

/// The program's one preview window.
[[nodiscard]] frmPPrev& thePreview();

}  // namespace printing
