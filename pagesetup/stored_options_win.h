// The header and footer settings as the settings store has them at the moment.
#pragma once

#include "pagesetup/header_footer.h"

namespace pagesetup {

/// What the defaults are made of: the product, the registered owner, the open document.
[[nodiscard]] DefaultTexts defaultTexts();

/// All thirteen settings, with their defaults where nothing is stored. Nothing is remembered
/// between two calls.
[[nodiscard]] HeaderFooterOptions readOptions();

}  // namespace pagesetup
