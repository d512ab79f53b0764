// What functions with arrays compare on their way out: a value that an overrun would change. The
// compiler's own library asks a provider of cryptography for it, which takes longer than all else
// that happens before the program's first line.
#include <windows.h>

#include <ntsecapi.h>

#include <cstdint>

// The names are the compiler's.
// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp,readability-identifier-naming)
extern "C" {

std::uintptr_t __stack_chk_guard = 0x00FF0A0DU;  // stops text functions, should nothing better come

[[noreturn]] void __stack_chk_fail();
[[noreturn]] void __stack_chk_fail() {
  TerminateProcess(GetCurrentProcess(), static_cast<UINT>(STATUS_STACK_BUFFER_OVERRUN));
  __builtin_trap();
}

}  // extern "C"
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp,readability-identifier-naming)

namespace windowing {
namespace {

// Before everything else, and not guarded itself: its own guard would change on the way.
__attribute__((constructor(101), no_stack_protector)) void chooseGuard() {
  RtlGenRandom(&__stack_chk_guard, sizeof __stack_chk_guard);
}

}  // namespace
}  // namespace windowing
