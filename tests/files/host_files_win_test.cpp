// Saves to files of the host that has Wine: tools/host_files.sh makes them, and looks at what
// has become of their permissions and links.
#include <gtest/gtest.h>

#include <cstdlib>

#include "files/safe_file_win.h"

namespace files {
namespace {

TEST(HostFiles, AreSaved) {
  // Paths with a semicolon behind each.
  const char* names = std::getenv("TELLARY_HOST_FILES");
  if (names == nullptr) GTEST_SKIP() << "run by tools/host_files.sh";
  const std::string list = names;
  std::size_t from = 0;
  for (std::size_t end = 0; (end = list.find(';', from)) != std::string::npos; from = end + 1) {
    FileCalls files;
    replaceFile(
        list.substr(from, end - from), [](const FileSink& sink) { sink("saved\n"); }, files);
  }
  EXPECT_GT(from, 0U);
}

TEST(HostFiles, TakeAccessRightsOver) {
  const char* from = std::getenv("TELLARY_HOST_FROM");
  const char* to = std::getenv("TELLARY_HOST_TO");
  if (from == nullptr || to == nullptr) GTEST_SKIP() << "run by tools/host_files.sh";
  EXPECT_TRUE(FileCalls().copySecurity(from, to));
}

}  // namespace
}  // namespace files
