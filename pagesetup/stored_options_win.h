// Reading the settings of header and footer.
#pragma once

#include "pagesetup/header_footer.h"

namespace pagesetup {

/// The texts that the defaults are made from: the product, the registered owner, the open document.
[[nodiscard]] DefaultTexts defaultTexts();

/// Reads all thirteen settings; those for which nothing is stored have their defaults.
[[nodiscard]] HeaderFooterOptions readOptions();

}  // namespace pagesetup
