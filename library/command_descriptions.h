// One sentence for every menu command of the product family, shown in the status bar while
// the command is under the pointer or highlighted.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace library {

/// Who asks for a description: what its documents are called, the product's name, whether the
/// print preview asks (its "&Close" closes no document), and whether it is the picture product.
struct DescriptionContext {
  std::string_view noun;
  std::string_view product;
  bool previewWindow = false;
  bool pictureProduct = false;
};

/// Description of the command with menu caption `caption` ("&" marks the access key; what
/// follows the words, like "..." or a shortcut, does not matter): that of the first row whose
/// caption it begins with, case included. Nothing where no row matches.
[[nodiscard]] std::optional<std::string> commandDescription(std::string_view caption,
                                                            const DescriptionContext& context);

/// Description of a system-menu command by its SC_ code; empty for any other code.
[[nodiscard]] std::string systemCommandDescription(unsigned code);

}  // namespace library
