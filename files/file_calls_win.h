// The calls that a save makes to the file system, one virtual function each, so that a test
// can let any of them fail.
#pragma once

#include <windows.h>

#include <string>

namespace files {

/// Thin: each function asks one thing and reports failure by its result and GetLastError.
class FileCalls {
 public:
  FileCalls() = default;
  FileCalls(const FileCalls&) = delete;
  FileCalls& operator=(const FileCalls&) = delete;
  virtual ~FileCalls() = default;

  virtual DWORD attributes(const std::string& path);
  virtual bool setAttributes(const std::string& path, DWORD attributes);
  virtual HANDLE open(const std::string& path, DWORD access, DWORD disposition);
  /// A new file to write to; fails where there is one.
  virtual HANDLE create(const std::string& path, DWORD attributes);
  /// The same, gone again as soon as it is closed.
  virtual HANDLE probe(const std::string& path);
  virtual bool information(HANDLE file, BY_HANDLE_FILE_INFORMATION& facts);
  /// Full name of an open file, all links followed, with the prefix of long names.
  virtual bool finalName(HANDLE file, std::wstring& name);
  virtual bool read(HANDLE file, char* data, DWORD size, DWORD& done);
  virtual bool write(HANDLE file, const char* data, DWORD size, DWORD& done);
  virtual bool size(HANDLE file, LONGLONG& bytes);
  virtual bool rewind(HANDLE file);
  virtual bool truncate(HANDLE file);
  virtual bool flush(HANDLE file);
  virtual bool setLastWrite(HANDLE file, const FILETIME& time);
  virtual bool close(HANDLE file);
  /// Owner and access control as bytes to compare; empty where the file system has neither.
  virtual std::string security(const std::string& path);
  /// Gives `to` the access control of `from`. On Wine never more than that to the Unix group,
  /// sometimes less.
  virtual bool copySecurity(const std::string& from, const std::string& to);
  /// Whether `security` tells all. Wine makes it up from the permission bits of the Unix file and
  /// leaves out the group's, its owning group, and what else Unix knows.
  virtual bool securityIsWhole();
  /// Whether the file has streams besides its content.
  virtual bool hasStreams(const std::string& path);
  virtual bool link(const std::string& path, const std::string& name);
  virtual bool replace(const std::string& temporary, const std::string& target);
  virtual bool remove(const std::string& path);
  virtual std::string temporaryFolder();
  virtual void wait(DWORD milliseconds);
};

}  // namespace files
