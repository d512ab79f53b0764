// The contact on screen: adding, removing, stepping and editing on the real window.
#include <gtest/gtest.h>

#include "library/identifiers.h"
#include "tests/support/main_window_win.h"

namespace {

namespace id = library::id;
using test_support::MainWindowTest;
using test_support::Names;

class Contacts : public MainWindowTest {};

TEST_F(Contacts, StartsOnANewDocumentWithOneEmptyContact) {
  EXPECT_EQ(form.contacts().count(), 1);
  EXPECT_EQ(text(id::LBLDESC), "Tellary - (Untitled)");
  EXPECT_EQ(status(), "1 of 1 contacts.");
  EXPECT_FALSE(form.modified());
  EXPECT_EQ(names(), (Names{" "}));
}

TEST_F(Contacts, AnAddedContactComesLastAndTheOneOnScreenKeepsItsEdits) {
  open(contactsFile({"Ash", "Birch", "Cedar"}));
  type(id::textItem(1), "Ann");
  run(id::ADD);
  EXPECT_EQ(form.contacts().count(), 4);
  EXPECT_EQ(form.contacts().current(), 3);
  EXPECT_EQ(text(id::textItem(1)), "");
  EXPECT_EQ(names(), (Names{"Ann Ash", " Birch", " Cedar", " "}));
  EXPECT_EQ(status(), "4 of 4 contacts.");
  EXPECT_TRUE(form.modified());
  run(id::FIRST);
  EXPECT_EQ(text(id::textItem(1)), "Ann");
}

struct Removal {
  const char* name;
  int at;
  const char* shown;
  int current;
};

TEST_F(Contacts, RemovingShowsTheNeighbourAndAsksNothing) {
  const Removal removals[] = {
      {"first", 0, "Birch", 0}, {"middle", 1, "Cedar", 1}, {"last", 2, "Birch", 1}};
  for (const Removal& removal : removals) {
    SCOPED_TRACE(removal.name);
    open(contactsFile({"Ash", "Birch", "Cedar"}));
    choose(removal.at);
    run(id::REMOVE);
    EXPECT_EQ(text(id::textItem(0)), removal.shown);
    EXPECT_EQ(form.contacts().current(), removal.current);
    EXPECT_EQ(names().size(), 2U);
    EXPECT_EQ(selectedName(), removal.current);
    EXPECT_TRUE(form.modified());
  }
  EXPECT_TRUE(boxes.empty());
}

TEST_F(Contacts, RemovingTheOnlyContactLeavesAGreyFormThatAddBringsBack) {
  open(contactsFile({"Ash"}));
  run(id::REMOVE);
  EXPECT_EQ(form.contacts().count(), 0);
  EXPECT_EQ(form.contacts().current(), 0);
  EXPECT_TRUE(names().empty());
  EXPECT_EQ(status(), "");
  for (const int box : {id::textItem(0), id::textItem(22), id::CBOPEMAIL, id::CBOPWORKWEBSITE}) {
    EXPECT_EQ(text(box), "");
    EXPECT_FALSE(form.control(box).enabled()) << box;
  }
  EXPECT_FALSE(enabled(id::PRINT));
  EXPECT_FALSE(form.control(id::CBOTBARBOX).enabled());
  run(id::REMOVE);
  EXPECT_EQ(form.contacts().count(), 0);

  run(id::ADD);
  EXPECT_EQ(form.contacts().count(), 1);
  EXPECT_EQ(form.contacts().current(), 0);
  EXPECT_EQ(names(), (Names{" "}));
  EXPECT_TRUE(form.control(id::textItem(0)).enabled());
}

TEST_F(Contacts, AddingToAnEmptyListTakesNothingFromTheDocumentBefore) {
  open(contactsFile({"Ash"}));
  open(scratch.file("empty.tly"));
  EXPECT_EQ(text(id::textItem(0)), "");
  run(id::ADD);
  EXPECT_EQ(text(id::textItem(0)), "");
  EXPECT_EQ(form.contacts().nameEntry(0), " ");
}

TEST_F(Contacts, SteppingNeverModifiesAndNeverForgetsAModification) {
  open(contactsFile({"Ash", "Birch", "Cedar"}));
  for (const int step : {id::NEXT, id::LAST, id::PREVIOUS, id::FIRST}) {
    run(step);
    EXPECT_FALSE(form.modified()) << step;
  }
  run(id::NEXT);
  type(id::textItem(0), "Beech");
  EXPECT_EQ(names()[1], " Beech");
  EXPECT_EQ(selectedName(), 1);
  run(id::NEXT);
  EXPECT_TRUE(form.modified());
  choose(1);
  EXPECT_EQ(text(id::textItem(0)), "Beech");
  EXPECT_EQ(status(), "2 of 3 contacts.");
  EXPECT_TRUE(form.modified());
}

TEST_F(Contacts, ARecordChangesOnlyWhenItIsLeft) {
  open(contactsFile({"Ash", "Birch"}));
  type(id::textItem(0), "Alder");
  EXPECT_EQ(form.contacts().nameEntry(0), " Ash");
  run(id::NEXT);
  EXPECT_EQ(form.contacts().nameEntry(0), " Alder");
}

TEST_F(Contacts, CommandsFollowThePosition) {
  struct State {
    std::vector<std::string> surnames;
    int at;
    bool first, next, remove;
  };
  const State states[] = {{{}, -1, false, false, false},
                          {{"A"}, 0, false, false, true},
                          {{"A", "B"}, 0, false, true, true},
                          {{"A", "B"}, 1, true, false, true},
                          {{"A", "B", "C"}, 1, true, true, true}};
  for (const State& state : states) {
    open(contactsFile(state.surnames));
    if (state.at > 0) choose(state.at);
    EXPECT_EQ(enabled(id::FIRST), state.first);
    EXPECT_EQ(enabled(id::PREVIOUS), state.first);
    EXPECT_EQ(enabled(id::NEXT), state.next);
    EXPECT_EQ(enabled(id::LAST), state.next);
    EXPECT_EQ(enabled(id::REMOVE), state.remove);
    EXPECT_EQ(enabled(id::PRINT), state.remove);
    EXPECT_TRUE(enabled(id::SAVEAS));
    for (const int step : {id::FIRST, id::PREVIOUS, id::NEXT, id::LAST}) run(step);
    EXPECT_GE(form.contacts().current(), 0);
  }
}

// A visit without edits leaves every byte: what no box can carry, too.
TEST_F(Contacts, BytesThatABoxCannotCarrySurviveAVisit) {
  std::vector<std::string> fields(28);
  fields[0] = std::string("nul\0inside", 10);
  fields[1] = "line\nbreak";
  fields[6] = "bare\rreturn";
  fields[26] = "first\r\nsecond\r\n\r\nlast";
  fields[27] = std::string(100'000, 'x') + "\x81\x8d\x9d";
  const std::string bytes = fileOf({fields, std::vector<std::string>(28, "plain")});
  const std::string path = scratch.file("odd.tly", bytes);
  open(path);
  for (const int step : {id::NEXT, id::FIRST, id::LAST, id::FIRST}) run(step);
  form.FILESAVEAS(path);
  EXPECT_EQ(contentOf(path), bytes);
}

TEST_F(Contacts, AFullListRefusesAnotherContactAndSaysSo) {
  open(scratch.file("full.tly", fileOfContacts(32'767)));
  EXPECT_EQ(form.contacts().count(), 32'767);
  run(id::ADD);
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].title, "Tellary");
  EXPECT_EQ(form.contacts().count(), 32'767);
  EXPECT_EQ(form.contacts().current(), 0);
  EXPECT_FALSE(form.modified());
  run(id::LAST);
  EXPECT_EQ(status(), "32767 of 32767 contacts.");
}

TEST_F(Contacts, AWebAddressGetsItsSchemeWhenTheBoxIsLeft) {
  open(contactsFile({"Ash"}));
  struct Address {
    const char* typed;
    const char* left;
    bool modified;
  };
  const Address addresses[] = {{"www.x.example", "http://www.x.example", true},
                               {"https://x.example", "https://x.example", false},
                               {"HTTP://X", "HTTP://X", false},
                               {"", "", false}};
  for (const Address& address : addresses) {
    type(id::CBOPWEBSITE, address.typed);
    form.SETSAVE("False");
    notice(id::CBOPWEBSITE, 0x0801);
    EXPECT_EQ(text(id::CBOPWEBSITE), address.left);
    EXPECT_EQ(form.modified(), address.modified) << address.typed;
  }
  type(id::CBOPEMAIL, "ann");
  notice(id::CBOPEMAIL, 0x0801);
  EXPECT_EQ(text(id::CBOPEMAIL), "ann");
}

TEST_F(Contacts, LinkButtonsHandOverTheTextOnScreen) {
  open(contactsFile({"Ash"}));
  type(id::CBOPWORKEMAIL, "ann@example.com");
  notice(id::CBOPWORKEMAIL, 0x0800);
  type(id::CBOPWORKWEBSITE, "x.example/a b");
  notice(id::CBOPWORKWEBSITE, 0x0800);
  notice(id::CBOPEMAIL, 0x0800);
  run(id::WEBSITE);
  EXPECT_EQ(opened, (Names{"mailto:ann@example.com", "http://x.example/a b",
                           "http://www.zandor.example/"}));
}

}  // namespace
