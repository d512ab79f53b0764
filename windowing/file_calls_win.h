// The calls that a save makes to the file system, one virtual function each, so that a test
// can let any of them fail.
#pragma once

#include <windows.h>

#include <string>

namespace windowing {

/// Thin: each function is one call and reports failure by its result and GetLastError.
class FileCalls {
 public:
  FileCalls() = default;
  FileCalls(const FileCalls&) = delete;
  FileCalls& operator=(const FileCalls&) = delete;
  virtual ~FileCalls() = default;

  virtual DWORD attributes(const std::string& path);
  virtual bool setAttributes(const std::string& path, DWORD attributes);
  virtual HANDLE open(const std::string& path, DWORD access, DWORD disposition);
  virtual bool read(HANDLE file, char* data, DWORD size, DWORD& done);
  virtual bool write(HANDLE file, const char* data, DWORD size, DWORD& done);
  virtual bool size(HANDLE file, LONGLONG& bytes);
  virtual bool rewind(HANDLE file);
  virtual bool truncate(HANDLE file);
  virtual bool flush(HANDLE file);
  virtual bool close(HANDLE file);
  virtual bool copySecurity(const std::string& from, const std::string& to);
  virtual bool replace(const std::string& temporary, const std::string& target);
  virtual bool remove(const std::string& path);
};

}  // namespace windowing
