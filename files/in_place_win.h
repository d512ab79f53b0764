// Writing new content into the existing file, where no new file can take its place.
#pragma once

#include <string>

#include "files/save_target_win.h"

namespace files {

/// Writes `content` into the file. Before that, a copy of the old bytes is written and flushed:
/// beside the file ("Friends.tly.old") or, where no file can be made there, among the user's
/// temporary files. The copy is removed once the file is complete; after a crash it stays. A save
/// never overwrites such a copy. Raises the first failure, after it wrote the old bytes back;
/// where they cannot be written back, the copy stays.
void writeInPlace(const SaveTarget& target, const std::string& content, FileCalls& calls);

}  // namespace files
