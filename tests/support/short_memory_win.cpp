#include "tests/support/short_memory_win.h"

#include <atomic>
#include <cstdlib>
#include <limits>
#include <new>

namespace {

constexpr std::size_t unlimited = std::numeric_limits<std::size_t>::max();
std::atomic<std::size_t> largest = unlimited;

}  // namespace

namespace test_support {

ShortMemory::ShortMemory(std::size_t limit) {
  largest = limit;
}
ShortMemory::~ShortMemory() {
  largest = unlimited;
}

}  // namespace test_support

// In place of the library's own, for the whole program.
void* operator new(std::size_t size) {
  void* const memory = size <= largest ? std::malloc(size == 0 ? 1 : size) : nullptr;
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}
