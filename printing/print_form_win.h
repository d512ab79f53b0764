// The boxes, dialogs and controls that printing uses. The preview window owns them, and is loaded,
// hidden, when one of them is used.
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

/// A form with the boxes and the picture that the print engine fills.
class PageBoxes : public DialogForm {
 public:
  /// The pages that are being printed.
  [[nodiscard]] virtual paper::RichTextBox& RTF2() = 0;
  /// The text that is being divided into pages.
  [[nodiscard]] virtual paper::RichTextBox& RTF3() = 0;
  /// The page that the preview shows, at full size.
  [[nodiscard]] virtual paper::PagePicture& PICSTDPAGE() = 0;
};

/// The preview's window as its controller uses it.
class PreviewWindow : public PageBoxes {
 public:
  /// The lists of pages and zooms. Their selected entries are the page and the zoom that are shown.
  /// Selecting an entry by program has no other effect.
  [[nodiscard]] virtual windowing::ComboBox CBOPGNO() = 0;
  [[nodiscard]] virtual windowing::ComboBox CBOPGZOOM() = 0;
  /// The view that shows the page.
  [[nodiscard]] virtual PageView& PICWINDOW() = 0;
  /// Places the view between the bars that are shown.
  virtual void placeView() = 0;
  /// Enables and disables the commands for the page and the zoom that are shown.
  virtual void RefreshCommands() = 0;
  virtual void setCommandChecked(int command, bool checked) = 0;
  virtual void setPaperSize(const std::string& text) = 0;
  virtual void ICONMENUS() = 0;
  /// Puts the window where the user left it.
  virtual void restorePlace() = 0;
  /// Shows the preview and returns when it is closed.
  virtual void showPreview() = 0;
  /// Discards a preview that was not shown yet.
  virtual void discardPreview() = 0;
};

}  // namespace printing
