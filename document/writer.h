// Writing a document file.
#pragma once

#include <cstddef>
#include <functional>
#include <string_view>

#include "document/ContactList.h"

namespace document {

/// Approximate size of a piece, bytes. A row of unchanged contacts is one piece of any size.
constexpr std::size_t writeChunk = std::size_t{256} * 1024;

/// Hands the file's content to `sink`, piece by piece and in order; for an empty list, nothing.
/// Each text is written between double quotes on a line of its own. A double quote inside a text
/// is deliberately neither doubled nor escaped: the format has no way to do that. Errors of `sink`
/// are passed on.
void write(const ContactList& list, const std::function<void(std::string_view)>& sink);

}  // namespace document
