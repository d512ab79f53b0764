#include "paper/wine/formatted_text_win.h"

#include <commctrl.h>

#include <algorithm>
#include <cstring>

#include "values/units.h"

namespace paper::wine {
namespace {

constexpr UINT wideText = 1200;  // code page number of UTF-16
constexpr DWORD wantedMask = CFM_FACE | CFM_SIZE | CFM_CHARSET | CFM_COLOR | CFM_BOLD | CFM_ITALIC |
                             CFM_UNDERLINE | CFM_STRIKEOUT;

// Sends a message to the control itself. SendMessage would call the subclass procedure, which is
// handling EM_FORMATRANGE at that moment.
LRESULT ask(HWND control, UINT message, WPARAM wParam, const void* lParam) {
  return DefSubclassProc(control, message, wParam, reinterpret_cast<LPARAM>(lParam));
}

std::u16string readText(HWND control) {
  const GETTEXTLENGTHEX length{GTL_NUMCHARS | GTL_PRECISE, wideText};
  const LRESULT size = ask(control, EM_GETTEXTLENGTHEX, reinterpret_cast<WPARAM>(&length), nullptr);
  std::wstring wide(static_cast<std::size_t>(std::max<LRESULT>(size, 0)) + 1, L'\0');
  GETTEXTEX wanted{};
  const std::size_t room = wide.size() * sizeof(wchar_t);
  wanted.cb = static_cast<DWORD>(room);
  wanted.flags = GT_DEFAULT;
  wanted.codepage = wideText;
  const LRESULT read = ask(control, EM_GETTEXTEX, reinterpret_cast<WPARAM>(&wanted), wide.data());
  return {wide.begin(), wide.begin() + std::clamp<LRESULT>(read, 0, size)};
}

bool sameFormat(const CHARFORMAT2A& a, const CHARFORMAT2A& b) {
  return a.dwEffects == b.dwEffects && a.yHeight == b.yHeight && a.crTextColor == b.crTextColor &&
         a.bCharSet == b.bCharSet && std::strcmp(a.szFaceName, b.szFaceName) == 0;
}

// Halves a range that has several formats until each part has one.
void collectRuns(HWND control, int first, int last, std::vector<TextRun>& runs) {
  const CHARRANGE range{first, last};
  ask(control, EM_EXSETSEL, 0, &range);
  TextRun run{first, {}};
  run.format.cbSize = sizeof run.format;
  ask(control, EM_GETCHARFORMAT, SCF_SELECTION, &run.format);
  if (last - first > 1 && (run.format.dwMask & wantedMask) != wantedMask) {
    const int middle = first + (last - first) / 2;
    collectRuns(control, first, middle, runs);
    collectRuns(control, middle, last, runs);
    return;
  }
  run.format.dwEffects &= CFE_BOLD | CFE_ITALIC | CFE_UNDERLINE | CFE_STRIKEOUT | CFE_AUTOCOLOR;
  if (runs.empty() || !sameFormat(runs.back().format, run.format)) runs.push_back(run);
}

}  // namespace

std::size_t FormattedText::runAt(int position) const {
  const auto after = std::upper_bound(runs.begin(), runs.end(), position,
                                      [](int at, const TextRun& run) { return at < run.first; });
  return static_cast<std::size_t>(after - runs.begin()) - 1;
}

FormattedText readFormattedText(HWND control) {
  FormattedText read;
  read.text = readText(control);
  CHARRANGE selection{};
  ask(control, EM_EXGETSEL, 0, &selection);
  // WM_SETREDRAW with TRUE shows a control, so it is not used where the control is hidden.
  const bool shown = (GetWindowLongA(control, GWL_STYLE) & WS_VISIBLE) != 0;
  if (shown) ask(control, WM_SETREDRAW, FALSE, nullptr);
  collectRuns(control, 0, static_cast<int>(read.text.size()), read.runs);
  ask(control, EM_EXSETSEL, 0, &selection);
  if (shown) ask(control, WM_SETREDRAW, TRUE, nullptr);
  return read;
}

values::FontHandle fontOf(const CHARFORMAT2A& format, int dpi) {
  LOGFONTA font{};
  font.lfHeight = -MulDiv(format.yHeight, dpi, values::twipsPerInch);
  font.lfWeight = (format.dwEffects & CFE_BOLD) != 0 ? FW_BOLD : FW_NORMAL;
  font.lfItalic = (format.dwEffects & CFE_ITALIC) != 0;
  font.lfUnderline = (format.dwEffects & CFE_UNDERLINE) != 0;
  font.lfStrikeOut = (format.dwEffects & CFE_STRIKEOUT) != 0;
  font.lfCharSet = format.bCharSet;
  font.lfPitchAndFamily = format.bPitchAndFamily;
  std::memcpy(font.lfFaceName, format.szFaceName, sizeof font.lfFaceName - 1);
  return values::FontHandle(CreateFontIndirectA(&font));
}

DeviceMeasure::DeviceMeasure(const FormattedText& text, HDC device)
    : text_(text),
      device_(device),
      dpiX_(GetDeviceCaps(device, LOGPIXELSX)),
      dpiY_(GetDeviceCaps(device, LOGPIXELSY)),
      runs_(text.runs.size()) {}

bool DeviceMeasure::measures(HDC device) const {
  return device == device_ && GetDeviceCaps(device, LOGPIXELSX) == dpiX_ &&
         GetDeviceCaps(device, LOGPIXELSY) == dpiY_;
}

DeviceMeasure::RunMeasure& DeviceMeasure::at(int position) {
  const std::vector<TextRun>& runs = text_.runs;
  const bool inside = runs[current_].first <= position &&
                      (current_ + 1 == runs.size() || position < runs[current_ + 1].first);
  if (!inside) current_ = text_.runAt(position);
  RunMeasure& run = runs_[current_];
  if (!run.font) {
    run.font = fontOf(runs[current_].format, dpiY_);
    const values::Selected font(device_, run.font.get());
    TEXTMETRICA metrics{};
    GetTextMetricsA(device_, &metrics);
    run.height = {static_cast<int>(metrics.tmAscent), static_cast<int>(metrics.tmDescent)};
  }
  return run;
}

LineHeight DeviceMeasure::height(int position) {
  return at(position).height;
}

int DeviceMeasure::advance(int position) {
  RunMeasure& run = at(position);
  const char16_t character = text_.text[static_cast<std::size_t>(position)];
  const auto known = run.advances.find(character);
  if (known != run.advances.end()) return known->second;
  const values::Selected font(device_, run.font.get());
  const auto wide = static_cast<wchar_t>(character);
  SIZE size{};
  GetTextExtentPoint32W(device_, &wide, 1, &size);
  return run.advances[character] = static_cast<int>(size.cx);
}

}  // namespace paper::wine
