#include "files/in_place_win.h"

#include "files/file_writing_win.h"
#include "values/runtime_error.h"
#include "values/system_error_win.h"

namespace files {
namespace {

constexpr int mostCopies = 9;

// Writes `bytes` to a new file `name`. False where a file of this name exists. Raises where the
// file cannot be made or written, and leaves none behind.
bool writeCopy(const std::string& name, const SaveTarget& target, const std::string& bytes,
               FileCalls& calls) {
  const HANDLE file = calls.create(name, target.attributes & FILE_ATTRIBUTE_ENCRYPTED);
  if (file == INVALID_HANDLE_VALUE) {
    if (GetLastError() == ERROR_FILE_EXISTS) return false;
    values::raiseLastError();
  }
  Temporary undo(name, calls);
  OpenFile copy(file, calls);
  calls.copySecurity(target.path, name);
  copy.write(bytes);
  copy.flush();
  copy.close();
  undo.keep();
  return true;
}

std::string writeNextCopy(const std::string& name, const SaveTarget& target,
                          const std::string& bytes, FileCalls& calls) {
  std::string copy = name + ".old";
  for (int number = 2; !writeCopy(copy, target, bytes, calls); ++number) {
    if (number > mostCopies) throw values::systemError(ERROR_FILE_EXISTS);
    copy = name + ".old" + std::to_string(number);
  }
  return copy;
}

// Makes the copy and returns its name. Raises where it can be made in neither folder.
std::string keepCopy(const SaveTarget& target, const std::string& bytes, FileCalls& calls) {
  char full[MAX_PATH] = {};
  char* name = nullptr;
  const DWORD length = GetFullPathNameA(target.path.c_str(), sizeof full, full, &name);
  if (length == 0 || length >= sizeof full || name == nullptr)
    throw values::systemError(ERROR_BAD_PATHNAME);
  try {
    return writeNextCopy(full, target, bytes, calls);
  } catch (const values::RuntimeError&) {
    return writeNextCopy(calls.temporaryFolder() + name, target, bytes, calls);
  }
}

}  // namespace

void writeInPlace(const SaveTarget& target, const std::string& content, FileCalls& calls) {
  OpenFile file(openToRewrite(target.path, calls), calls);
  const std::string old = file.readAll();
  Temporary copy(keepCopy(target, old, calls), calls);
  try {
    file.overwrite([&](const FileSink& sink) { sink(content); });
  } catch (...) {
    try {
      file.putBack(old, target.lastWrite);
    } catch (...) {
      copy.keep();
    }
    throw;
  }
}

}  // namespace files
