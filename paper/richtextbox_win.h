// A rich text box: the system's rich edit control. The message EM_FORMATRANGE formats its text for
// pages, also on Wine, where the program answers it instead of the control.
#pragma once

#include <windows.h>

#include <richedit.h>

#include <string>

#include "paper/text_format.h"
#include "windowing/control_win.h"

namespace paper {

/// Rich text to be copied from box to box. By the number of its characters, the receiving box can
/// tell a paragraph mark at the end that does not belong to the text.
struct RichText {
  std::string rtf;
  int length = 0;
};

/// Positions and lengths count a line break as one character, as EM_FORMATRANGE does.
struct TextSelection {
  int start = 0;
  int length = 0;
};

/// Owner of one control, which is destroyed with this object or with its container.
class RichTextBox : public windowing::Control {
 public:
  /// `name` is the box's name in the program ("RTF1").
  explicit RichTextBox(std::string name) : name_(std::move(name)) {}
  RichTextBox(const RichTextBox&) = delete;
  RichTextBox& operator=(const RichTextBox&) = delete;
  ~RichTextBox();

  /// Makes the control, hidden unless `style` has WS_VISIBLE. The first call loads the system's
  /// library, and raises when that is missing.
  HWND create(HWND container, int id, const RECT& place, DWORD style = 0);

  [[nodiscard]] const std::string& name() const { return name_; }

  /// Sets the format of the whole text, and of plain text that is set later. The colour is black in
  /// any colour scheme.
  void setFormat(const TextFormat& format);
  [[nodiscard]] const TextFormat& format() const { return format_; }

  /// Replaces the text by `text` in the current format. `text` is plain text, even if it looks like
  /// rich text.
  void setPlain(const std::string& text);
  /// Number of characters of the text.
  [[nodiscard]] int length() const;

  [[nodiscard]] TextSelection selection() const;
  void select(TextSelection selection) const;

  [[nodiscard]] RichText richText() const;
  [[nodiscard]] RichText selectedRichText() const;
  /// Replaces the whole text and puts the caret at its start. Where the old text is long, this
  /// makes a new control: do not keep the handle.
  void setRichText(const RichText& text);
  /// Replaces the selection and puts the caret behind the new text.
  void replaceSelection(const RichText& text) const;
  /// Replaces the selection by one paragraph break and puts the caret behind it.
  void insertLineBreak() const;

 private:
  static LRESULT CALLBACK watch(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                UINT_PTR id, DWORD_PTR box);
  void applyFormat(WPARAM scope) const;
  void renew();
  [[nodiscard]] std::string streamOut(WPARAM format) const;
  void streamIn(WPARAM format, const std::string& rtf) const;
  void correctEnd(int end, int expected) const;

  std::string name_;
  TextFormat format_;
};

}  // namespace paper
