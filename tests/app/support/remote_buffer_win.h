// Memory inside another process, for messages whose answer is a structure or a text that
// Windows does not carry across.
#pragma once

#include <windows.h>

#include <string>

namespace drive {

class RemoteBuffer {
 public:
  explicit RemoteBuffer(DWORD processId)
      : process_(OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ, FALSE, processId)),
        memory_(VirtualAllocEx(process_, nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE)) {
  }
  RemoteBuffer(const RemoteBuffer&) = delete;
  RemoteBuffer& operator=(const RemoteBuffer&) = delete;
  ~RemoteBuffer() {
    VirtualFreeEx(process_, memory_, 0, MEM_RELEASE);
    CloseHandle(process_);
  }

  static constexpr std::size_t size = 1024;
  [[nodiscard]] LPARAM address() const { return reinterpret_cast<LPARAM>(memory_); }
  template <typename T>
  [[nodiscard]] T value() const {
    T read{};
    ReadProcessMemory(process_, memory_, &read, sizeof read, nullptr);
    return read;
  }
  /// Up to the first NUL.
  [[nodiscard]] std::string text() const {
    char read[size + 1] = {};
    ReadProcessMemory(process_, memory_, read, size, nullptr);
    return read;
  }

 private:
  HANDLE process_;
  void* memory_;
};

}  // namespace drive
