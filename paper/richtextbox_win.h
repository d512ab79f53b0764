// A rich text box: the system's rich edit control, whose text is formatted onto pages by the
// message EM_FORMATRANGE, also on Wine, which leaves that message unanswered.
#pragma once

#include <windows.h>

#include <richedit.h>

#include <string>

#include "paper/text_format.h"
#include "windowing/control_win.h"

namespace paper {

/// Rich text on its way from box to box: its source and the number of its characters, by
/// which the taker recognises a paragraph mark that is not part of it.
struct RichText {
  std::string rtf;
  int length = 0;
};

/// Positions and lengths count a line break as one character, as EM_FORMATRANGE does.
struct TextSelection {
  int start = 0;
  int length = 0;
};

/// Owner of one control. It is made in a container, and goes with it or with this object.
class RichTextBox : public windowing::Control {
 public:
  /// `name` is how the program knows the box ("RTF1").
  explicit RichTextBox(std::string name) : name_(std::move(name)) {}
  RichTextBox(const RichTextBox&) = delete;
  RichTextBox& operator=(const RichTextBox&) = delete;
  ~RichTextBox();

  /// Makes the control, hidden unless `style` says WS_VISIBLE. Loads the system's library at
  /// the first use; raises when that is missing.
  HWND create(HWND container, int id, const RECT& place, DWORD style = 0);

  [[nodiscard]] const std::string& name() const { return name_; }

  /// Format of the whole text and of plain text set from now on; black in any colour scheme.
  void setFormat(const TextFormat& format);
  [[nodiscard]] const TextFormat& format() const { return format_; }

  /// Replaces the text by `text` in the current format, taken literally whatever it looks like.
  void setPlain(const std::string& text);
  /// Number of characters of the text.
  [[nodiscard]] int length() const;

  [[nodiscard]] TextSelection selection() const;
  void select(TextSelection selection) const;

  [[nodiscard]] RichText richText() const;
  [[nodiscard]] RichText selectedRichText() const;
  /// Replaces the whole text; the caret is at its start afterwards. In place of a long text this
  /// makes a new control: do not keep the handle.
  void setRichText(const RichText& text);
  /// Replaces the selection; the caret stands behind what was inserted.
  void replaceSelection(const RichText& text) const;
  /// One paragraph break in place of the selection; the caret stands behind it.
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
