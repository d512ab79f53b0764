// The document that the command line names.
#pragma once

#include <string>

namespace app {

/// Full path of the document that the tail of the command line names, spelled as on the disk and
/// with its extension. The whole tail is one path, blanks included. A file that does not exist
/// keeps the name that was typed; a path that cannot be resolved stays as it is.
[[nodiscard]] std::string documentPathOf(const std::string& tail);

}  // namespace app
