#include "mainwindow/shown_text.h"

#include <algorithm>

namespace mainwindow {
namespace {

bool isControl(char c) {
  return static_cast<unsigned char>(c) < ' ';
}
bool isAscii(char c) {
  return static_cast<unsigned char>(c) < 0x80;
}

// Removes characters at the front that a box may not show.
void skipControls(std::string_view& text) {
  while (!text.empty() && isControl(text.front())) text.remove_prefix(1);
}

bool showTheSame(std::string_view one, std::string_view other) {
  for (;;) {
    skipControls(one);
    skipControls(other);
    if (one.empty() || other.empty()) return one.empty() && other.empty();
    if (one.front() != other.front()) return false;
    one.remove_prefix(1);
    other.remove_prefix(1);
  }
}

}  // namespace

bool shownWhole(std::string_view text, std::string_view back, bool multipleBytes) {
  text = text.substr(0, text.find('\0'));
  if (text == back || showTheSame(text, back)) return true;
  // Windows chooses the characters for such bytes, and may replace two bytes by one.
  return multipleBytes && !std::all_of(text.begin(), text.end(), isAscii) &&
         back.size() >= text.size() / 2;
}

}  // namespace mainwindow
