// Paths as texts; nothing here asks the disk. In a double-byte code page the second byte of a
// character may be the same as "\". So functions that look for "\" take a test for lead bytes.
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

/// Folder of a file's path, without the last "\" ("C:\Book.tly" gives "C:"). Empty where the path
/// has no "\" after its first character. Raises overflow where a path longer than 32,767
/// characters has no "\" within its last 32,767.
[[nodiscard]] std::string folderPath(std::string_view path, LeadByteTest isLead = noLeadBytes);

/// Folder of a file's path up to and including its last "\"; empty where there is none.
[[nodiscard]] std::string folderWithBackslash(std::string_view path,
                                              LeadByteTest isLead = noLeadBytes);

/// The part of a path after its last "\"; all of it where there is none.
[[nodiscard]] std::string fileNameOf(std::string_view path, LeadByteTest isLead = noLeadBytes);

/// `path` with a "\" at its end. A path of up to three characters stays as it is.
[[nodiscard]] std::string fileNameLengthCheck(std::string_view path,
                                              LeadByteTest isLead = noLeadBytes);

/// `folder` and `file` with exactly one "\" between them; `file` alone for an empty folder.
[[nodiscard]] std::string composePath(std::string_view folder, std::string_view file,
                                      LeadByteTest isLead = noLeadBytes);

/// `text` up to its first NUL.
[[nodiscard]] std::string trimNull(std::string_view text);

/// Whether `path` holds "?" or "*"; a search for it would find other files too.
[[nodiscard]] bool hasWildcards(std::string_view path);

/// `folder`; a drive alone ("C:") gets a "\", since "C:" means the current folder of the drive.
[[nodiscard]] std::string bareDriveToRoot(std::string_view folder);

/// `path` with `extension` (".tly") appended where its file name has no extension.
[[nodiscard]] std::string withDefaultExtension(std::string_view path, std::string_view extension,
                                               LeadByteTest isLead = noLeadBytes);

/// Whether the shell may be asked to delete `path`, which must be the full path of one file or
/// folder. For any other path, the shell would delete for good, or delete other files.
[[nodiscard]] bool isSafeToDelete(std::string_view path);

/// `path` as a list of one file for the shell. Two NULs end the list; both are part of the text.
[[nodiscard]] std::string doubleNulList(std::string_view path);

}  // namespace library
