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

// What one may set of `attributes`; the others say how a file is stored.
DWORD settable(DWORD attributes) {
  constexpr DWORD mask =
      FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
  // New content is for the next backup, as after any other writing.
  return (attributes & mask) | FILE_ATTRIBUTE_ARCHIVE;
}

// The old file's second name while its first is the new one's.
std::string secondName(const std::string& temporary) {
  return temporary.substr(0, temporary.size() - 3) + "old";
}

// Removes what a crash may have left behind. It may be read-only or hidden, as its document is.
void clearLeftover(const std::string& temporary, FileCalls& calls) {
  if (calls.remove(temporary) || GetLastError() != ERROR_ACCESS_DENIED) return;
  if (calls.setAttributes(temporary, FILE_ATTRIBUTE_NORMAL)) calls.remove(temporary);
}

// How a new file that takes an old one's place comes by what the old one is besides its bytes.
enum class Manner {
  swap,      // it has all of it
  giveBack,  // not at all: the old file is kept under a second name, to come back
  inPlace    // the same, where a file can have one name only
};

struct Plan {
  Manner manner = Manner::swap;
  bool mustComeBack = false;  // the old file; else what is saved may stay in the new one
  std::string oldBytes;       // if so
};

// Access control is copied only where it differs from what a new file has of itself.
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
    // A file that others have open could neither come back nor lose a second name.
    OpenFile old(openToRewrite(target.path, calls), calls);
    if (plan.mustComeBack) plan.oldBytes = old.readAll();
  }
  if (calls.link(target.path, secondName(temporary))) {
    plan.manner = Manner::giveBack;
    // It is the document for a moment, and what a crash there leaves.
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

// Whether the old file is back, with its old bytes and their time.
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

// The new content stands under the name. The file that was there before gets it as well, under
// its second name, and comes back with all that it is.
void giveBack(const SaveTarget& target, const std::string& second, const FileProducer& produce,
              const Plan& plan, FileCalls& calls) {
  try {
    rewrite(second, produce, calls);
    moveOver(second, target.path, calls);
  } catch (...) {
    if (restore(target, second, plan, calls)) throw;
    // It stays away then; what was to be saved is.
    calls.remove(second);
  }
}

// False where the file has to be written in place; nothing has happened then.
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
  // In full, for "C:name" and "folder/name" too have to lead to the folder of the document.
  std::vector<char> full(GetFullPathNameA(path.c_str(), 0, nullptr, nullptr) + 1);
  char* name = nullptr;
  const DWORD length =
      GetFullPathNameA(path.c_str(), static_cast<DWORD>(full.size()), full.data(), &name);
  if (length == 0 || length >= full.size()) values::raiseLastError();
  if (name == nullptr) throw values::systemError(ERROR_ACCESS_DENIED);  // a folder
  // Short, so that the longest path there can be still takes it; different for every name.
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
  // A move would step over the attribute that keeps the file from being changed.
  if ((target.attributes & FILE_ATTRIBUTE_READONLY) != 0)
    throw values::systemError(ERROR_ACCESS_DENIED);
  if (!target.reachable || !swapIn(target, produce, calls)) {
    // It is complete before the file is touched.
    std::string content;
    produce([&](std::string_view piece) { content += piece; });
    writeInPlace(target, content, calls);
  }
  undo.keep();
}

}  // namespace files
