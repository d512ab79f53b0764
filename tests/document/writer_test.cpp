#include "document/writer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "document/reader.h"

namespace document {
namespace {

std::string written(const ContactList& list) {
  std::string text;
  write(list, [&](std::string_view piece) {
    EXPECT_FALSE(piece.empty());
    text += piece;
  });
  return text;
}

/// The same composed anew from every field.
std::string composed(const ContactList& list) {
  std::string text;
  for (int i = 0; i < list.count(); ++i)
    for (const Slot slot : slotAtFilePosition)
      text.append("\"").append(list.field(i, slot)).append("\"\r\n");
  return text;
}

std::string sample(const std::string& name) {
  const char* const folder = std::getenv("TELLARY_SAMPLES");
  const std::string path = std::string(folder != nullptr ? folder : "samples") + "/" + name;
  std::string text;
  std::FILE* const file = std::fopen(path.c_str(), "rb");
  EXPECT_NE(file, nullptr) << path;
  if (file == nullptr) return text;
  for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file)) text += static_cast<char>(c);
  EXPECT_EQ(std::fclose(file), 0);
  return text;
}

TEST(Writer, BytesOfTheFormat) {
  ContactList list;
  EXPECT_EQ(written(list), "");
  ASSERT_TRUE(list.append());
  std::string empty;
  for (int i = 0; i < 28; ++i) empty += "\"\"\r\n";
  EXPECT_EQ(written(list), empty);

  list.store(0, Slot::Surname, "Smi\"th");      // not doubled
  list.store(0, Slot::Comments, "a\r\nb\nc,");  // not escaped
  list.store(0, Slot::Company, "last");
  list.store(1, Slot::Surname, "the spare element is no contact");
  EXPECT_EQ(written(list), "\"Smi\"th\"\r\n" + empty.substr(0, std::size_t{25} * 4) +
                               "\"a\r\nb\nc,\"\r\n\"last\"\r\n");

  ContactList again;
  ASSERT_EQ(read(written(list), again).result, ReadResult::whole);
  EXPECT_EQ(again.field(0, Slot::Surname), "Smi") << "the format loses what follows the quote";
  EXPECT_EQ(again.field(0, Slot::Comments), "a\r\nb\nc,");
}

TEST(Writer, FieldsStandInTheOrderOfTheFile) {
  ContactList list;
  ASSERT_TRUE(list.append());
  for (const Field& field : fields) list.store(0, field.slot, field.name);
  std::string order = written(list);
  std::erase(order, '"');
  std::erase(order, '\r');
  std::replace(order.begin(), order.end(), '\n', ' ');
  EXPECT_EQ(order,
            "Surname FirstNames DateOfBirth JobTitle MobilePhone Pager "
            "HomeAddress1 HomeAddress2 HomeCity HomeCountry HomePostcode HomePhone HomeFax "
            "HomeEmail HomeWebsite "
            "WorkAddress1 WorkAddress2 WorkCity WorkCountry WorkPostcode WorkPhone WorkFax "
            "WorkEmail WorkWebsite Other1 Other2 Comments Company ");
}

// Contacts that nobody touched go out as they stand in their file, unless they stand there in
// another way than this program writes.
TEST(Writer, WritesEveryContactAnewThatIsNotAsItWouldWriteIt) {
  std::string text;
  const char* const odd[] = {"\"%\"\r\n", "%\r\n",       " \"%\"\r\n",     "\"%\"\n",
                             "\"%\",",    "\"%\" x\r\n", "\"a\r\n%\"\r\n", "\"%\"\r"};
  constexpr int contacts = 40;
  for (int i = 0; i < contacts; ++i)
    for (int line = 0; line < fieldCount; ++line) {
      // Every other contact has one odd line.
      std::string item = odd[i % 2 == 1 && line == i % fieldCount ? i / 2 % 8 : 0];
      item.replace(item.find('%'), 1, std::to_string(100 * i + line));
      text += item;
    }
  ContactList list;
  ASSERT_EQ(read(text, list).result, ReadResult::whole);
  ASSERT_EQ(list.count(), contacts);
  list.remove(21);
  list.remove(6);
  list.store(10, Slot::Comments, "changed");
  ASSERT_TRUE(list.append());
  EXPECT_EQ(written(list), composed(list));

  std::size_t pieces = 0;
  const std::string whole = sample("thousand.tly");
  read(whole, list);
  write(list, [&](std::string_view) { ++pieces; });
  EXPECT_EQ(pieces, 1U) << "an untouched file goes out in one";
}

TEST(Writer, LargeTextsAndListsComeInPieces) {
  ContactList list;
  const std::string large(3 * writeChunk, 'x');
  for (int i = 0; i < 3000; ++i) {
    ASSERT_TRUE(list.append());
    for (const Field& field : fields) list.store(i, field.slot, std::to_string(i) + "text");
  }
  list.store(1500, Slot::Comments, large);
  std::size_t pieces = 0;
  std::size_t longest = 0;
  write(list, [&](std::string_view piece) {
    ++pieces;
    if (piece != large) longest = std::max(longest, piece.size());
  });
  EXPECT_GE(pieces, 5U);
  EXPECT_LT(longest, 2 * writeChunk);
  EXPECT_TRUE(written(list) == composed(list));
}

}  // namespace
}  // namespace document
