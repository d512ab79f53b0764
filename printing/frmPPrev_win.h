// The print preview window. It owns the boxes and the dialog of the print engine, so it is loaded,
// hidden, whenever something is printed.
#pragma once

#include <string>

#include "library/command_form_win.h"
#include "printing/print_form_win.h"
#include "windowing/toolbar_win.h"

namespace printing {

class frmPPrev : public library::CommandForm, public PreviewWindow {
 public:
  frmPPrev();

  // Each of these loads the form if it is not loaded.
  [[nodiscard]] paper::RichTextBox& RTF2() override;
  [[nodiscard]] paper::RichTextBox& RTF3() override;
  [[nodiscard]] paper::PagePicture& PICSTDPAGE() override;
  [[nodiscard]] windowing::ComboBox CBOPGNO() override;
  [[nodiscard]] windowing::ComboBox CBOPGZOOM() override;
  [[nodiscard]] PageView& PICWINDOW() override;
  [[nodiscard]] paper::PrintDialog& CMD1() override { return CMD1_; }

  void ICONMENUS() override;
  void placeView() override;
  void RefreshCommands() override;
  void setCommandChecked(int command, bool checked) override;
  void setPaperSize(const std::string& text) override;
  void restorePlace() override;
  void showPreview() override;
  void discardPreview() override;

  /// Makes the view while the form loads.
  static HWND makeView(Form& form, const windowing::ControlDesign& design, HWND container,
                       const RECT& place);

 protected:
  void onLoad() override;
  void onUnload() override;
  void carryOut(int command, bool byButton) override;
  void arrange() override;
  void onSelect(int id) override;
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void arrangeStrip();
  void print(bool atOnce);
  void chooseZoom(int command);

  paper::PagePicture PICSTDPAGE_;
  PageView PICWINDOW_{PICSTDPAGE_};
  paper::RichTextBox RTF2_{"RTF2"};
  paper::RichTextBox RTF3_{"RTF3"};
  paper::PrintDialog CMD1_;
};

/// The program's one preview window.
[[nodiscard]] frmPPrev& thePreview();

}  // namespace printing
