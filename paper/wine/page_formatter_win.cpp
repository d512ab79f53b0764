#include "paper/wine/page_formatter_win.h"

#include <commctrl.h>
#include <richedit.h>

#include <cmath>
#include <memory>
#include <optional>

#include "paper/wine/formatted_text_win.h"
#include "paper/wine/page_layout.h"
#include "values/units.h"

namespace paper::wine {
namespace {

constexpr int tabStopTwips = 720;  // half an inch, as the control's own default

// Converts places in the layout (pixels of the device that measures) to the device that is drawn
// on.
class Canvas {
 public:
  Canvas(HDC dc, HDC target, const RECT& area)
      : dc_(dc),
        dpiX_(GetDeviceCaps(dc, LOGPIXELSX)),
        dpiY_(GetDeviceCaps(dc, LOGPIXELSY)),
        scaleX_(static_cast<double>(dpiX_) / GetDeviceCaps(target, LOGPIXELSX)),
        scaleY_(static_cast<double>(dpiY_) / GetDeviceCaps(target, LOGPIXELSY)),
        left_(static_cast<double>(area.left) * dpiX_ / values::twipsPerInch),
        top_(static_cast<double>(area.top) * dpiY_ / values::twipsPerInch),
        saved_(SaveDC(dc)) {
    SetBkMode(dc, TRANSPARENT);
    SetTextAlign(dc, TA_BASELINE);
  }
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;
  ~Canvas() { RestoreDC(dc_, saved_); }

  [[nodiscard]] HDC dc() const { return dc_; }
  // Selects the font and colour of a run, unless they are selected already. Making a font for every
  // line would take longer than drawing the text.
  void use(const std::vector<TextRun>& runs, std::size_t run) {
    if (run_ == run) return;
    run_ = run;
    const CHARFORMAT2A& format = runs[run].format;
    values::FontHandle font = fontOf(format, dpiY_);
    SelectObject(dc_, font.get());
    font_ = std::move(font);
    SetTextColor(dc_, (format.dwEffects & CFE_AUTOCOLOR) != 0 ? RGB(0, 0, 0) : format.crTextColor);
  }
  [[nodiscard]] int x(int units) const {
    return static_cast<int>(std::lround(left_ + units * scaleX_));
  }
  [[nodiscard]] int y(int units) const {
    return static_cast<int>(std::lround(top_ + units * scaleY_));
  }

 private:
  HDC dc_;
  int dpiX_;
  int dpiY_;
  double scaleX_;
  double scaleY_;
  double left_;
  double top_;
  int saved_;
  std::optional<std::size_t> run_;
  values::FontHandle font_;
};

// The formatter of one control. Text and measures are kept from page to page.
class PageFormatter {
 public:
  explicit PageFormatter(HWND control) : control_(control) {}

  // Whether the control itself does not answer the message. Asked once, with a page so large that
  // the true answer cannot be 0.
  [[nodiscard]] bool needed(const FORMATRANGE& range);
  // Positions are long in the message and int here, which have the same size on Windows.
  LRESULT format(FORMATRANGE& range, bool render);
  // Drops what belongs to the device. The text is kept until it changes, since reading a long one
  // takes long.
  void releaseDevice() { measure_.reset(); }
  void forgetText() {
    measure_.reset();
    text_.reset();
  }

 private:
  void draw(const PageLayout& page, const PageArea& area, const FORMATRANGE& range);
  void drawRun(Canvas& canvas, const PageLine& line, int first, int last, int x);

  HWND control_;
  std::optional<bool> needed_;
  std::unique_ptr<FormattedText> text_;
  std::unique_ptr<DeviceMeasure> measure_;
};

bool PageFormatter::needed(const FORMATRANGE& range) {
  if (needed_) return *needed_;
  GETTEXTLENGTHEX length{GTL_DEFAULT, CP_ACP};
  if (DefSubclassProc(control_, EM_GETTEXTLENGTHEX, reinterpret_cast<WPARAM>(&length), 0) <= 0)
    return false;  // for an empty text the answer is always 0, so it tells nothing
  constexpr LONG page = 10 * values::twipsPerInch;
  FORMATRANGE roomy{range.hdc, range.hdcTarget, {0, 0, page, page}, {0, 0, page, page}, {0, -1}};
  needed_ = DefSubclassProc(control_, EM_FORMATRANGE, FALSE, reinterpret_cast<LPARAM>(&roomy)) == 0;
  DefSubclassProc(control_, EM_FORMATRANGE, FALSE, 0);
  return *needed_;
}

LRESULT PageFormatter::format(FORMATRANGE& range, bool render) {
  if (!text_) text_ = std::make_unique<FormattedText>(readFormattedText(control_));
  const int size = static_cast<int>(text_->text.size());
  const int first = static_cast<int>(range.chrg.cpMin);
  const int last =
      range.chrg.cpMax < 0 || range.chrg.cpMax > size ? size : static_cast<int>(range.chrg.cpMax);
  if (first < 0 || first >= last) return last;
  if (!measure_ || !measure_->measures(range.hdcTarget))
    measure_ = std::make_unique<DeviceMeasure>(*text_, range.hdcTarget);

  const int dpiX = GetDeviceCaps(range.hdcTarget, LOGPIXELSX);
  const int dpiY = GetDeviceCaps(range.hdcTarget, LOGPIXELSY);
  const PageArea area{MulDiv(range.rc.right - range.rc.left, dpiX, values::twipsPerInch),
                      MulDiv(range.rc.bottom - range.rc.top, dpiY, values::twipsPerInch),
                      MulDiv(tabStopTwips, dpiX, values::twipsPerInch)};
  const PageLayout page = layOutPage(*measure_, first, last, area);
  if (render && range.hdc != nullptr) draw(page, area, range);
  range.rc.bottom = range.rc.top + MulDiv(page.height, values::twipsPerInch, dpiY);
  return page.next;
}

void PageFormatter::draw(const PageLayout& page, const PageArea& area, const FORMATRANGE& range) {
  Canvas canvas(range.hdc, range.hdcTarget, range.rc);
  for (const PageLine& line : page.lines) {
    int x = 0;
    int pieceX = 0;
    int piece = line.first;
    for (int i = line.first; i < line.end; ++i) {
      const bool tab = text_->text[static_cast<std::size_t>(i)] == u'\t';
      if (tab || (i > piece && text_->runAt(i) != text_->runAt(piece))) {
        drawRun(canvas, line, piece, i, pieceX);
        piece = i;
        pieceX = x;
      }
      x += tab ? tabAdvance(x, area.tabStop) : measure_->advance(i);
      if (tab) {
        piece = i + 1;
        pieceX = x;
      }
    }
    drawRun(canvas, line, piece, line.end, pieceX);
  }
}

// Draws characters of one format. Each character is placed where the device that measures has it,
// so that lines have the same length on the screen as on the printer.
void PageFormatter::drawRun(Canvas& canvas, const PageLine& line, int first, int last, int x) {
  if (first >= last) return;
  canvas.use(text_->runs, text_->runAt(first));
  std::wstring characters;
  std::vector<INT> advances;
  const int start = canvas.x(x);
  int placed = start;
  for (int i = first; i < last; ++i) {
    characters += static_cast<wchar_t>(text_->text[static_cast<std::size_t>(i)]);
    x += measure_->advance(i);
    advances.push_back(canvas.x(x) - placed);
    placed = canvas.x(x);
  }
  ExtTextOutW(canvas.dc(), start, canvas.y(line.top + line.height.ascent), 0, nullptr,
              characters.c_str(), static_cast<UINT>(characters.size()), advances.data());
}

// Whether a message changes neither text nor formats. Any other message may.
bool changesNothing(UINT message) {
  switch (message) {
    case EM_GETTEXTLENGTHEX:
    case EM_GETTEXTEX:
    case EM_EXGETSEL:
    case EM_EXSETSEL:
    case EM_STREAMOUT:
    case EM_GETCHARFORMAT:
    case WM_GETTEXT:
    case WM_GETTEXTLENGTH:
    case WM_GETDLGCODE:
    case WM_WINDOWPOSCHANGING:
    case WM_WINDOWPOSCHANGED:
    case WM_SIZE:
    case WM_MOVE:
    case WM_PAINT:
      return true;
    default:
      return false;
  }
}

LRESULT CALLBACK answer(HWND control, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                        DWORD_PTR data) {
  auto* formatter = reinterpret_cast<PageFormatter*>(data);
  if (message == WM_NCDESTROY) {
    RemoveWindowSubclass(control, answer, id);
    delete formatter;
    return DefSubclassProc(control, message, wParam, lParam);
  }
  if (message != EM_FORMATRANGE) {
    if (!changesNothing(message)) formatter->forgetText();
    return DefSubclassProc(control, message, wParam, lParam);
  }
  auto* range = reinterpret_cast<FORMATRANGE*>(lParam);
  if (range == nullptr) formatter->releaseDevice();
  try {
    if (range != nullptr && formatter->needed(*range))
      return formatter->format(*range, wParam != FALSE);
  } catch (const std::exception&) {
    return 0;  // as the control answers when it lacks memory
  }
  return DefSubclassProc(control, message, wParam, lParam);
}

}  // namespace

void installPageFormatter(HWND control) {
  auto formatter = std::make_unique<PageFormatter>(control);
  if (SetWindowSubclass(control, answer, 0, reinterpret_cast<DWORD_PTR>(formatter.get())))
    (void)formatter.release();  // the control owns it now
}

}  // namespace paper::wine
