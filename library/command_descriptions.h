// One sentence for each menu command of the maker's products. The status bar shows it while the
// command is highlighted or under the pointer.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace library {

/// What a description depends on: the noun for documents, the product's name, whether it is for the
/// print preview (whose "&Close" closes no document) and for the picture product.
struct DescriptionContext {
  std::string_view noun;
  std::string_view product;
  bool previewWindow = false;
  bool pictureProduct = false;
};

/// Description of the command with the menu caption `caption`: that of the first row whose caption
/// `caption` begins with, upper and lower case and "&" included. So "..." or a shortcut after the
/// words does not matter. No value where no row matches.
[[nodiscard]] std::optional<std::string> commandDescription(std::string_view caption,
                                                            const DescriptionContext& context);

/// Description of a system-menu command by its SC_ code; empty for any other code.
[[nodiscard]] std::string systemCommandDescription(unsigned code);

}  // namespace library
