// What the command line names as a document.
#pragma once

#include <string>

namespace app {

/// Full path of the document that the tail of the command line names, with the letters that
/// the disk has and the file's extension. The whole tail is one path, blanks and all. A file
/// that does not exist keeps its name as typed; a path that cannot be resolved stays as it is.
[[nodiscard]] std::string documentPathOf(const std::string& tail);

}  // namespace app
