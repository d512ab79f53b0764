// Crashes on purpose, where its argument says: tools/crash_fails.sh sees that this is reported.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

std::string how;
int* volatile nowhere = nullptr;

void crash() {
  *nowhere = 1;
}

struct AtExit {
  ~AtExit() {
    if (how == "exit") crash();
    // What is left of a crash that Wine's debugger was the first to end, as it is now and then.
    if (how == "debugger") {
      static_cast<void>(std::fputs("Unhandled exception: as the debugger tells it\n", stderr));
      std::_Exit(0);
    }
    // One of Wine's own services may crash; that is no fault of the tests.
    if (how == "service")
      static_cast<void>(std::fputs("wine: Unhandled page fault, starting debugger...\n", stderr));
  }
} atExit;

TEST(Crashing, Before) {}

TEST(Crashing, InACase) {
  if (how == "case") crash();
  if (how == "quietly") std::_Exit(0);
}

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (argc > 1) how = argv[1];
  return RUN_ALL_TESTS();
}
