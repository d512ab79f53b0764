// Reading and writing settings by the rows of their table. Every call goes to the store.
#pragma once

#include <string>
#include <string_view>

#include "library/settings.h"

namespace library {

/// Key of a setting of this program; `form` is the name that a form's place is stored under.
[[nodiscard]] std::string keyOf(Setting setting, std::string_view form = {});

/// The stored text, or `otherwise`.
[[nodiscard]] std::string readText(Setting setting, const std::string& otherwise,
                                   std::string_view form = {});
/// The stored text, or the default of the table; a computed default is empty here.
[[nodiscard]] std::string readText(Setting setting);
/// The stored number, or the default of the table. Raises type mismatch for a text that is no
/// number.
[[nodiscard]] double readNumber(Setting setting);
/// The stored truth value. A text that is no truth value counts as true, so that a bar is shown, as
/// on the first start.
[[nodiscard]] bool readTruth(Setting setting);

/// Writes a value; an error is ignored, since the program works without stored settings.
void writeText(Setting setting, const std::string& text, std::string_view form = {});
void writeTruth(Setting setting, bool value);

}  // namespace library
