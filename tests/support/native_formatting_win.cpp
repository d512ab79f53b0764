#include "tests/support/native_formatting_win.h"

#include <algorithm>

#include "paper/text_format.h"
#include "values/handles_win.h"
#include "values/units.h"

namespace test_support {
namespace {

NativeFormatting* standIn = nullptr;
WNDPROC standard = nullptr;

// A break is one character, CR.
std::string textOf(HWND control) {
  std::string text(static_cast<std::size_t>(GetWindowTextLengthA(control)) + 1, '\0');
  GETTEXTEX wanted{static_cast<DWORD>(text.size()), GT_DEFAULT, CP_ACP, nullptr, nullptr};
  text.resize(static_cast<std::size_t>(CallWindowProcA(standard, control, EM_GETTEXTEX,
                                                       reinterpret_cast<WPARAM>(&wanted),
                                                       reinterpret_cast<LPARAM>(text.data()))));
  return text;
}

values::FontHandle documentFont(HDC device) {
  LOGFONTA font{};
  font.lfHeight = -MulDiv(paper::documentPoints, GetDeviceCaps(device, LOGPIXELSY), 72);
  std::string(paper::documentTypeface).copy(font.lfFaceName, sizeof font.lfFaceName - 1);
  return values::FontHandle(CreateFontIndirectA(&font));
}

// The first character of the line after the one that begins at `first`.
std::size_t nextLine(HDC device, const std::string& text, std::size_t first, int width) {
  const std::size_t end = std::min(text.find('\r', first), text.size());
  int fits = 0;
  SIZE size{};
  GetTextExtentExPointA(device, text.data() + first, static_cast<int>(end - first), width, &fits,
                        nullptr, &size);
  const std::size_t stop = first + static_cast<std::size_t>(fits);
  if (stop == end) return std::min(end + 1, text.size());
  const std::size_t blank = text.rfind(' ', stop);
  return blank != std::string::npos && blank >= first ? blank + 1 : stop;
}

}  // namespace

NativeFormatting::NativeFormatting(bool answers) : answers_(answers) {
  LoadLibraryA("riched20.dll");
  ofClass_ = CreateWindowExA(0, RICHEDIT_CLASSA, "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr,
                             nullptr, nullptr);
  standIn = this;
  standard = reinterpret_cast<WNDPROC>(
      SetClassLongPtrA(ofClass_, GCLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
}

NativeFormatting::~NativeFormatting() {
  SetClassLongPtrA(ofClass_, GCLP_WNDPROC, reinterpret_cast<LONG_PTR>(standard));
  DestroyWindow(ofClass_);
  standIn = nullptr;
}

LRESULT CALLBACK NativeFormatting::procedure(HWND control, UINT message, WPARAM wParam,
                                             LPARAM lParam) {
  const bool asked = standIn != nullptr && standIn->answers_ && message == EM_FORMATRANGE;
  if (standIn != nullptr && message == EM_GETTEXTEX) ++standIn->takenOver_;
  if (!asked) return CallWindowProcA(standard, control, message, wParam, lParam);
  if (lParam != 0)
    return standIn->format(control, *reinterpret_cast<FORMATRANGE*>(lParam), wParam != FALSE);
  standIn->kept_.erase(control);
  return 0;
}

LRESULT NativeFormatting::format(HWND control, FORMATRANGE& range, bool draws) {
  const HDC device = range.hdcTarget;
  if (kept_.count(control) == 0) kept_[control] = {device, textOf(control)};
  if (kept_[control].target != device) ++mixed_;
  const std::string& whole = kept_[control].text;
  const std::string text = whole.substr(0, static_cast<std::size_t>(range.chrg.cpMax));

  const int dpi = GetDeviceCaps(device, LOGPIXELSY);
  const auto across = [](HDC on, LONG twips) {
    return MulDiv(twips, GetDeviceCaps(on, LOGPIXELSX), values::twipsPerInch);
  };
  const values::FontHandle measuring = documentFont(device);
  const values::FontHandle shown = documentFont(range.hdc);
  const values::Selected measured(device, measuring.get());
  const values::Selected drawn(range.hdc, shown.get());
  const UINT alignment = SetTextAlign(range.hdc, TA_BASELINE);
  TEXTMETRICA line{};
  GetTextMetricsA(device, &line);
  const int width = across(device, range.rc.right - range.rc.left);
  const int height = MulDiv(range.rc.bottom - range.rc.top, dpi, values::twipsPerInch);

  int used = 0;
  auto at = static_cast<std::size_t>(range.chrg.cpMin);
  while (at < text.size() && (used == 0 || used + line.tmHeight <= height)) {
    const std::size_t next = nextLine(device, text, at, width);
    const std::size_t end = text.find_last_not_of("\r ", next - 1) + 1;
    const LONG base = range.rc.top + MulDiv(used + line.tmAscent, values::twipsPerInch, dpi);
    if (draws && end > at)
      TextOutA(range.hdc, across(range.hdc, range.rc.left),
               MulDiv(base, GetDeviceCaps(range.hdc, LOGPIXELSY), values::twipsPerInch),
               text.data() + at, static_cast<int>(end - at));
    used += line.tmHeight;
    at = next;
  }
  SetTextAlign(range.hdc, alignment);
  range.rc.bottom = range.rc.top + MulDiv(used, values::twipsPerInch, dpi);
  if (draws) ++drawn_;
  return static_cast<LRESULT>(at);
}

}  // namespace test_support
