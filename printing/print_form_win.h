// What printing works with but does not own: the preview window has it, and loads, hidden, when
// any of it is used.
#pragma once

#include <string>

#include "paper/page_picture_win.h"
#include "paper/print_dialog_win.h"
#include "paper/richtextbox_win.h"
#include "printing/page_view_win.h"
#include "windowing/control_win.h"

namespace printing {

/// A form that owns the print dialog.
class DialogForm {
 public:
  DialogForm() = default;
  DialogForm(const DialogForm&) = delete;
  DialogForm& operator=(const DialogForm&) = delete;
  virtual ~DialogForm() = default;

  [[nodiscard]] virtual paper::PrintDialog& CMD1() = 0;
};

/// What the print engine fills.
class PageBoxes : public DialogForm {
 public:
  /// The pages that are being printed.
  [[nodiscard]] virtual paper::RichTextBox& RTF2() = 0;
  /// The text that is being divided into pages.
  [[nodiscard]] virtual paper::RichTextBox& RTF3() = 0;
  /// The page on show, at full size.
  [[nodiscard]] virtual paper::PagePicture& PICSTDPAGE() = 0;
};

/// What the preview's controller shows its state on.
class PreviewWindow : public PageBoxes {
 public:
  /// The lists of pages and zooms. Their texts are the page and the zoom on show; choosing in
  /// them by program does nothing else.
  [[nodiscard]] virtual windowing::ComboBox CBOPGNO() = 0;
  [[nodiscard]] virtual windowing::ComboBox CBOPGZOOM() = 0;
  /// The view that the page on show lies in.
  [[nodiscard]] virtual PageView& PICWINDOW() = 0;
  /// Places the view between the bars that are shown.
  virtual void placeView() = 0;
  /// Enables the commands that the page and the zoom on show leave to be chosen.
  virtual void RefreshCommands() = 0;
  virtual void setCommandChecked(int command, bool checked) = 0;
  virtual void setPaperSize(const std::string& text) = 0;
  virtual void ICONMENUS() = 0;
  /// Puts the window where the user left it.
  virtual void restorePlace() = 0;
  /// Shows the preview and returns when it is closed.
  virtual void showPreview() = 0;
  /// Gives up a preview that was not shown yet.
  virtual void discardPreview() = 0;
};

}  // namespace printing
