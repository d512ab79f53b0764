// Registration of the document type with the shell.
#pragma once

#include <string>

namespace app {

/// Registers documents with `extension` (without a dot): they open in this program and show its
/// icon group `iconIndex` (decimal text). Called at every start, so that it also repairs what
/// another program changed. Every failure is ignored.
void Associate(const std::string& extension, const std::string& typeName,
               const std::string& iconIndex);

}  // namespace app
