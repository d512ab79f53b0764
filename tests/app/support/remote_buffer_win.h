// Memory inside another process, for messages whose answer is a structure or a text that
// Windows does not carry across.
#pragma once

#include <windows.h>

#include <stdexcept>
#include <string>

namespace drive {

class RemoteBuffer {
 public:
  RemoteBuffer(DWORD processId, std::size_t size)
      : process_(OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE,
                             processId)),
        size_(size) {
    if (process_ != nullptr)
      memory_ = VirtualAllocEx(process_, nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    if (memory_ == nullptr) {
      CloseHandle(process_);
      throw std::runtime_error("no memory in the program's process");
    }
  }
  RemoteBuffer(const RemoteBuffer&) = delete;
  RemoteBuffer& operator=(const RemoteBuffer&) = delete;
  ~RemoteBuffer() {
    VirtualFreeEx(process_, memory_, 0, MEM_RELEASE);
    CloseHandle(process_);
  }

  [[nodiscard]] LPARAM address() const { return reinterpret_cast<LPARAM>(memory_); }

  template <typename T>
  [[nodiscard]] T value() const {
    T read{};
    ReadProcessMemory(process_, memory_, &read, sizeof read, nullptr);
    return read;
  }
  /// Up to the first NUL.
  [[nodiscard]] std::string text() const {
    std::string read(size_, '\0');
    ReadProcessMemory(process_, memory_, read.data(), size_, nullptr);
    return read.substr(0, read.find('\0'));
  }

 private:
  HANDLE process_;
  std::size_t size_;
  void* memory_ = nullptr;
};

}  // namespace drive
