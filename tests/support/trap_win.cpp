// Tests that are built to stop at undefined behaviour stop by an illegal instruction. In a call
// that Windows makes, the fault might be swallowed, and the test wait for good: end at once.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstdio>

namespace {

LONG CALLBACK endAtTrap(EXCEPTION_POINTERS* exception) {
  if (exception->ExceptionRecord->ExceptionCode != EXCEPTION_ILLEGAL_INSTRUCTION)
    return EXCEPTION_CONTINUE_SEARCH;
  const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
  std::printf("undefined behaviour at %p in %s.%s\n", exception->ExceptionRecord->ExceptionAddress,
              test == nullptr ? "" : test->test_suite_name(), test == nullptr ? "" : test->name());
  static_cast<void>(std::fflush(stdout));
  TerminateProcess(GetCurrentProcess(), 1);
  return EXCEPTION_CONTINUE_SEARCH;
}

[[maybe_unused]] const PVOID handler = AddVectoredExceptionHandler(1, endAtTrap);

}  // namespace
