// The settings as the store has them at the moment; nothing is remembered between two calls.
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
/// The stored text, or the default of the table.
[[nodiscard]] std::string readText(Setting setting);
/// The stored number, or the default of the table. Raises type mismatch for a text that is none.
[[nodiscard]] double readNumber(Setting setting);
/// The stored truth value; true for a text that is none: a bar is shown then, as on the first
/// start.
[[nodiscard]] bool readTruth(Setting setting);

/// A value that cannot be written is not: settings are a convenience.
void writeText(Setting setting, const std::string& text, std::string_view form = {});
void writeTruth(Setting setting, bool value);

}  // namespace library
