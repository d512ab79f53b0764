#include "controls/menu_text.h"

#include <vector>

namespace controls {
namespace {

constexpr char capital(char letter) {
  return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

char firstLetter(std::string_view caption) {
  return caption.empty() ? '\0' : capital(caption.front());
}

template <typename KeyOf>
std::vector<int> positionsWith(std::span<const MenuEntry> entries, char key, KeyOf keyOf) {
  std::vector<int> found;
  for (std::size_t i = 0; i < entries.size(); ++i)
    if (!entries[i].separator && keyOf(entries[i].caption) == key)
      found.push_back(static_cast<int>(i));
  return found;
}

}  // namespace

MenuText splitMenuText(std::string_view caption) {
  const auto tab = caption.find('\t');
  if (tab == std::string_view::npos) return {caption, {}};
  return {caption.substr(0, tab), caption.substr(tab + 1)};
}

char accessKey(std::string_view caption) {
  const std::string_view words = splitMenuText(caption).words;
  for (std::size_t i = 0; i + 1 < words.size(); ++i) {
    if (words[i] != '&') continue;
    if (words[i + 1] != '&') return capital(words[i + 1]);
    ++i;
  }
  return '\0';
}

std::string spokenText(std::string_view caption) {
  const auto [words, shortcut] = splitMenuText(caption);
  std::string spoken;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (words[i] == '&' && i + 1 < words.size()) ++i;
    spoken += words[i];
  }
  if (!shortcut.empty()) spoken.append(" ").append(shortcut);
  return spoken;
}

KeyChoice chooseByKey(std::span<const MenuEntry> entries, char pressed) {
  const char key = capital(pressed);
  if (key == '\0') return {};
  std::vector<int> found = positionsWith(entries, key, accessKey);
  if (found.empty()) {
    found = positionsWith(entries, key, [](std::string_view caption) {
      return accessKey(caption) == '\0' ? firstLetter(caption) : '\0';
    });
  }
  if (found.empty()) return {};
  if (found.size() == 1)
    return {found.front(), entries[static_cast<std::size_t>(found.front())].enabled};

  std::size_t next = 0;
  for (std::size_t i = 0; i < found.size(); ++i)
    if (entries[static_cast<std::size_t>(found[i])].highlighted) next = (i + 1) % found.size();
  return {found[next], false};
}

}  // namespace controls
