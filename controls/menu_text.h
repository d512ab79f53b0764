// What a menu item's caption says: its words, its access key and the shortcut behind the tab;
// and which item a key that the user presses in an open menu means.
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

/// A caption as it is read aloud: without the marks of access keys, the shortcut after a blank.
[[nodiscard]] std::string spokenText(std::string_view caption);

/// One line of an open menu.
struct MenuEntry {
  std::string_view caption;
  bool enabled = true;
  bool separator = false;
  bool highlighted = false;
};

/// What a key does in an open menu: the position it means (-1: none) and whether that item
/// runs at once or is only highlighted.
struct KeyChoice {
  int position = -1;
  bool run = false;
};

/// The item that the key `pressed` means. An access key comes before a first letter, which
/// counts for items without an access key. An available item that is alone with its key
/// runs; several are highlighted in turn, from the highlighted one on.
[[nodiscard]] KeyChoice chooseByKey(std::span<const MenuEntry> entries, char pressed);

}  // namespace controls
