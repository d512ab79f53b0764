// The contact on screen: adding, removing, stepping and editing on the real window.
#include <gtest/gtest.h>

#include "controls/TXTBTN_win.h"
#include "mainwindow/frmMain_ids.h"
#include "tests/support/failing_files_win.h"
#include "tests/support/main_window_win.h"

namespace {

namespace id = mainwindow::id;
using test_support::MainWindowTest;

class Contacts : public MainWindowTest {};

TEST_F(Contacts, AddingStoresWhatIsOnScreenInItsOwnContact) {
  open(contactsFile({"Ash"}));
  open(scratch.file("empty.tly"));
  EXPECT_EQ(text(id::textItem(0)), "");
  run(id::ADD);
  EXPECT_EQ(form.contacts().nameEntry(0), " ") << "nothing of the document before";
  type(id::textItem(0), "Birch");
  EXPECT_EQ(form.contacts().nameEntry(0), " ") << "not before the contact is left";
  run(id::ADD);
  EXPECT_EQ(form.contacts().nameEntry(0), " Birch");
  EXPECT_EQ(form.contacts().nameEntry(1), " ");
  EXPECT_EQ(text(id::textItem(0)), "");
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
  EXPECT_EQ(support::bytesOf(path), bytes);
  // Nor does an edit of another contact, or of another box, touch them.
  type(id::textItem(3), "Joiner");
  run(id::NEXT);
  type(id::textItem(0), "\x01\x1F\x7F\x81 tab\t.");
  form.FILESAVEAS(path);
  fields[3] = "Joiner";
  std::vector<std::string> other(28, "plain");
  other[0] = "\x01\x1F\x7F\x81 tab\t.";
  EXPECT_EQ(support::bytesOf(path), fileOf({fields, other}));
}

TEST_F(Contacts, APageThatIsFirstShownShowsTheContactOnScreenAndCostsNoneOfIt) {
  const std::string bytes = fileOf({{28, "first"}, {28, "second"}});
  const std::string path = scratch.file("pages.tly", bytes);
  form.unload();
  form.openNamedAtStart(path);
  ASSERT_EQ(form.control(id::CBOPEMAIL).handle(), nullptr);
  run(id::NEXT);
  form.FILESAVEAS(path);
  EXPECT_EQ(support::bytesOf(path), bytes);
  type(id::textItem(0), "typed");
  form.SETSAVE("False");
  turnTo(1);
  EXPECT_EQ(form.control(id::CBOPWORKEMAIL).handle(), nullptr);
  EXPECT_EQ(text(id::CBOPEMAIL), "second");
  EXPECT_EQ(text(id::textItem(0)), "typed");
  EXPECT_FALSE(form.modified());
  type(id::CBOPEMAIL, "edited");
  run(id::FIRST);
  run(id::LAST);
  EXPECT_EQ(text(id::CBOPEMAIL), "edited");
}

TEST_F(Contacts, APageThatIsFirstShownTakesNothingWhereThereIsNoContact) {
  form.unload();
  form.openNamedAtStart(scratch / "missing.tly");
  turnTo(1);
  EXPECT_FALSE(form.control(id::CBOPWEBSITE).enabled());
}

TEST_F(Contacts, LinksAreNotOpenedBelowADialog) {
  open(contactsFile({"Ash"}));
  type(id::CBOPEMAIL, "ann");
  std::string opened;
  const windowing::Replaced shell(windowing::seams().shellOpen,
                                  [&](HWND, const std::string&, const std::string& address,
                                      const std::string&) { opened += address; });
  for (const bool takesInput : {false, true}) {
    EnableWindow(form.handle(), takesInput);
    notice(id::CBOPEMAIL, controls::TXTBTN::clicked);
    EXPECT_EQ(opened, takesInput ? "mailto:ann" : "");
  }
}

}  // namespace
