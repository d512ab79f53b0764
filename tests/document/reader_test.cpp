#include "document/reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "document/items.h"

namespace document {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

/// A record as the writer makes it; each text names its file position, with a line break inside.
std::string lines(int count, std::string_view prefix = "") {
  std::string text;
  for (int i = 1; i <= count; ++i)
    text.append("\"").append(prefix).append(std::to_string(i)).append("\r\n, x\"\r\n");
  return text;
}

TEST(Reader, Items) {
  struct Case {
    std::string_view bytes;
    std::vector<std::string_view> items;
  };
  const std::vector<Case> cases{
      {"", {}},
      {"\"\"", {""}},
      {"\"a\"\r\n\"b\"\r\n", {"a", "b"}},
      {"\"a\"\n\"b\"\r\"c\"\n\r\"d\"", {"a", "b", "c", "", "d"}},  // each end counts once
      {"\r\r\n\n", {"", "", ""}},
      {"  \" kept \"  ", {" kept "}},
      {"\t\"tab is text\"", {"\t\"tab is text\""}},
      {"\"two\r\nlines\r\n\"\r\n", {"two\r\nlines\r\n"}},
      {"\"Smi\"th\"\r\n\"next\"", {"Smi", "next"}},
      {"\"a\"rest, b\r\nc", {"a", "b", "c"}},
      {"\"a,b\",\"c\"", {"a,b", "c"}},
      {"plain \"text\"  \r\nx", {"plain \"text\"  ", "x"}},
      {"a,,b,", {"a", "", "b"}},
      {",\r\n,", {"", "", ""}},
      {"   ", {""}},
      {"  \r\n  x", {"", "x"}},
      {"\"never closed\r\n\"", {"never closed\r\n"}},
      {"\"open\r\n1,2", {"open\r\n1,2"}},
      {"\"", {""}},
      {"\"\"\"\"\r\nx", {"", "x"}},
      {"a\0b\x1A"
       "c\r\n\"\0\"\0\r\nz"sv,
       {"a\0b\x1A"
        "c"sv,
        "\0"sv, "z"}},
      {"\xE9\xFF\x80", {"\xE9\xFF\x80"}},
  };
  for (const Case& c : cases) {
    ItemScanner scanner(c.bytes);
    std::vector<std::string_view> items;
    for (std::string_view item; scanner.next(item);) items.push_back(item);
    EXPECT_EQ(items, c.items) << testing::PrintToString(c.bytes);
    EXPECT_TRUE(scanner.atEnd());
  }
}

TEST(Reader, ReplacesTheList) {
  ContactList list;
  ASSERT_EQ(read(lines(28 * 3), list).contacts, 3);
  list.setCurrent(2);
  list.store(2, Slot::Company, "changed");
  EXPECT_EQ(read(""sv, list).result, ReadResult::whole);
  EXPECT_EQ(list.count(), 0);
  EXPECT_EQ(list.current(), 0);
  EXPECT_EQ(list.record(0), ContactRecord{});
  // From its own bytes, too.
  ASSERT_EQ(read(lines(28), list).contacts, 1);
  EXPECT_EQ(read(list.field(0, Slot::Surname), list).result, ReadResult::inputPastEnd);
  EXPECT_EQ(list.count(), 0);
}

TEST(Reader, CutAtEveryByte) {
  const std::string first = lines(28, "first ");
  const std::string both = first + lines(28, "second ");
  // A record is complete from its last item's first byte on; its quote need not be closed.
  const std::size_t firstDone = first.size() - "\"first 28\r\n, x\"\r\n"sv.size();
  const std::size_t secondDone = both.size() - "\"second 28\r\n, x\"\r\n"sv.size();
  for (std::size_t size = 0; size <= both.size(); ++size) {
    // In storage of exactly that size, for the sanitizer to see one byte too many.
    ContactList list;
    const ReadOutcome outcome = read(Bytes(std::string_view(both).substr(0, size)), list);
    const int complete = size > secondDone ? 2 : size > firstDone ? 1 : 0;
    ASSERT_EQ(outcome.contacts, complete) << size;
    // The line feed of a record's last line end is not needed, but belongs to it.
    const bool atBoundary = size == 0 || complete == 2 || (complete == 1 && size <= first.size());
    ASSERT_EQ(outcome.result, atBoundary ? ReadResult::whole : ReadResult::inputPastEnd) << size;
    ASSERT_EQ(list.field(0, Slot::Surname), complete > 0 ? "first 1\r\n, x" : "");
    ASSERT_EQ(list.record(complete), ContactRecord{}) << "nothing of the broken one is left";
  }
}

TEST(Reader, StopsAtTheFullList) {
  const struct {
    int records;
    const char* tail;
    ReadResult result;
  } cases[] = {{32767, "", ReadResult::whole},
               {32767, "\"\"\r\n", ReadResult::inputPastEnd},
               {32768, "", ReadResult::overflow}};
  for (const auto& c : cases) {
    ContactList list;
    const ReadOutcome outcome = read(lines(28 * c.records) + c.tail, list);
    EXPECT_EQ(outcome.result, c.result);
    EXPECT_EQ(outcome.contacts, 32767);
    EXPECT_EQ(list.record(32767), ContactRecord{});
  }
}

TEST(Reader, HugeFilesOfOneByte) {
  for (const char byte : {'x', ' ', '"', '\0', ',', '\r'}) {
    const bool endsItems = byte == ',' || byte == '\r';
    Bytes bytes(std::size_t{200} << 20);
    std::fill_n(bytes.data(), bytes.view().size(), byte);
    ContactList list;
    const ReadOutcome outcome = read(std::move(bytes), list);
    EXPECT_EQ(outcome.result, endsItems ? ReadResult::overflow : ReadResult::inputPastEnd);
    EXPECT_EQ(outcome.contacts, endsItems ? 32767 : 0) << int{byte};
  }
}

}  // namespace
}  // namespace document
