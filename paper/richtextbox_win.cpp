#include "paper/richtextbox_win.h"

#include <commctrl.h>

#include <algorithm>
#include <cstring>

#include "paper/rtf_text.h"
#include "paper/wine/page_formatter_win.h"
#include "values/system_error_win.h"
#include "windowing/application_win.h"
#include "windowing/system_library_win.h"

namespace paper {
namespace {

constexpr UINT wideText = 1200;  // code page number of UTF-16

void loadLibrary() {
  static const HMODULE library = windowing::loadSystemLibrary("riched20.dll");
  if (library == nullptr) values::raiseLastError();
}

// Character set of fonts for texts in the ANSI code page.
BYTE ansiCharset() {
  CHARSETINFO info{};
  const auto codePage = static_cast<DWORD_PTR>(GetACP());
  return TranslateCharsetInfo(reinterpret_cast<DWORD*>(codePage), &info, TCI_SRCCODEPAGE)
             ? static_cast<BYTE>(info.ciCharset)
             : BYTE{DEFAULT_CHARSET};
}

std::u16string widened(const std::string& text) {
  const int size = static_cast<int>(text.size());
  std::wstring wide(
      static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, text.data(), size, nullptr, 0)),
      L'\0');
  MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide.data(), static_cast<int>(wide.size()));
  return {wide.begin(), wide.end()};
}

struct Source {
  const std::string* text;
  std::size_t at;
};

DWORD CALLBACK give(DWORD_PTR cookie, LPBYTE buffer, LONG wanted, LONG* given) {
  auto* source = reinterpret_cast<Source*>(cookie);
  const std::size_t rest = source->text->size() - source->at;
  const std::size_t count = std::min(rest, static_cast<std::size_t>(wanted));
  std::memcpy(buffer, source->text->data() + source->at, count);
  source->at += count;
  *given = static_cast<LONG>(count);
  return 0;
}

DWORD CALLBACK take(DWORD_PTR cookie, LPBYTE buffer, LONG offered, LONG* taken) {
  try {
    reinterpret_cast<std::string*>(cookie)->append(reinterpret_cast<const char*>(buffer),
                                                   static_cast<std::size_t>(offered));
    *taken = offered;
    return 0;
  } catch (const std::exception&) {
    return ERROR_NOT_ENOUGH_MEMORY;
  }
}

}  // namespace

RichTextBox::~RichTextBox() {
  if (handle() != nullptr) DestroyWindow(handle());
}

HWND RichTextBox::create(HWND container, int id, const RECT& place, DWORD style) {
  loadLibrary();
  const HWND window =
      windowing::createChild({RICHEDIT_CLASSA, ES_MULTILINE | style}, container, id, place);
  windowing::Control::operator=(windowing::Control(window));
  SetWindowSubclass(window, watch, 0, reinterpret_cast<DWORD_PTR>(this));
  wine::installPageFormatter(window);
  constexpr LPARAM unlimited = 0x7FFFFFFE;
  send(EM_EXLIMITTEXT, 0, unlimited);
  send(EM_SETUNDOLIMIT, 0);
  // The box is never seen, so it need not wrap its text, which takes very long for a long
  // paragraph. Pages wrap the text by their own width all the same.
  constexpr LPARAM noWrapping = 1;
  send(EM_SETTARGETDEVICE, 0, noWrapping);
  setFormat(format_);
  return window;
}

LRESULT CALLBACK RichTextBox::watch(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                    UINT_PTR id, DWORD_PTR box) {
  // Ignores the font that the form gives to all its controls: empty lines of the text would get it.
  if (message == WM_SETFONT) return 0;
  if (message == WM_NCDESTROY) {
    RemoveWindowSubclass(window, watch, id);
    // The container was destroyed, or `renew` has put a new control in the place of this one.
    windowing::Control& control = *reinterpret_cast<RichTextBox*>(box);
    if (control.handle() == window) control = windowing::Control();
  }
  return DefSubclassProc(window, message, wParam, lParam);
}

void RichTextBox::setFormat(const TextFormat& format) {
  format_ = format;
  applyFormat(SCF_DEFAULT);
  applyFormat(SCF_ALL);
}

void RichTextBox::applyFormat(WPARAM scope) const {
  constexpr int twipsPerPoint = 20;
  CHARFORMAT2A wanted{};
  wanted.cbSize = sizeof wanted;
  wanted.dwMask = CFM_FACE | CFM_SIZE | CFM_CHARSET | CFM_COLOR | CFM_BOLD | CFM_ITALIC |
                  CFM_UNDERLINE | CFM_STRIKEOUT;
  // Without CFE_AUTOCOLOR, which would print in the colour that the user chose for windows.
  wanted.dwEffects = format_.bold ? CFE_BOLD : 0;
  wanted.yHeight = format_.points * twipsPerPoint;
  wanted.crTextColor = RGB(0, 0, 0);
  wanted.bCharSet = ansiCharset();
  format_.face.copy(wanted.szFaceName, sizeof wanted.szFaceName - 1);
  send(EM_SETCHARFORMAT, scope, reinterpret_cast<LPARAM>(&wanted));
}

void RichTextBox::setPlain(const std::string& text) {
  const std::u16string wide = widened(text);
  int length = 0;
  for (std::size_t i = 0; i < wide.size(); ++i)
    if (wide[i] != u'\n' || i == 0 || wide[i - 1] != u'\r') ++length;
  setRichText({rtfOfText(wide, format_, ansiCharset()), length});
}

int RichTextBox::length() const {
  GETTEXTLENGTHEX wanted{GTL_NUMCHARS | GTL_PRECISE, wideText};
  return static_cast<int>(send(EM_GETTEXTLENGTHEX, reinterpret_cast<WPARAM>(&wanted)));
}

TextSelection RichTextBox::selection() const {
  CHARRANGE range{};
  send(EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&range));
  // If everything is selected, the range may include the final paragraph mark, which does not
  // belong to the text.
  const LONG end = std::min<LONG>(range.cpMax, length());
  return {static_cast<int>(range.cpMin), static_cast<int>(std::max(0L, end - range.cpMin))};
}

void RichTextBox::select(TextSelection wanted) const {
  CHARRANGE range{wanted.start, wanted.start + wanted.length};
  send(EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&range));
}

RichText RichTextBox::richText() const {
  // Streamed as a selection, because the whole text would include the final paragraph mark.
  const TextSelection before = selection();
  select({0, length()});
  RichText text = selectedRichText();
  select(before);
  return text;
}

RichText RichTextBox::selectedRichText() const {
  return {streamOut(SF_RTF | SFF_SELECTION), selection().length};
}

// Puts a new control in the place of this one, since Wine's control takes minutes to remove
// thousands of paragraphs.
void RichTextBox::renew() {
  const HWND old = handle();
  const HWND container = GetParent(old);
  RECT place{};
  GetWindowRect(old, &place);
  MapWindowPoints(nullptr, container, reinterpret_cast<POINT*>(&place), 2);
  create(container, GetDlgCtrlID(old), place, static_cast<DWORD>(GetWindowLongA(old, GWL_STYLE)));
  DestroyWindow(old);
}

void RichTextBox::setRichText(const RichText& text) {
  constexpr int muchText = 20'000;
  if (length() > muchText) renew();
  streamIn(SF_RTF, text.rtf);
  correctEnd(length(), text.length);
  select({0, 0});
}

void RichTextBox::replaceSelection(const RichText& text) const {
  const TextSelection replaced = selection();
  const int kept = length() - replaced.length;
  streamIn(SF_RTF | SFF_SELECTION, text.rtf);
  const int inserted = length() - kept;
  correctEnd(replaced.start + inserted, replaced.start + text.length);
  select({replaced.start + text.length, 0});
}

void RichTextBox::insertLineBreak() const {
  const int start = selection().start;
  send(EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>("\r"));
  select({start + 1, 0});
}

// Corrects the end of rich text that was read: some versions of the control add a paragraph mark at
// its end, others leave out one that belongs to the text.
void RichTextBox::correctEnd(int end, int expected) const {
  if (end < expected) {
    select({end, 0});
    insertLineBreak();
  } else if (end > expected) {
    select({expected, end - expected});
    send(EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(""));
  }
}

std::string RichTextBox::streamOut(WPARAM format) const {
  std::string rtf;
  EDITSTREAM stream{reinterpret_cast<DWORD_PTR>(&rtf), 0, take};
  send(EM_STREAMOUT, format, reinterpret_cast<LPARAM>(&stream));
  while (!rtf.empty() && rtf.back() == '\0') rtf.pop_back();
  if (stream.dwError != 0) throw values::systemError(stream.dwError);
  return rtf;
}

void RichTextBox::streamIn(WPARAM format, const std::string& rtf) const {
  Source source{&rtf, 0};
  EDITSTREAM stream{reinterpret_cast<DWORD_PTR>(&source), 0, give};
  send(EM_STREAMIN, format, reinterpret_cast<LPARAM>(&stream));
}

}  // namespace paper
