// The main job: walking through contacts, editing, adding, removing, saving.
#include <algorithm>

#include "tests/app/support/fixture_win.h"

namespace {

using drive::bytesOf;
using drive::Contact;
using drive::fullContacts;
using drive::place;
using drive::Program;
namespace id = mainwindow::id;

class Contacts : public drive::AppTest {
 protected:
  /// Expects contact `index` (from 0) of `contacts` on screen, and all parts in step.
  void expectOn(const std::vector<Contact>& contacts, std::size_t index) {
    SCOPED_TRACE("contact " + std::to_string(index + 1));
    std::vector<std::string> names(contacts.size());
    std::transform(contacts.begin(), contacts.end(), names.begin(), [](const Contact& contact) {
      return contact[drive::firstNames] + " " + contact[drive::surname];
    });
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
  const std::pair<int, std::size_t> steps[] = {{id::NEXT, 1},  {id::NEXT, 2},    {id::PREVIOUS, 1},
                                               {id::LAST, 3},  {id::NEXT, 3},    {id::PREVIOUS, 2},
                                               {id::FIRST, 0}, {id::PREVIOUS, 0}};
  expectOn(contacts, 0);
  for (const auto& [command, shown] : steps) {
    program.command(command);
    expectOn(contacts, shown);
  }
  for (const int chosen : {2, 0, 3, 3}) {
    program.chooseName(chosen);
    expectOn(contacts, static_cast<std::size_t>(chosen));
  }
  EXPECT_FALSE(program.modified());
  close();
  EXPECT_EQ(read(path("list.tly")), bytesOf(contacts));
}

TEST_F(Contacts, EditsFollowTheUserAndReachTheFile) {
  std::vector<Contact> contacts = fullContacts(3);
  const Program& program = startOn(contacts);
  program.lookAtAllPages();
  const std::string file = path("list.tly");
  const auto edit = [&](std::size_t contact, std::size_t field, const std::string& text) {
    program.enter(drive::boxOf[field], text);
    contacts[contact][field] = text;
    EXPECT_TRUE(program.modified());
  };
  program.command(id::NEXT);
  edit(1, drive::surname, "O'Hara");
  expectOn(contacts, 1);
  program.command(id::NEXT);
  expectOn(contacts, 2);
  edit(2, drive::comments, "one\r\ntwo, \xE9t\xE9\r\n\r\nfour");
  edit(2, drive::company, "Fj\xE4ll & S\xF6hne");
  edit(2, drive::firstNames, "");
  program.chooseName(1);
  expectOn(contacts, 1);
  EXPECT_EQ(read(file), bytesOf(fullContacts(3))) << "written before Save";

  // Edits on screen are saved without leaving the contact, and saving again changes nothing.
  edit(1, drive::homeEmail, "a@b.example");
  for (int i = 0; i < 2; ++i) {
    program.command(id::SAVE);
    EXPECT_FALSE(program.hasDialog() || program.modified());
    EXPECT_EQ(read(file), bytesOf(contacts));
  }
  start(file);
  this->program().command(id::LAST);
  expectOn(contacts, 2);
}

TEST_F(Contacts, EveryBoxCountsAsAnEdit) {
  const Program& program = startOn(fullContacts(1));
  program.lookAtAllPages();
  for (const int box : drive::boxOf) {
    program.enter(box, "x");
    EXPECT_TRUE(program.modified()) << "box " << box;
    program.command(id::SAVE);
  }
  Contact all;
  all.fill("x");
  // The two web addresses get their scheme when the user leaves them, which nobody did.
  EXPECT_EQ(read(path("list.tly")), bytesOf({all}));
}

TEST_F(Contacts, AddAppendsAndRemoveShowsTheFollowerOrTheNewLastContact) {
  std::vector<Contact> contacts = fullContacts(3);
  const Program& program = startOn(contacts);
  program.enter(id::textItem(5), "edited");
  contacts[0][5] = "edited";
  program.command(id::ADD);
  contacts.emplace_back();
  expectOn(contacts, 3);
  EXPECT_TRUE(program.modified());
  program.command(id::FIRST);
  program.command(id::NEXT);
  for (const auto& [removed, shown] : {std::pair{1, 1U}, {1, 1U}, {1, 0U}}) {
    program.command(id::REMOVE);
    EXPECT_FALSE(program.hasDialog()) << "Remove asks nothing";
    contacts.erase(contacts.begin() + removed);
    expectOn(contacts, shown);
  }
  program.command(id::SAVE);
  EXPECT_EQ(read(path("list.tly")), bytesOf(contacts));

  program.command(id::REMOVE);
  EXPECT_EQ(program.status(), "");
  EXPECT_TRUE(program.names().empty());
  expectShown(Contact{});
  for (const int box : drive::boxOf) EXPECT_FALSE(program.enabled(box)) << "box " << box;
  program.command(id::SAVE);
  EXPECT_EQ(read(path("list.tly")), "");
  program.command(id::REMOVE);
  EXPECT_FALSE(program.modified()) << "nothing was there to remove";
  program.key(VK_INSERT);
  expectOn({Contact{}}, 0);
  EXPECT_EQ(program.focus(), id::textItem(1)) << "the keyboard lives on an empty document";
}

TEST_F(Contacts, TheFullestDocumentTakesEditsButNoMoreContacts) {
  constexpr int most = 32767;
  std::vector<Contact> contacts = fullContacts(most);
  const Program& program = startOn(contacts);
  program.chooseName(20000);
  PostMessageA(program.window(), WM_COMMAND, id::ADD, 0);
  EXPECT_TRUE(program.answer(IDOK).starts_with("Tellary|"));
  EXPECT_EQ(program.status(), place(20001, most));
  EXPECT_FALSE(program.modified());
  program.enter(id::textItem(0), "changed");
  contacts[20000][drive::surname] = "changed";
  program.command(id::SAVE);
  EXPECT_TRUE(read(path("list.tly")) == bytesOf(contacts));
}

}  // namespace
