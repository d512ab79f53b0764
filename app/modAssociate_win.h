// Registration of the document type with the shell.
#pragma once

#include <string>

namespace app {

/// Has documents with `extension` (without a dot) show the program's icon group `iconIndex`
/// (decimal text) and open in this program. Written anew at every start, which repairs what
/// another program changed; every failure is ignored.
void Associate(const std::string& extension, const std::string& typeName,
               const std::string& iconIndex);

}  // namespace app
