// Crashes on purpose, where its argument says: tools/crash_fails.sh sees that this is reported.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <string>
#include <thread>

namespace {

std::string how;
int* volatile nowhere = nullptr;

void crash() {
  *nowhere = 1;
}

struct AtExit {
  ~AtExit() {
    if (how == "exit") crash();
    // A crash under Wine ends the program with code 0 where the debugger is the first to end it,
    // which it is now and then; here the program itself ends well while the debugger still starts.
    if (how == "late") {
      std::thread crashing(crash);
      std::this_thread::sleep_for(std::chrono::milliseconds(300));
      std::_Exit(0);
    }
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
