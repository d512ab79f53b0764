// The calls that a save makes to the file system, one virtual function each, so that a test
// can let any of them fail.
#pragma once

#include <windows.h>

#include <string>

namespace files {

/// Each function makes one call; it reports failure by its result and GetLastError.
class FileCalls {
 public:
  FileCalls() = default;
  FileCalls(const FileCalls&) = delete;
  FileCalls& operator=(const FileCalls&) = delete;
  virtual ~FileCalls() = default;

  virtual DWORD attributes(const std::string& path);
  virtual bool setAttributes(const std::string& path, DWORD attributes);
  virtual HANDLE open(const std::string& path, DWORD access, DWORD disposition);
  /// Makes a new file to write to; fails where one of this name exists.
  virtual HANDLE create(const std::string& path, DWORD attributes);
  /// The same, but the file is deleted when it is closed.
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
  /// Owner and access control list as bytes to compare; empty where the file system has neither.
  virtual std::string security(const std::string& path);
  /// Gives `to` the access control list of `from`. On Wine the Unix group of `to` may get less
  /// than that of `from` has, but never more.
  virtual bool copySecurity(const std::string& from, const std::string& to);
  /// Whether `security` tells everything about who may use a file. On Wine it does not: Wine makes
  /// it from the permission bits of the Unix file, without the bits of the group and without the
  /// name of the group.
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
