// Writing a file so that its old content is never endangered.
#pragma once

#include <string>

#include "files/file_calls_win.h"
#include "files/file_writing_win.h"

namespace files {

/// Gives the file `path`, or the one that it links to, the content that `produce` hands to its
/// sink. The content goes to a temporary file beside it, reaches the disk, takes over the old
/// file's attributes and, where they differ, its access rights, and then replaces it in one
/// step: whatever happens, the whole old or the whole new content stands under the name.
///
/// Where more hangs on the old file than a new one can take over (other names, streams,
/// encryption, an owner; on Wine the Unix permissions) the old file is kept under a second
/// name meanwhile, is given the new content once that stands under the name, and replaces the
/// temporary file in turn. Only where nothing can be put beside it, or it can have one name
/// only, is it written in place, with a copy of the old bytes on the disk until that is done.
///
/// A file that another program has open is waited for, a quarter of a second. Raises the first
/// failure (permission denied for a read-only file); nothing has changed then, and no temporary
/// file is left.
void replaceFile(const std::string& path, const FileProducer& produce, FileCalls& calls);

/// Full path of the temporary file that a save of `path` goes through, beside it; the same at
/// every save, so that one left by a crash is overwritten by the next. Raises where `path` names
/// no file.
[[nodiscard]] std::string temporaryName(const std::string& path);

}  // namespace files
