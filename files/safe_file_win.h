// Writing a file so that its old content is never lost.
#pragma once

#include <string>

#include "files/file_calls_win.h"
#include "files/file_writing_win.h"

namespace files {

/// Gives the file `path`, or the file that it links to, the content that `produce` hands to its
/// sink. The content is written to a temporary file in the same folder and flushed to the disk.
/// The temporary file gets the old file's attributes and, where they differ, its access rights;
/// then it replaces the old file in one step. At every moment the whole old or the whole new
/// content stands under the name.
///
/// Some things of the old file cannot be given to a new one (other names, streams, encryption, an
/// owner; on Wine the Unix permissions). Where the old file has any of them, it is kept under a
/// second name meanwhile; once the new file stands under the document's name, the old file gets
/// the new content too and replaces the new file. The document is written in place only where its
/// folder takes no new file or its file system allows only one name for a file; a copy of the old
/// bytes is on the disk until that is done.
///
/// Waits a quarter of a second for another program that has the file open. Raises the first
/// failure (permission denied for a read-only file); the file is unchanged then, and no temporary
/// file is left.
void replaceFile(const std::string& path, const FileProducer& produce, FileCalls& calls);

/// Full path of the temporary file for a save of `path`, in the same folder. It is the same at
/// every save, so that the next save removes one that a crash left. Raises where `path` names no
/// file.
[[nodiscard]] std::string temporaryName(const std::string& path);

}  // namespace files
