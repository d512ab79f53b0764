#include "library/path_utilities.h"

#include <gtest/gtest.h>

#include "windowing/runtime_error.h"

using namespace library;

namespace {
// Lead bytes of the Japanese code page, where 0x5C is also the second byte of characters.
bool japanese(unsigned char c) {
  return (c >= 0x81 && c <= 0x9F) || (c >= 0xE0 && c <= 0xFC);
}
}  // namespace

TEST(PathUtilities, FoldersOfPaths) {
  const struct {
    const char *path, *folder, *withBackslash;
  } rows[] = {{"C:\\Data\\Book.tly", "C:\\Data", "C:\\Data\\"},
              {"C:\\Book.tly", "C:", "C:\\"},
              {"C:\\Data\\", "C:\\Data", "C:\\Data\\"},
              {"Book.tly", "", ""},
              {"C:/Book.tly", "", ""},
              {"\\x", "", "\\"},
              {"", "", ""}};
  for (const auto& row : rows) {
    EXPECT_EQ(folderPath(row.path), row.folder) << row.path;
    EXPECT_EQ(folderWithBackslash(row.path), row.withBackslash) << row.path;
  }
  const std::string japanesePath = "C:\\\x95\x5C.tly";
  EXPECT_EQ(folderPath(japanesePath, japanese), "C:");
  EXPECT_EQ(folderWithBackslash(japanesePath, japanese), "C:\\");
  EXPECT_EQ(fileNameLengthCheck("C:\\\x95\x5C", japanese), "C:\\\x95\x5C\\");
  EXPECT_EQ(composePath("C:\\\x95\x5C", "a", japanese), "C:\\\x95\x5C\\a");
  EXPECT_EQ(lastBackslash("\x95", japanese), std::string::npos);
}

TEST(PathUtilities, FolderCounterIsSixteenBits) {
  EXPECT_EQ(folderPath(std::string(32767, 'x')), "");
  EXPECT_THROW((void)folderPath(std::string(32768, 'x')), windowing::RuntimeError);
  EXPECT_EQ(folderPath("abc\\" + std::string(32766, 'x')), "abc");
  EXPECT_THROW((void)folderPath("abc\\" + std::string(32767, 'x')), windowing::RuntimeError);
  EXPECT_EQ(folderPath(std::string(100000, 'x') + "\\y"), std::string(100000, 'x'));
}

TEST(PathUtilities, BackslashesWhereOneIsDue) {
  const struct {
    const char *path, *checked;
  } rows[] = {{"", ""},
              {"C:", "C:"},
              {"C:\\", "C:\\"},
              {"abc", "abc"},
              {"abcd", "abcd\\"},
              {"C:\\Data", "C:\\Data\\"},
              {"C:\\Data\\", "C:\\Data\\"}};
  for (const auto& row : rows) EXPECT_EQ(fileNameLengthCheck(row.path), row.checked);
  EXPECT_EQ(composePath("C:\\Data", "a.tly"), "C:\\Data\\a.tly");
  EXPECT_EQ(composePath("C:\\", "\\a.tly"), "C:\\a.tly");
  EXPECT_EQ(composePath("C:", "a.tly"), "C:\\a.tly");
  EXPECT_EQ(composePath("", "a.tly"), "a.tly");
  EXPECT_EQ(bareDriveToRoot("C:"), "C:\\");
  for (const char* folder : {"", "C:\\", "C:\\Data", "1:", "ab"})
    EXPECT_EQ(bareDriveToRoot(folder), folder);
}

TEST(PathUtilities, NamesAndExtensions) {
  const struct {
    const char *typed, *full;
  } rows[] = {{"Book", "Book.tly"},         {"Book.tly", "Book.tly"},
              {"Book.txt", "Book.txt"},     {"C:\\My.Data\\Book", "C:\\My.Data\\Book.tly"},
              {"C:\\Data\\", "C:\\Data\\"}, {"", ""}};
  for (const auto& row : rows) EXPECT_EQ(withDefaultExtension(row.typed, ".tly"), row.full);
  EXPECT_EQ(trimNull(std::string_view("name\0rest", 9)), "name");
  EXPECT_EQ(trimNull("name"), "name");
  EXPECT_TRUE(hasWildcards("C:\\*.tly"));
  EXPECT_TRUE(hasWildcards("C:\\a?.tly"));
  EXPECT_FALSE(hasWildcards("C:\\a.tly"));
}

TEST(PathUtilities, DeletesOneNamedFileOnly) {
  for (const char* path : {"C:\\a.tly", "\\\\server\\share\\a.tly", "z:\\x"})
    EXPECT_TRUE(isSafeToDelete(path)) << path;
  for (const char* path :
       {"", "a.tly", "C:a.tly", "\\a.tly", "C:\\", "C:\\*.tly", "C:\\a?", "..\\a"})
    EXPECT_FALSE(isSafeToDelete(path)) << path;
  EXPECT_FALSE(isSafeToDelete(std::string_view("C:\\a\0C:\\b", 9)));
  EXPECT_EQ(doubleNulList("C:\\a"), std::string("C:\\a\0\0", 6));
}
