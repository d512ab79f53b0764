// The parts of a menu item's caption (words, access key and shortcut), and the item that a key
// chooses in an open menu.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace controls {

/// A caption's parts: the words with their "&", and the shortcut's text, which may be empty.
struct MenuText {
  std::string_view words;
  std::string_view shortcut;
};
[[nodiscard]] MenuText splitMenuText(std::string_view caption);

/// Access key of a caption, as a capital letter: the character after the first single "&"
/// ("&&" is a "&" to be shown); 0 where there is none.
[[nodiscard]] char accessKey(std::string_view caption);

/// A caption as screen readers read it: without the marks of access keys, and with a blank before
/// the shortcut.
[[nodiscard]] std::string spokenText(std::string_view caption);

/// One line of an open menu.
struct MenuEntry {
  std::string_view caption;
  bool enabled = true;
  bool separator = false;
  bool highlighted = false;
};

/// What a key does in an open menu: the position of the item that it chooses (-1: none), and
/// whether that item runs at once or is only highlighted.
struct KeyChoice {
  int position = -1;
  bool run = false;
};

/// The item that the key `pressed` chooses: one with this access key; if there is none, one without
/// access key that begins with this letter. If only one item fits and it is enabled, it runs. If
/// several fit, the next one after the highlighted one is highlighted.
[[nodiscard]] KeyChoice chooseByKey(std::span<const MenuEntry> entries, char pressed);

}  // namespace controls
