#include "library/message_catalogue.h"

#include <gtest/gtest.h>

#include "windowing/runtime_error.h"

using namespace library;

namespace {

const MessageInserts inserts{"A %2 & b", "1", "3", "Product", "C:\\Program", ','};

MessageInserts counted(std::string_view count) {
  MessageInserts result = inserts;
  result.file2 = result.file3 = count;
  return result;
}

}  // namespace

TEST(MessageCatalogue, InsertsStandWhereTheyBelong) {
  EXPECT_EQ(composeMessage(6, inserts),
            (Message{"The text 'A %2 & b' have all been replaced by '1' 3 times.", "Replace", 64,
                     false}));
  EXPECT_EQ(composeMessage(13, inserts),
            (Message{"There is no printer installed. You will not be able to use the printer "
                     "functions.",
                     "C:\\Program", 16, true}));
  EXPECT_EQ(composeQuestion(2, inserts),
            (Message{"Are you really sure you want to delete 'A %2 & b' to the Recycle Bin ?",
                     "Clear Picture", 292, false}));
}

TEST(MessageCatalogue, NumbersWithoutEntryAreEmptyBoxes) {
  for (const int number : {-1, 0, 2, 4, 5, 7, 8, 11, 16, 17, 18, 20, 21, 23, 26, 32767})
    EXPECT_EQ(composeMessage(number, inserts), Message()) << number;
  for (const int number : {-1, 0, 1, 4, 7, 9, 10, 32767})
    EXPECT_EQ(composeQuestion(number, inserts), Message()) << number;
}

TEST(MessageCatalogue, PluralsFollowTheirNumber) {
  for (const char* one : {"1", "1.0", "1,0", " 1 ", "1e0"}) {
    EXPECT_TRUE(composeMessage(3, counted(one)).text.ends_with("' time.")) << one;
    EXPECT_TRUE(composeMessage(6, counted(one)).text.ends_with(" time.")) << one;
  }
  for (const char* many : {"0", "2", "-1", "1.5"})
    EXPECT_TRUE(composeMessage(3, counted(many)).text.ends_with("' times.")) << many;
  for (const char* bad : {"", "one", "1 time"})
    for (const int number : {3, 6}) try {
        (void)composeMessage(number, counted(bad));
        ADD_FAILURE() << number << bad;
      } catch (const windowing::RuntimeError& error) {
        EXPECT_EQ(error.number(), windowing::ErrorNumber::typeMismatch);
      }
  EXPECT_EQ(composeMessage(12, counted("none")).flags, 48U);
}
