// Keys that run commands: their text in a menu, and the controls that use the same keys.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace library {

/// Keys by their Windows virtual-key codes. The code of a letter or digit is its character.
enum class Key : unsigned {
  none = 0,
  pageUp = 0x21,
  pageDown = 0x22,
  end = 0x23,
  home = 0x24,
  insert = 0x2D,
  del = 0x2E,
  f4 = 0x73,
};

enum class Held : std::uint8_t { nothing, control, alt };

/// A key that runs a command, whichever control of the window has the focus.
struct Shortcut {
  Key key = Key::none;
  Held held = Held::nothing;

  bool operator==(const Shortcut&) const = default;
};

/// Alt+F4. Windows itself handles it in every window; a menu only shows it.
constexpr Shortcut closesWindow{Key::f4, Held::alt};

/// Kinds of controls that use some keys themselves.
enum KeyUser : std::uint8_t { nobody = 0, lineBox = 1, linesBox = 2, list = 4 };

struct KeyDesign {
  Key key = Key::none;
  std::string_view text;    ///< in a menu
  bool repeats = false;     ///< whether it runs its command again while it is held down
  unsigned users = nobody;  ///< controls that use the key: it runs no command in them
};

constexpr KeyDesign keyDesigns[] = {
    // These two do not repeat: a key held down would add or remove one contact after the other.
    {Key::insert, "Ins", false, nobody},
    {Key::del, "Del", false, lineBox | linesBox},
    {Key::home, "Home", true, lineBox | linesBox | list},
    {Key::pageUp, "PgUp", true, linesBox | list},
    {Key::pageDown, "PgDn", true, linesBox | list},
    {Key::end, "End", true, lineBox | linesBox | list},
    {Key::f4, "F4"},
};

/// Design of a key; for a letter or digit, one without text.
[[nodiscard]] constexpr KeyDesign designOf(Key key) {
  for (const KeyDesign& design : keyDesigns)
    if (design.key == key) return design;
  return {key, {}};
}

/// What a menu shows behind its item: "Ctrl+Del"; empty for no key.
[[nodiscard]] inline std::string shortcutText(Shortcut shortcut) {
  if (shortcut.key == Key::none) return {};
  std::string text = shortcut.held == Held::control ? "Ctrl+"
                     : shortcut.held == Held::alt   ? "Alt+"
                                                    : "";
  const std::string_view known = designOf(shortcut.key).text;
  return known.empty() ? text + static_cast<char>(shortcut.key) : text.append(known);
}

}  // namespace library
