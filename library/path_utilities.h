// Paths as texts; nothing here asks the disk. In a double-byte code page the second byte of
// a character may have the value of "\": functions that look for one take a test for lead bytes.
#pragma once

#include <string>
#include <string_view>

namespace library {

/// Whether a byte begins a two-byte character of the ANSI code page.
using LeadByteTest = bool (*)(unsigned char);
/// The test of a code page that has single bytes only.
[[nodiscard]] constexpr bool noLeadBytes(unsigned char) {
  return false;
}

/// Position of the last "\" that is a character of its own; npos where there is none.
[[nodiscard]] std::size_t lastBackslash(std::string_view path, LeadByteTest isLead = noLeadBytes);

/// Folder of a file's path, without its last "\"; empty where there is none after the first
/// character ("C:\Book.tly" gives "C:"). Raises overflow where none of the last 32,767
/// characters of a longer path is a "\".
[[nodiscard]] std::string folderPath(std::string_view path, LeadByteTest isLead = noLeadBytes);

/// Folder of a file's path up to and including its last "\"; empty where there is none.
[[nodiscard]] std::string folderWithBackslash(std::string_view path,
                                              LeadByteTest isLead = noLeadBytes);

/// The part of a path after its last "\"; all of it where there is none.
[[nodiscard]] std::string fileNameOf(std::string_view path, LeadByteTest isLead = noLeadBytes);

/// `path` with a "\" at its end, unless it has one or is three characters or shorter.
[[nodiscard]] std::string fileNameLengthCheck(std::string_view path,
                                              LeadByteTest isLead = noLeadBytes);

/// `folder` and `file` with exactly one "\" between them; `file` alone for an empty folder.
[[nodiscard]] std::string composePath(std::string_view folder, std::string_view file,
                                      LeadByteTest isLead = noLeadBytes);

/// `text` up to its first NUL.
[[nodiscard]] std::string trimNull(std::string_view text);

/// Whether `path` holds "?" or "*", which would match other files than the one meant.
[[nodiscard]] bool hasWildcards(std::string_view path);

/// `folder`, a bare drive ("C:") with its "\": without it, it means the drive's current folder.
[[nodiscard]] std::string bareDriveToRoot(std::string_view folder);

/// `path` with `extension` (".tly") appended where its last part has no extension.
[[nodiscard]] std::string withDefaultExtension(std::string_view path, std::string_view extension,
                                               LeadByteTest isLead = noLeadBytes);

/// Whether the shell may be asked to delete `path`: a full path of one file. Anything else is
/// refused, since the shell would delete it for good or delete other files.
[[nodiscard]] bool isSafeToDelete(std::string_view path);

/// `path` as the list of one that shell operations take: its end is marked by two NULs, both
/// inside the text.
[[nodiscard]] std::string doubleNulList(std::string_view path);

}  // namespace library
