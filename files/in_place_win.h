// Writing a file over itself, for where nothing can be swapped in.
#pragma once

#include <string>

#include "files/save_target_win.h"

namespace files {

/// Writes `content` over the file's own. A copy of the old bytes is on the disk before the first
/// of them is touched, beside the file ("Friends.tly.old") or, where nothing can be put there,
/// among the user's temporary files. It is removed once the file is complete, and stays after a
/// crash; no save overwrites one. Raises the first failure; the old bytes are back then, or
/// where nothing can be written any more the copy stays.
void writeInPlace(const SaveTarget& target, const std::string& content, FileCalls& calls);

}  // namespace files
