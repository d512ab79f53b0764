#include "mainwindow/shown_text.h"

#include <algorithm>
#include <ranges>

namespace mainwindow {

bool shownWhole(std::string_view text, std::string_view back, bool multipleBytes) {
  text = text.substr(0, text.find('\0'));
  if (text == back) return true;
  const auto shows = [](char c) { return static_cast<unsigned char>(c) >= ' '; };
  if (std::ranges::equal(text | std::views::filter(shows), back | std::views::filter(shows)))
    return true;
  // What stands for such bytes is the system's choice; two of them may become one.
  const auto plain = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
  return multipleBytes && !std::ranges::all_of(text, plain) && back.size() >= text.size() / 2;
}

}  // namespace mainwindow
