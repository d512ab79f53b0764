// The print preview window. The print engine's own boxes and dialog belong to it, so that it is
// loaded, hidden, whenever anything is printed.
#pragma once

#include <memory>
#include <string>

#include "library/command_form_win.h"
#include "library/command_hints_win.h"
#include "printing/print_form_win.h"
#include "windowing/toolbar_win.h"

namespace printing {

class frmPPrev : public library::CommandForm, public PreviewWindow {
 public:
  frmPPrev();
  ~frmPPrev() override;

  // Each loads the form when it is needed.
  [[nodiscard]] paper::RichTextBox& RTF2() override;
  [[nodiscard]] paper::RichTextBox& RTF3() override;
  [[nodiscard]] paper::PagePicture& PICSTDPAGE() override;
  [[nodiscard]] windowing::ComboBox CBOPGNO() override;
  [[nodiscard]] windowing::ComboBox CBOPGZOOM() override;
  [[nodiscard]] PageView& PICWINDOW() override;
  [[nodiscard]] paper::PrintDialog& CMD1() override { return CMD1_; }

  /// Builds the icon menus; called again, it builds them anew.
  void ICONMENUS() override;
  void placeView() override;
  void setCommandEnabled(int command, bool enabled) override;
  void setCommandChecked(int command, bool checked) override;
  [[nodiscard]] bool commandEnabled(int command) const;
  [[nodiscard]] bool commandChecked(int command) const;
  void setPaperSize(const std::string& text) override;
  void restorePlace() override;
  void showPreview() override;
  void discardPreview() override;

  /// Makes the view of a preview that is loading.
  static HWND makeView(Form& form, const windowing::ControlDesign& design, HWND container,
                       const RECT& place);

  /// Runs the command with this number, if it is offered; any other does nothing.
  void runCommand(int command);

  [[nodiscard]] controls::ICOMNU& iconMenus() override;
  [[nodiscard]] const windowing::ImageList& imageList() const override { return IMGLST; }

  bool handleKey(const MSG& message) override;

 protected:
  void onLoad() override;
  void onUnload() override;
  void onCommand(int command) override { runCommand(command); }
  void onToolButton(int command) override;
  void onSelect(int id) override;
  void onSize() override;
  void onTimer(UINT_PTR timer) override { hints_.onTimer(timer); }
  LRESULT onNotify(NMHDR& header) override;
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void buildToolbar();
  void arrangeStrip();
  void applyView();
  void toggleBar(int command);
  void store();
  void carryOut(int command);
  void print(bool atOnce);
  [[nodiscard]] windowing::StatusBar SBMAIN() const;
  [[nodiscard]] windowing::ToolBar TBARMAIN() const;

  windowing::ImageList IMGLST;
  std::unique_ptr<controls::ICOMNU> ICOMNU;
  library::CommandHints hints_;
  paper::PagePicture PICSTDPAGE_;
  PageView PICWINDOW_{PICSTDPAGE_};
  paper::RichTextBox RTF2_{"RTF2"};
  paper::RichTextBox RTF3_{"RTF3"};
  paper::PrintDialog CMD1_;
  bool ready_ = false;  ///< controls and menus are complete
};

/// The program's one preview window.
[[nodiscard]] frmPPrev& thePreview();

}  // namespace printing
