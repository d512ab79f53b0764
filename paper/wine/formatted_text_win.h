// The text of a rich edit control with its formats, and the sizes of its characters on one device,
// for formatting pages on Wine.
#pragma once

#include <windows.h>

#include <richedit.h>

#include <string>
#include <unordered_map>
#include <vector>

#include "paper/wine/page_layout.h"
#include "values/handles_win.h"

namespace paper::wine {

/// Characters in one format, from `first` up to the next run.
struct TextRun {
  int first = 0;
  CHARFORMAT2A format{};
};

struct FormattedText {
  std::u16string text;        ///< a paragraph break is one CR
  std::vector<TextRun> runs;  ///< in order; the first begins at 0

  /// Index of the run that holds `position`.
  [[nodiscard]] std::size_t runAt(int position) const;
};

/// Reads text and formats from a rich edit control itself, not through its subclass procedures.
/// Keeps the selection.
[[nodiscard]] FormattedText readFormattedText(HWND control);

/// Font of `format` on a device of `dpi` dots per inch.
[[nodiscard]] values::FontHandle fontOf(const CHARFORMAT2A& format, int dpi);

/// Sizes of a text's characters on one device. Widths are kept, so that the device is asked only
/// once for each character.
class DeviceMeasure final : public TextMeasure {
 public:
  DeviceMeasure(const FormattedText& text, HDC device);

  [[nodiscard]] std::u16string_view text() const override { return text_.text; }
  [[nodiscard]] int advance(int position) override;
  [[nodiscard]] LineHeight height(int position) override;
  /// Whether the text was measured for `device`: the same device context at the same resolution.
  [[nodiscard]] bool measures(HDC device) const;

 private:
  struct RunMeasure {
    values::FontHandle font;
    LineHeight height;
    std::unordered_map<char16_t, int> advances;
  };
  RunMeasure& at(int position);

  const FormattedText& text_;
  HDC device_;
  int dpiX_;
  int dpiY_;
  std::size_t current_ = 0;
  std::vector<RunMeasure> runs_;
};

}  // namespace paper::wine
