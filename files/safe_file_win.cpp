#include "files/safe_file_win.h"

#include <cstdint>
#include <cstdio>
#include <vector>

#include "files/file_writing_win.h"
#include "files/in_place_win.h"
#include "files/save_target_win.h"
#include "values/system_error_win.h"

namespace files {
namespace {

// Those of `attributes` that a new file is given. The others say how the file system stores a file
// and cannot be set.
DWORD settable(DWORD attributes) {
  constexpr DWORD mask =
      FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
  // The next backup has to take the new content, as after any other writing.
  return (attributes & mask) | FILE_ATTRIBUTE_ARCHIVE;
}

// The name that the old file keeps while the new file has its name.
std::string secondName(const std::string& temporary) {
  return temporary.substr(0, temporary.size() - 3) + "old";
}

// Removes a temporary file that a crash left. Like the document, it may be read-only or hidden.
void clearLeftover(const std::string& temporary, FileCalls& calls) {
  if (calls.remove(temporary) || GetLastError() != ERROR_ACCESS_DENIED) return;
  if (calls.setAttributes(temporary, FILE_ATTRIBUTE_NORMAL)) calls.remove(temporary);
}

// How a document keeps what belongs to its file besides the bytes (names, streams, owner, rights).
enum class Manner {
  swap,      // the new file has all of it, and replaces the old one
  giveBack,  // the old file waits under a second name, gets the new bytes and comes back
  inPlace    // the old file cannot have a second name, so the new bytes are written into it
};

struct Plan {
  Manner manner = Manner::swap;
  bool mustComeBack = false;  // the old file; otherwise the new file may stay where it cannot
  std::string oldBytes;       // of the old file, where it must come back
};

// Gives `to` the owner and rights of `from`, unless the new file has the same already. False where
// they differ afterwards.
bool takesSecurity(const std::string& from, const std::string& to, FileCalls& calls) {
  const std::string wanted = calls.security(from);
  if (calls.security(to) == wanted) return true;
  calls.copySecurity(from, to);
  return calls.security(to) == wanted;
}

Plan prepare(const SaveTarget& target, const std::string& temporary, FileCalls& calls) {
  constexpr DWORD stored =
      FILE_ATTRIBUTE_ENCRYPTED | FILE_ATTRIBUTE_COMPRESSED | FILE_ATTRIBUTE_SPARSE_FILE;
  const bool whole = calls.securityIsWhole();
  Plan plan;
  plan.mustComeBack = target.links > 1 || (target.attributes & stored) != 0 ||
                      calls.hasStreams(target.path) ||
                      (whole && !takesSecurity(target.path, temporary, calls));
  if (!plan.mustComeBack && whole) return plan;
  {
    // Opened first to find out: while another program has the file open, it can neither come back
    // nor lose its second name.
    OpenFile old(openToRewrite(target.path, calls), calls);
    if (plan.mustComeBack) plan.oldBytes = old.readAll();
  }
  if (calls.link(target.path, secondName(temporary))) {
    plan.manner = Manner::giveBack;
    // The temporary file is the document for a moment, and stays so after a crash in that moment.
    calls.copySecurity(target.path, temporary);
  } else if (plan.mustComeBack || calls.security(temporary) != calls.security(target.path)) {
    plan.manner = Manner::inPlace;
  }
  return plan;
}

void rewrite(const std::string& path, const FileProducer& produce, FileCalls& calls) {
  OpenFile file(openToRewrite(path, calls), calls);
  file.overwrite(produce);
  file.close();
}

// Puts the old file back with its old bytes and their time. False where that fails, and where the
// old file need not come back.
bool restore(const SaveTarget& target, const std::string& second, const Plan& plan,
             FileCalls& calls) {
  if (!plan.mustComeBack) return false;
  try {
    OpenFile file(openToRewrite(second, calls), calls);
    file.putBack(plan.oldBytes, target.lastWrite);
    file.close();
    moveOver(second, target.path, calls);
    return true;
  } catch (...) {
    return false;
  }
}

// Called when the new file has the document's name. Writes the new content into the old file too,
// and moves the old file back to its name, with all that belongs to it.
void giveBack(const SaveTarget& target, const std::string& second, const FileProducer& produce,
              const Plan& plan, FileCalls& calls) {
  try {
    rewrite(second, produce, calls);
    moveOver(second, target.path, calls);
  } catch (...) {
    if (restore(target, second, plan, calls)) throw;
    // The new file stays the document. Its content is what was to be saved.
    calls.remove(second);
  }
}

// Saves by way of a new file. False where the document has to be written in place; the document is
// unchanged then.
bool swapIn(const SaveTarget& target, const FileProducer& produce, FileCalls& calls) {
  const std::string temporary = temporaryName(target.path);
  const std::string second = secondName(temporary);
  clearLeftover(temporary, calls);
  if (target.exists) calls.remove(second);

  const HANDLE file = calls.create(temporary, target.attributes & FILE_ATTRIBUTE_ENCRYPTED);
  if (file == INVALID_HANDLE_VALUE) {
    if (target.exists && GetLastError() == ERROR_ACCESS_DENIED) return false;
    values::raiseLastError();
  }
  Temporary undo(temporary, calls);
  OpenFile output(file, calls);
  const Plan plan = target.exists ? prepare(target, temporary, calls) : Plan();
  if (plan.manner == Manner::inPlace) return false;
  const bool comesBack = plan.manner == Manner::giveBack;
  Temporary undoLink(comesBack ? second : std::string(), calls);

  produce([&](std::string_view piece) { output.write(piece); });
  output.flush();
  output.close();
  if (target.exists && !calls.setAttributes(temporary, settable(target.attributes)))
    values::raiseLastError();
  moveOver(temporary, target.path, calls);
  undo.keep();
  undoLink.keep();
  if (comesBack) giveBack(target, second, produce, plan, calls);
  return true;
}

}  // namespace

std::string temporaryName(const std::string& path) {
  // The full path, because "C:name" and "folder/name" too must lead to the document's folder.
  std::vector<char> full(GetFullPathNameA(path.c_str(), 0, nullptr, nullptr) + 1);
  char* name = nullptr;
  const DWORD length =
      GetFullPathNameA(path.c_str(), static_cast<DWORD>(full.size()), full.data(), &name);
  if (length == 0 || length >= full.size()) values::raiseLastError();
  if (name == nullptr) throw values::systemError(ERROR_ACCESS_DENIED);  // a folder
  // A short name, so that the longest possible path has room for it; made from a hash of the
  // document's name, so that two documents in one folder do not share it.
  std::uint32_t hash = 2166136261U;
  for (const char* at = name; *at != '\0'; ++at) {
    const auto letter =
        static_cast<unsigned char>(*at >= 'A' && *at <= 'Z' ? *at + ('a' - 'A') : *at);
    hash = (hash ^ letter) * 16777619U;
  }
  char text[16] = {};
  static_cast<void>(
      std::snprintf(text, sizeof text, "~%07x.tmp", static_cast<unsigned>(hash >> 4)));
  return std::string(full.data(), name) + text;
}

void replaceFile(const std::string& path, const FileProducer& produce, FileCalls& calls) {
  const SaveTarget target = findSaveTarget(path, calls);
  Temporary undo(target.made ? target.path : std::string(), calls);
  // Checked here, because a move would replace a read-only file without complaint.
  if ((target.attributes & FILE_ATTRIBUTE_READONLY) != 0)
    throw values::systemError(ERROR_ACCESS_DENIED);
  if (!target.reachable || !swapIn(target, produce, calls)) {
    // All pieces are collected before the file is touched, so that a failure in `produce` harms
    // nothing.
    std::string content;
    produce([&](std::string_view piece) { content += piece; });
    writeInPlace(target, content, calls);
  }
  undo.keep();
}

}  // namespace files
