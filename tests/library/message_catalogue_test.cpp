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

TEST(MessageCatalogue, EveryMessageWhole) {
  const struct {
    int number;
    Message message;
  } rows[] = {
      {1, {"Spell Checker has now finished checking your document.", "Spell Checker", 64, false}},
      {3, {"The text 'A %2 & b' has been found '1' time.", "Find", 64, false}},
      {6, {"The text 'A %2 & b' have all been replaced by '1' 3 times.", "Replace", 64, false}},
      {9,
       {"The line number entered is larger than the current A %2 & b lines available.", "Go To", 48,
        false}},
      {10,
       {"There is a problem saving the document 'A %2 & b'. This is possibly a read-only document.",
        "Save", 48, false}},
      {12,
       {"You cannot enter a value which leaves you with no room to print.", "Page Setup", 48,
        false}},
      {13,
       {"There is no printer installed. You will not be able to use the printer functions.",
        "C:\\Program", 16, true}},
      {14,
       {"There are problems reading A %2 & b so the details will be only partly available.",
        "Properties", 48, false}},
      {15,
       {"A %2 & b is either an invalid format or the document is corrupt. \r\n Try re-saving the "
        "image to a different name from within a paint package and trying again.",
        "Product", 16, true}},
      {19,
       {"The document 'A %2 & b' cannot be reopened. The document may no longer exist.", "ReOpen",
        48, false}},
      {22,
       {"There is a problem with reading TGA 16 bit format, please try another format.", "Picture",
        48, false}},
      {24,
       {"You have reached the limit of documents that can be opened in a session, sorry.\r\nYou "
        "could always close Pressling and re-launch it.",
        "Product", 16, true}},
      {25,
       {"The document A %2 & b is no longer available and will now be removed from the list.",
        "Product", 48, false}}};
  for (const auto& row : rows) EXPECT_EQ(composeMessage(row.number, inserts), row.message);
}

TEST(MessageCatalogue, EveryQuestionWhole) {
  const struct {
    int number;
    Message message;
  } rows[] = {
      {2,
       {"Are you really sure you want to delete 'A %2 & b' to the Recycle Bin ?", "Clear Picture",
        292, false}},
      {3,
       {"The document 'A %2 & b' already exists.\r\nDo you really want to overwrite this ?",
        "Save As", 36, false}},
      {5,
       {"Continuing will loose any unsaved changes for the A %2 & b\r\nDo you want to continue ?",
        "ReOpen", 36, false}},
      {6, {"Do you wish to save 'A %2 & b' before you close ?", "Product", 35, false}},
      {8, {"You have unsaved work, do you want to save first ?", "New", 35, false}}};
  for (const auto& row : rows) EXPECT_EQ(composeQuestion(row.number, inserts), row.message);
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
