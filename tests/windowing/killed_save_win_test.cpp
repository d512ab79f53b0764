// A program killed in the middle of a save. The writer is this test program itself, started
// again: it saves two documents in turn under one name until it is ended. TELLARY_KILLS is the
// number of kills; 50 without it.
#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

#include "document/reader.h"
#include "document/writer.h"
#include "tests/support/failing_files_win.h"
#include "windowing/handles_win.h"
#include "windowing/safe_file_win.h"

namespace windowing {
namespace {

using support::bytesOf;
using support::putFile;
using test_support::ScratchFolder;

constexpr char documentVariable[] = "TELLARY_KILLED_DOCUMENT";
constexpr char mannerVariable[] = "TELLARY_KILLED_MANNER";
constexpr char startedEvent[] = "TellaryKilledSaveStarted";

std::string variable(const char* name) {
  char text[MAX_PATH] = {};
  GetEnvironmentVariableA(name, text, sizeof text);
  return text;
}

// The bytes of a full document; those of two marks differ in every line.
std::string documentOf(char mark) {
  std::string text;
  for (int contact = 0; contact < document::ContactList::maxCount; ++contact) {
    const std::string number = std::to_string(contact);
    for (int line = 0; line < document::fieldCount; ++line)
      text.append("\"").append(1, mark).append(number).append("\"\r\n");
  }
  return text;
}

void saveSafely(const std::string& path, const document::ContactList& list) {
  FileCalls files;
  replaceFile(
      path, [&](const FileSink& sink) { document::write(list, sink); }, files);
}

void saveByTruncating(const std::string& path, const document::ContactList& list) {
  FileCalls files;
  const FileHandle file(files.open(path, GENERIC_WRITE, CREATE_ALWAYS));
  document::write(list, [&](std::string_view piece) {
    DWORD done = 0;
    files.write(file.get(), piece.data(), static_cast<DWORD>(piece.size()), done);
  });
}

// A process that was told a document to write does that before any test could begin, and
// nothing else.
const bool writer = [] {
  const std::string path = variable(documentVariable);
  if (path.empty()) return false;
  const auto save = variable(mannerVariable) == "safely" ? saveSafely : saveByTruncating;
  document::ContactList lists[2];
  document::read(documentOf('a'), lists[0]);
  document::read(documentOf('b'), lists[1]);
  SetEvent(OpenEventA(EVENT_MODIFY_STATE, FALSE, startedEvent));
  for (int turn = 1;; turn = 1 - turn) save(path, lists[turn]);
}();

class KilledSave : public testing::Test {
 protected:
  ~KilledSave() override {
    CloseHandle(started_);
    SetEnvironmentVariableA(documentVariable, nullptr);
  }

  /// Lets a writer save, kills it at a moment of its own, and answers whether the file is a
  /// whole document.
  [[nodiscard]] bool survives(const char* manner) {
    SetEnvironmentVariableA(documentVariable, path_.c_str());
    SetEnvironmentVariableA(mannerVariable, manner);
    putFile(path_, old_);
    char program[MAX_PATH] = {};
    GetModuleFileNameA(nullptr, program, sizeof program);
    STARTUPINFOA start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION child{};
    EXPECT_TRUE(CreateProcessA(program, nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                               &start, &child));
    EXPECT_EQ(WaitForSingleObject(started_, 30000), WAIT_OBJECT_0);
    Sleep(std::uniform_int_distribution<DWORD>(0, 200)(random_));
    EXPECT_TRUE(TerminateProcess(child.hProcess, 9));
    WaitForSingleObject(child.hProcess, 30000);
    CloseHandle(child.hThread);
    CloseHandle(child.hProcess);
    const std::string now = bytesOf(path_);
    if (now == new_) ++renewed_;
    return now == old_ || now == new_;
  }

  ScratchFolder folder_;
  const std::string path_ = folder_ / "Friends.tly";
  const std::string old_ = documentOf('a');
  const std::string new_ = documentOf('b');
  HANDLE started_ = CreateEventA(nullptr, FALSE, FALSE, startedEvent);
  std::mt19937 random_{std::random_device{}()};
  int renewed_ = 0;
};

TEST_F(KilledSave, LeavesAWholeDocumentWhereAWriterThatTruncatesLosesIt) {
  ASSERT_FALSE(writer);
  const std::string wanted = variable("TELLARY_KILLS");
  const long kills = wanted.empty() ? 50 : std::strtol(wanted.c_str(), nullptr, 10);
  for (long i = 0; i < kills; ++i) ASSERT_TRUE(survives("safely")) << "kill " << i + 1;
  EXPECT_GT(renewed_, 0) << "no kill came after a whole save: they prove nothing";
  document::ContactList list;
  document::read(new_, list);
  saveSafely(path_, list);
  EXPECT_TRUE(bytesOf(path_) == new_);
  EXPECT_EQ(folder_.names().size(), 1U) << "the next save clears what the killed left behind";

  int tries = 1;
  while (survives("truncating")) {
    ASSERT_LT(tries++, kills) << "the kills do not hit a writer that is known to lose documents";
  }
}

}  // namespace
}  // namespace windowing
