// What the print engine works with but does not own: the preview window has it, and loads,
// hidden, when any of it is used.
#pragma once

#include "windowing/page_picture_win.h"
#include "windowing/print_dialog_win.h"
#include "windowing/richtextbox_win.h"

namespace printing {

class PrintHost {
 public:
  PrintHost() = default;
  PrintHost(const PrintHost&) = delete;
  PrintHost& operator=(const PrintHost&) = delete;
  virtual ~PrintHost() = default;

  /// The pages that are being printed.
  [[nodiscard]] virtual windowing::RichTextBox& RTF2() = 0;
  /// The text that is being divided into pages.
  [[nodiscard]] virtual windowing::RichTextBox& RTF3() = 0;
  /// The page on show, at full size.
  [[nodiscard]] virtual windowing::PagePicture& PICSTDPAGE() = 0;
};

/// A form that owns the print dialog.
class DialogForm {
 public:
  DialogForm() = default;
  DialogForm(const DialogForm&) = delete;
  DialogForm& operator=(const DialogForm&) = delete;
  virtual ~DialogForm() = default;

  [[nodiscard]] virtual windowing::PrintDialog& CMD1() = 0;
};

}  // namespace printing
