// Writing a file so that its old content is never endangered.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "windowing/file_calls_win.h"

namespace windowing {

/// Takes the next piece of a file's new content.
using FileSink = std::function<void(std::string_view)>;

/// Gives the file `path` the content that `produce` hands to its sink. The content goes to a
/// temporary file beside it, reaches the disk, takes over the old file's attributes and
/// security, and then replaces it in one step: whatever happens, the whole old or the whole new
/// content stands under the name. A folder that takes no new file has it written in place, and
/// put back where that fails; there alone a crash in the middle is not provided against. Raises the
/// first failure (permission denied for a read-only file); nothing has changed then, and no
/// temporary file is left.
void replaceFile(const std::string& path, const std::function<void(const FileSink&)>& produce,
                 FileCalls& calls);

/// Full path of the temporary file that a save of `path` goes through, beside it; the same at
/// every save, so that one left by a crash is overwritten by the next. Raises where `path` names
/// no file.
[[nodiscard]] std::string temporaryName(const std::string& path);

}  // namespace windowing
