#include "document/ContactList.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "document/reader.h"

namespace document {
namespace {

/// Loads contacts with the given surnames from a file's bytes, so that none of them is changed.
void load(ContactList& list, const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += "\"" + name + "\"" + std::string(28, '\n');
  ASSERT_EQ(read(text, list).contacts, static_cast<int>(names.size()));
}

/// The surnames, the spare element's in brackets.
std::string surnames(const ContactList& list) {
  std::string all;
  for (int i = 0; i < list.count(); ++i) all += std::string(list.field(i, Slot::Surname)) + " ";
  return all + "[" + std::string(list.field(list.count(), Slot::Surname)) + "]";
}

TEST(ContactList, IndexesOutsideReadEmptyAndStoreNothing) {
  ContactList list;
  list.ClearLastRecord();
  list.remove(0);
  EXPECT_EQ(list.count(), 0);
  load(list, {"a", "b"});
  for (const int index : {-32768, -1, 3, 32767}) {
    list.store(index, Slot::Surname, "x");
    EXPECT_EQ(list.field(index, Slot::Surname), "");
    EXPECT_EQ(list.record(index), ContactRecord{});
    list.remove(index);
  }
  list.remove(2);  // the spare element is no contact
  EXPECT_EQ(surnames(list), "a b []");
}

TEST(ContactList, RemoveKeepsTheOthersAndEmptiesTheSpareElement) {
  const struct {
    std::vector<std::string> names;
    int current, index;
    const char* left;
    int currentAfter;
  } cases[] = {{{"a", "b", "c"}, 1, 1, "a c []", 1},
               {{"a", "b", "c"}, 2, 2, "a b []", 2},
               {{"a", "b"}, 1, 1, "a []", 0},
               {{"a"}, 0, 0, "[]", 0}};
  for (const auto& c : cases)
    for (const bool changed : {false, true}) {
      SCOPED_TRACE(c.left);
      ContactList list;
      load(list, c.names);
      for (int i = 0; changed && i < list.count(); ++i) list.store(i, Slot::Company, "changed");
      list.setCurrent(static_cast<std::int16_t>(c.current));
      list.store(list.count(), Slot::Surname, "spare");
      list.remove(c.index);
      EXPECT_EQ(surnames(list), c.left);
      EXPECT_EQ(list.current(), c.currentAfter);
    }
}

TEST(ContactList, StepsCheckNoBounds) {
  ContactList list;
  load(list, {"a", "b", "c"});
  list.GoLast();
  list.GoNext();
  list.GoNext();
  EXPECT_EQ(list.current(), 4);
  list.GoFirst();
  list.GoPrevious();
  EXPECT_EQ(list.current(), -1);
  list.setCurrent(32767);
  EXPECT_FALSE(list.GoNext());
  list.setCurrent(-32768);
  EXPECT_FALSE(list.GoPrevious());
}

TEST(ContactList, StoreChangesOneTextOfOneContact) {
  ContactList list;
  load(list, {"a", "b"});
  const char* const inFile = list.field(0, Slot::Surname).data();
  list.store(0, Slot::Surname, std::string("a"));
  EXPECT_EQ(list.field(0, Slot::Surname).data(), inFile) << "an equal text is not copied";

  const std::string odd("NUL \0 quote \" break \r\n end", 26);
  list.store(0, Slot::Comments, odd);
  EXPECT_EQ(list.field(0, Slot::Comments), odd);
  EXPECT_EQ(surnames(list), "a b []");
  EXPECT_EQ(list.field(1, Slot::Comments), "");
  // A text may come from the very contact it goes to.
  list.store(0, Slot::Comments, list.field(0, Slot::Comments).substr(4));
  EXPECT_EQ(list.field(0, Slot::Comments), odd.substr(4));
  list.store(1, Slot::Company, list.field(1, Slot::Surname));
  EXPECT_EQ(list.record(1)[Slot::Company], "b");

  EXPECT_EQ(list.nameEntry(1), " b");
  list.store(1, Slot::FirstNames, " A ");
  EXPECT_EQ(list.nameEntry(1), " A  b") << "nothing is trimmed";
}

TEST(ContactList, FullListTakesNoMore) {
  ContactList list;
  for (int i = 0; i < 32800 && list.append(); ++i)
    list.store(i, Slot::Surname, std::to_string(i + 1));
  ASSERT_EQ(list.count(), 32767);
  EXPECT_FALSE(list.append());
  EXPECT_EQ(list.field(32766, Slot::Surname), "32767");
  EXPECT_EQ(list.field(32767, Slot::Surname), "");

  // Removing costs next to nothing, or this would last for minutes.
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < 10000; ++i) list.remove(100);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
  EXPECT_EQ(list.field(99, Slot::Surname), "100");
  EXPECT_EQ(list.field(100, Slot::Surname), "10101");
  EXPECT_TRUE(list.append());
}

}  // namespace
}  // namespace document
