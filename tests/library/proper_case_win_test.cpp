#include "library/proper_case_win.h"

#include <gtest/gtest.h>

#include "tests/support/scratch_folder_win.h"

namespace library {
namespace {

TEST(ProperCase, NamesComeFromTheDiskAndTheRestStays) {
  const test_support::ScratchFolder scratch;
  scratch.folder("My Papers");
  scratch.file("My Papers\\Anna.tly");
  SetCurrentDirectoryA(scratch.path().c_str());
  const std::string root = scratch.path().substr(2);
  std::string slashes = root;
  for (char& c : slashes)
    if (c == '\\') c = '/';
  const std::pair<std::string, std::string> rows[] = {
      {"c:" + root + "\\MY PAPERS\\ANNA.TLY", "c:" + root + "\\My Papers\\Anna.tly"},
      {"c:" + slashes + "/MY PAPERS\\ANNA.TLY", "c:" + slashes + "/My Papers\\Anna.tly"},
      {root + "/MY PAPERS/", root + "/My Papers/"},
      {"C:my papers\\anna.tly", "C:My Papers\\Anna.tly"},
      {"my papers/..//my papers", "My Papers/..//My Papers"},
      {"C:", "C:"},
      {"c:/", "c:/"},
      {"//server/share/A", "//server/share/A"},
      {"C:Nobody\\A?", "C:Nobody\\A?"},
      {"", ""}};
  for (const auto& [path, expected] : rows) EXPECT_EQ(PROPERCASEPATH(path), expected) << path;
  SetCurrentDirectoryA("C:\\");
}

}  // namespace
}  // namespace library
