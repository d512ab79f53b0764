#include "library/command_hints_win.h"

#include <commctrl.h>

#include "library/clsLibrary_win.h"

namespace library {
namespace {

constexpr UINT timerInterval = 100;  // milliseconds

// A tooltip is the command's caption without access key and dots.
std::string tooltipText(std::string_view caption) {
  std::string text(caption);
  std::erase(text, '&');
  while (text.ends_with('.')) text.pop_back();
  return text;
}

}  // namespace

windowing::StatusBar CommandHints::bar() const {
  return windowing::StatusBar(form_.control("SBMAIN").handle());
}

void CommandHints::remember() {
  shown_ = bar().panel();
}

void CommandHints::item(int number) {
  end();
  if (number == 0) return;
  LIBRARY().STATUSTEXTDESC(form_, form_, number, false, noun_);
  remember();
}

void CommandHints::systemItem(std::uint32_t code) {
  LIBRARY().SYSTEMMENUDESC(form_, code);
  remember();
}

void CommandHints::button(const std::string& key) {
  LIBRARY().GETTBARDESCRIPTIONS(form_, key, noun_);
  remember();
  SetTimer(form_.handle(), TMR1, timerInterval, nullptr);
}

void CommandHints::notify(NMHDR& header, const std::function<ButtonHint(int)>& hint) {
  if (header.code == TBN_HOTITEMCHANGE) {
    const auto& hot = reinterpret_cast<const NMTBHOTITEM&>(header);
    const bool leaving = (hot.dwFlags & HICF_LEAVING) != 0;
    const ButtonHint found = leaving ? ButtonHint{} : hint(hot.idNew);
    if (!found.key.empty()) button(std::string(found.key));
  }
  if (header.code == TTN_GETDISPINFOA) {
    auto& tip = reinterpret_cast<NMTTDISPINFOA&>(header);
    const ButtonHint found = hint(static_cast<int>(header.idFrom));
    if (!found.caption.empty())
      lstrcpynA(tip.szText, tooltipText(found.caption).c_str(), sizeof tip.szText);
  }
}

void CommandHints::onTimer(UINT_PTR timer) {
  if (timer != TMR1) return;
  // The family's figures for the watched area (1, 533, 44, 65) belong to one theme at one
  // resolution; the toolbar itself says where it is.
  const HWND toolbar = form_.control("TBARMAIN").handle();
  RECT area{};
  GetClientRect(toolbar, &area);
  MapWindowPoints(toolbar, form_.handle(), reinterpret_cast<POINT*>(&area), 2);
  if (!LIBRARY().MOUSEMOVE(form_, area.left, area.right, area.top, area.bottom)) end();
}

void CommandHints::end() {
  KillTimer(form_.handle(), TMR1);
  if (!shown_.empty() && bar().panel() == shown_) LIBRARY().STATUSBARCAPTION(form_, "", false);
  shown_.clear();
}

}  // namespace library
