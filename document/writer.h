// Writing a document file.
#pragma once

#include <cstddef>
#include <functional>
#include <string_view>

#include "document/ContactList.h"

namespace document {

/// Bytes, about, of one piece; a row of contacts that nobody touched goes out as one.
constexpr std::size_t writeChunk = std::size_t{256} * 1024;

/// Hands the file's content to `sink`, piece by piece and in order; an empty list has none.
/// Each text goes on a line of its own between double quotes and as it stands: a double quote
/// inside it is deliberately neither doubled nor escaped, as the format has it. What `sink`
/// throws passes through.
void write(const ContactList& list, const std::function<void(std::string_view)>& sink);

}  // namespace document
