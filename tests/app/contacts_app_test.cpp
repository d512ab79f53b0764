// The main job: walking through contacts, editing, adding, removing, saving.
#include "tests/app/support/fixture_win.h"

namespace {

using drive::bytesOf;
using drive::Contact;
using drive::fullContacts;
using drive::nameOf;
using drive::place;
using drive::Program;
using testing::ElementsAre;
namespace id = library::id;

class Contacts : public drive::AppTest {
 protected:
  /// Expects contact `index` (from 0) of `contacts` on screen, and all parts in step.
  void expectOn(const std::vector<Contact>& contacts, std::size_t index) {
    SCOPED_TRACE("contact " + std::to_string(index + 1));
    std::vector<std::string> names;
    for (const Contact& contact : contacts) names.push_back(nameOf(contact));
    EXPECT_EQ(program().names(), names);
    EXPECT_EQ(program().chosenName(), static_cast<int>(index));
    EXPECT_EQ(program().status(),
              place(static_cast<int>(index) + 1, static_cast<int>(contacts.size())));
    expectShown(contacts[index]);
  }
};

TEST_F(Contacts, MovingShowsEveryContactAndNeverModifies) {
  const std::vector<Contact> contacts = fullContacts(4);
  const Program& program = startOn(contacts);
  const std::string bytes = bytesOf(contacts);
  const struct {
    int command;
    std::size_t shown;
  } steps[] = {{id::NEXT, 1}, {id::NEXT, 2},     {id::PREVIOUS, 1}, {id::LAST, 3},
               {id::NEXT, 3}, {id::PREVIOUS, 2}, {id::FIRST, 0},    {id::PREVIOUS, 0}};
  expectOn(contacts, 0);
  for (const auto& step : steps) {
    program.command(step.command);
    expectOn(contacts, step.shown);
    EXPECT_FALSE(program.modified());
  }
  for (const int chosen : {2, 0, 3, 3}) {
    program.chooseName(chosen);
    expectOn(contacts, static_cast<std::size_t>(chosen));
    EXPECT_FALSE(program.modified());
  }
  close();
  EXPECT_EQ(read(path("list.tly")), bytes);
}

TEST_F(Contacts, EditsFollowTheUserAndReachTheFile) {
  std::vector<Contact> contacts = fullContacts(3);
  const Program& program = startOn(contacts);
  const std::string file = path("list.tly");
  program.command(id::NEXT);
  program.enter(id::textItem(0), "O'Hara");
  contacts[1][drive::surname] = "O'Hara";
  EXPECT_TRUE(program.modified());
  expectOn(contacts, 1);
  // Leaving keeps the edits and the mark.
  program.command(id::NEXT);
  expectOn(contacts, 2);
  EXPECT_TRUE(program.modified());

  program.enter(id::textItem(22), "one\r\ntwo, \xE9t\xE9\r\n\r\nfour");
  contacts[2][drive::comments] = "one\r\ntwo, \xE9t\xE9\r\n\r\nfour";
  program.enter(id::textItem(23), "Fj\xE4ll & S\xF6hne");
  contacts[2][drive::company] = "Fj\xE4ll & S\xF6hne";
  program.enter(id::CBOPEMAIL, "a@b.example");
  contacts[2][drive::homeEmail] = "a@b.example";
  program.enter(id::textItem(1), "");
  contacts[2][drive::firstNames] = "";
  program.chooseName(1);
  expectOn(contacts, 1);
  EXPECT_EQ(read(file), bytesOf(fullContacts(3))) << "written before Save";

  program.chooseName(2);
  program.command(id::SAVE);
  EXPECT_FALSE(program.hasDialog());
  EXPECT_FALSE(program.modified());
  EXPECT_EQ(read(file), bytesOf(contacts));
  // Edits on screen are saved without leaving the contact, and saving again changes nothing.
  program.enter(id::textItem(20), "other");
  contacts[2][drive::other1] = "other";
  for (int i = 0; i < 2; ++i) {
    program.command(id::SAVE);
    EXPECT_EQ(read(file), bytesOf(contacts));
  }
  start(file);
  expectOn(contacts, 0);
  this->program().command(id::LAST);
  expectOn(contacts, 2);
}

TEST_F(Contacts, EveryBoxCountsAsAnEdit) {
  const Program& program = startOn(fullContacts(1));
  for (const int box : drive::boxOf) {
    program.enter(box, "x");
    EXPECT_TRUE(program.modified()) << "box " << box;
    program.command(id::SAVE);
    EXPECT_FALSE(program.modified());
  }
  Contact all;
  all.fill("x");
  // The two web addresses get their scheme when the user leaves them, which nobody did.
  EXPECT_EQ(read(path("list.tly")), bytesOf({all}));
}

TEST_F(Contacts, AddPutsAnEmptyContactAtTheEnd) {
  std::vector<Contact> contacts = fullContacts(2);
  const Program& program = startOn(contacts);
  program.enter(id::textItem(5), "edited");
  contacts[0][5] = "edited";
  program.command(id::ADD);
  contacts.emplace_back();
  expectOn(contacts, 2);
  EXPECT_TRUE(program.modified());
  program.enter(id::textItem(1), "Ann");
  contacts[2][drive::firstNames] = "Ann";
  program.command(id::SAVE);
  EXPECT_EQ(read(path("list.tly")), bytesOf(contacts));
  program.command(id::FIRST);
  expectOn(contacts, 0);
}

TEST_F(Contacts, RemoveShowsTheFollowerOrTheNewLastContact) {
  std::vector<Contact> contacts = fullContacts(4);
  const Program& program = startOn(contacts);
  program.command(id::NEXT);
  for (const auto& [removed, shown] : {std::pair{1, 1}, {1, 1}, {1, 0}}) {
    program.command(id::REMOVE);
    EXPECT_FALSE(program.hasDialog()) << "Remove asks nothing";
    contacts.erase(contacts.begin() + removed);
    EXPECT_TRUE(program.modified());
    expectOn(contacts, static_cast<std::size_t>(shown));
  }
  program.command(id::SAVE);
  EXPECT_EQ(read(path("list.tly")), bytesOf(contacts));

  program.command(id::REMOVE);
  EXPECT_EQ(program.status(), "");
  EXPECT_THAT(program.names(), ElementsAre());
  EXPECT_TRUE(program.modified());
  expectShown(Contact{});
  for (const int box : drive::boxOf) EXPECT_FALSE(program.enabled(box)) << "box " << box;
  program.command(id::SAVE);
  EXPECT_EQ(read(path("list.tly")), "");
  program.command(id::REMOVE);
  EXPECT_FALSE(program.modified()) << "nothing was there to remove";

  program.command(id::ADD);
  expectOn({Contact{}}, 0);
  EXPECT_TRUE(program.enabled(id::textItem(0)));
}

TEST_F(Contacts, TheFullestDocumentLoadsShowsStepsAndSaves) {
  constexpr int most = 32767;
  std::vector<Contact> contacts = fullContacts(most);
  contacts[most - 1][drive::comments] = "the\r\nend";
  const Program& program = startOn(contacts);
  const std::string bytes = bytesOf(contacts);
  const HWND names = program.control(id::CBOTBARBOX);
  EXPECT_EQ(program.status(), place(1, most));
  EXPECT_EQ(program.send(names, CB_GETCOUNT), most);
  EXPECT_FALSE(program.modified());
  const struct {
    int command;
    std::size_t shown;
  } steps[] = {{id::NEXT, 1}, {id::LAST, most - 1}, {id::PREVIOUS, most - 2}};
  for (const auto& step : steps) {
    program.command(step.command);
    EXPECT_EQ(program.status(), place(static_cast<int>(step.shown) + 1, most));
    expectShown(contacts[step.shown]);
  }
  program.chooseName(20000);
  expectShown(contacts[20000]);
  EXPECT_EQ(program.status(), place(20001, most));

  // Full: adding changes nothing and says so.
  PostMessageA(program.window(), WM_COMMAND, id::ADD, 0);
  EXPECT_TRUE(program.answer(IDOK).starts_with("Tellary|"));
  EXPECT_EQ(program.send(names, CB_GETCOUNT), most);
  EXPECT_EQ(program.status(), place(20001, most));
  EXPECT_FALSE(program.modified());

  program.enter(id::textItem(0), "changed");
  contacts[20000][drive::surname] = "changed";
  program.command(id::SAVE);
  EXPECT_TRUE(read(path("list.tly")) == bytesOf(contacts));
  EXPECT_FALSE(program.modified());
}

}  // namespace
