#include "library/path_utilities.h"

#include <gtest/gtest.h>

#include "values/runtime_error.h"

using namespace library;

namespace {
// Lead bytes of the Japanese code page, where 0x5C is also the second byte of characters.
bool japanese(unsigned char c) {
  return (c >= 0x81 && c <= 0x9F) || (c >= 0xE0 && c <= 0xFC);
}
}  // namespace

TEST(PathUtilities, Folders) {
  const struct {
    const char *path, *folder, *withBackslash;
  } rows[] = {{"C:\\Data\\Book.tly", "C:\\Data", "C:\\Data\\"},
              {"C:\\Book.tly", "C:", "C:\\"},
              {"C:/Book.tly", "", ""},
              {"\\x", "", "\\"},
              {"", "", ""}};
  for (const auto& row : rows) {
    EXPECT_EQ(folderPath(row.path), row.folder) << row.path;
    EXPECT_EQ(folderWithBackslash(row.path), row.withBackslash) << row.path;
  }
  EXPECT_EQ(folderPath("C:\\\x95\x5C.tly", japanese), "C:");
  EXPECT_EQ(composePath("C:\\\x95\x5C", "a", japanese), "C:\\\x95\x5C\\a");
  EXPECT_EQ(lastBackslash("\x95", japanese), std::string::npos);
  // The counter has sixteen bits.
  EXPECT_EQ(folderPath("abc\\" + std::string(32766, 'x')), "abc");
  EXPECT_THROW((void)folderPath("abc\\" + std::string(32767, 'x')), values::RuntimeError);
}

TEST(PathUtilities, BackslashesAndExtensionsWhereTheyAreDue) {
  using Pair = std::pair<const char*, const char*>;
  for (const auto& [path, checked] : {Pair{"", ""},
                                      {"C:", "C:"},
                                      {"abc", "abc"},
                                      {"abcd", "abcd\\"},
                                      {"C:\\Data\\", "C:\\Data\\"}})
    EXPECT_EQ(fileNameLengthCheck(path), checked);
  EXPECT_EQ(composePath("C:\\", "\\a.tly"), "C:\\a.tly");
  EXPECT_EQ(composePath("C:", "a.tly"), "C:\\a.tly");
  EXPECT_EQ(composePath("", "a.tly"), "a.tly");
  for (const auto& [folder, root] : {Pair{"C:", "C:\\"}, {"C:\\", "C:\\"}, {"1:", "1:"}})
    EXPECT_EQ(bareDriveToRoot(folder), root);
  for (const auto& [typed, full] : {Pair{"Book", "Book.tly"},
                                    {"Book.txt", "Book.txt"},
                                    {"C:\\My.Data\\Book", "C:\\My.Data\\Book.tly"},
                                    {"C:\\Data\\", "C:\\Data\\"},
                                    {"", ""}})
    EXPECT_EQ(withDefaultExtension(typed, ".tly"), full);
}

TEST(PathUtilities, DeletesOneNamedFileOnly) {
  for (const char* path : {"C:\\a.tly", "\\\\server\\share\\a.tly"})
    EXPECT_TRUE(isSafeToDelete(path)) << path;
  for (const char* path :
       {"", "a.tly", "C:a.tly", "\\a.tly", "C:\\", "C:\\*.tly", "C:\\a?", "..\\a"})
    EXPECT_FALSE(isSafeToDelete(path)) << path;
  EXPECT_FALSE(isSafeToDelete(std::string_view("C:\\a\0C:\\b", 9)));
}
