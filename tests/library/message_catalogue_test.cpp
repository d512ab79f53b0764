#include "library/message_catalogue.h"

#include <gtest/gtest.h>

#include "values/runtime_error.h"

using namespace library;

namespace {

MessageInserts counted(std::string_view count) {
  return {"A %2 & b", count, count, "Product", "C:\\Program", ','};
}

}  // namespace

TEST(MessageCatalogue, InsertsStandWhereTheyBelong) {
  EXPECT_EQ(composeMessage(6, {"A %2 & b", "1", "3", "Product", "C:\\Program", ','}),
            (Message{"The text 'A %2 & b' have all been replaced by '1' 3 times.", "Replace", 64,
                     false}));
  const Message noPrinter = composeMessage(13, counted("1"));
  EXPECT_EQ(noPrinter.title, "C:\\Program");
  EXPECT_TRUE(noPrinter.beep);
  EXPECT_EQ(composeQuestion(2, counted("1")).title, "Clear Picture");
  for (const int number : {-1, 0, 2, 26, 32767})
    EXPECT_EQ(composeMessage(number, counted("1")), Message()) << number;
}

TEST(MessageCatalogue, PluralsFollowTheirNumber) {
  for (const int number : {3, 6}) {
    const auto text = [&](const char* count) {
      return composeMessage(number, counted(count)).text;
    };
    for (const char* one : {"1", "1.0", "1,0", " 1 "})
      EXPECT_TRUE(text(one).ends_with(" time.")) << one;
    for (const char* many : {"0", "-1", "1.5"})
      EXPECT_TRUE(text(many).ends_with(" times.")) << many;
    for (const char* bad : {"", "one", "1 time"})
      EXPECT_THROW((void)text(bad), values::RuntimeError) << bad;
  }
  EXPECT_EQ(composeMessage(12, counted("none")).flags, 48U) << "others do not ask for a number";
}
