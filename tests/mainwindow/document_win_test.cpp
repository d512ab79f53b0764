// The commands that act on the document as a whole, with every prompt and each answer.
#include <gtest/gtest.h>

#include "library/clsLibrary_win.h"
#include "library/identifiers.h"
#include "tests/support/main_window_win.h"

namespace {

namespace id = library::id;
using test_support::MainWindowTest;
using test_support::Names;
using test_support::ScratchRegistry;

constexpr char itemsKey[] = "SOFTWARE\\Zandor Software Development\\Tellary\\frmMain\\Items";
constexpr char viewKey[] = "SOFTWARE\\Zandor Software Development\\Tellary\\frmMain\\View";

class Document : public MainWindowTest {
 protected:
  [[nodiscard]] std::string stored(const char* value) const {
    return ScratchRegistry::text(registry.user(), itemsKey, value);
  }
};

TEST_F(Document, OpeningShowsTheFirstContactAndRemembersTheFolder) {
  const std::string path = contactsFile({"Ash", "Birch"});
  open(path);
  EXPECT_EQ(text(id::LBLDESC), "Tellary - (" + path + ")");
  EXPECT_EQ(form.documentPath(), path);
  EXPECT_EQ(text(id::textItem(0)), "Ash");
  EXPECT_FALSE(form.modified());
  EXPECT_EQ(stored("CMD Open Folder"), scratch.path());
  EXPECT_EQ(stored("CMD Save Folder"), "(none)");
  ASSERT_EQ(dialogs.size(), 1U);
  EXPECT_EQ(dialogs[0].title, "Open");
  EXPECT_EQ(dialogs[0].fileName, "");
  EXPECT_EQ(dialogs[0].flags, 0x280004U);
  EXPECT_EQ(dialogs[0].extension, "tly");
  EXPECT_EQ(dialogs[0].filter, "Tellary Document (*.tly)|*.tly");
  run(id::OPEN);
  EXPECT_EQ(dialogs[1].folder, scratch.path());
  EXPECT_EQ(form.documentPath(), path) << "a cancelled dialog changes nothing";
}

TEST_F(Document, NewAndOpenAskAboutUnsavedWorkAndObeyTheAnswer) {
  const std::string path = contactsFile({"Ash"});
  for (const int command : {id::NEW, id::OPEN}) {
    for (const int answer : {IDCANCEL, IDNO, IDYES}) {
      SCOPED_TRACE(std::to_string(command) + " answered " + std::to_string(answer));
      boxes.clear();
      answers.clear();
      files.clear();
      open(path);
      type(id::textItem(0), answer == IDYES ? "Ash" : "Alder");
      form.SETSAVE("TRUE");
      answers.push_back(answer);
      run(command);
      ASSERT_EQ(boxes.size(), 1U);
      EXPECT_EQ(boxes[0].text, "You have unsaved work, do you want to save first ?");
      EXPECT_EQ(boxes[0].title, "New");
      EXPECT_EQ(boxes[0].flags, 35U);
      const bool stays = answer == IDCANCEL || command == id::OPEN;
      EXPECT_EQ(form.documentPath(), stays ? path : "");
      EXPECT_EQ(form.modified(), answer == IDCANCEL || (answer == IDNO && command == id::OPEN));
    }
  }
}

TEST_F(Document, SavingAnUntitledDocumentGoesThroughSaveAs) {
  type(id::textItem(0), "Ash");
  answers.push_back(IDYES);
  run(id::NEW);  // asks, goes to Save As, which is cancelled
  ASSERT_EQ(dialogs.size(), 1U);
  EXPECT_EQ(dialogs[0].title, "Save As");
  EXPECT_TRUE(form.modified());
  EXPECT_EQ(text(id::textItem(0)), "Ash");

  const std::string path = scratch / "new.one";
  files.push_back(path);
  run(id::SAVE);
  EXPECT_EQ(form.documentPath(), path) << "an extension that was typed stays";
  EXPECT_EQ(contentOf(path).substr(0, 7), "\"Ash\"\r\n");
  EXPECT_FALSE(form.modified());
  EXPECT_EQ(stored("CMD Save Folder"), scratch.path());
  EXPECT_EQ(stored("CMD Open Folder"), "(none)");

  type(id::textItem(0), "Alder");
  run(id::SAVE);
  EXPECT_EQ(dialogs.size(), 2U) << "a document with a path is saved without a dialog";
  EXPECT_EQ(contentOf(path).substr(0, 9), "\"Alder\"\r\n");
}

TEST_F(Document, SaveAsAsksOnceAboutAnExistingFileAndAgainAfterNo) {
  open(contactsFile({"Ash"}));
  const std::string taken = scratch.file("taken.tly", "\"old\"");
  files.push_back(scratch / "taken");  // gets its extension before the question
  answers.push_back(IDNO);
  run(id::SAVEAS);  // the second dialog is cancelled
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].text, "The document '" + taken +
                               "' already exists.\r\nDo you really want to overwrite this ?");
  EXPECT_EQ(dialogs.size(), 3U);
  EXPECT_EQ(dialogs.back().folder, scratch.path());
  EXPECT_EQ(contentOf(taken), "\"old\"");

  files.push_back(taken);
  answers.push_back(IDYES);
  run(id::SAVEAS);
  EXPECT_EQ(boxes.size(), 2U);
  EXPECT_EQ(form.documentPath(), taken);
  EXPECT_EQ(text(id::LBLDESC), "Tellary - (" + taken + ")");
  EXPECT_EQ(contentOf(taken).substr(0, 7), "\"Ash\"\r\n");
}

TEST_F(Document, ABrokenFileShowsWhatWasReadAndIsNeverWrittenOver) {
  const std::string whole = fileOf({std::vector<std::string>(28, "x")});
  const std::string broken = whole + "\"cut\"\r\n\"off\"\r\n";
  const std::string path = scratch.file("broken.tly", broken);
  open(path);
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].title, "Open");
  EXPECT_NE(boxes[0].text.find(path), std::string::npos);
  EXPECT_NE(boxes[0].text.find("1 contact was read."), std::string::npos);
  EXPECT_EQ(names(), (Names{"x x"}));
  EXPECT_EQ(status(), "1 of 1 contacts.");
  EXPECT_EQ(text(id::LBLDESC), "Tellary - (" + path + ")");

  type(id::textItem(0), "edited");
  run(id::SAVE);  // Save As, cancelled
  EXPECT_EQ(dialogs.back().title, "Save As");
  files.push_back(path);  // the same name is refused, then cancelled
  run(id::SAVEAS);
  EXPECT_EQ(boxes.size(), 2U);
  EXPECT_EQ(contentOf(path), broken);
  EXPECT_TRUE(form.modified());

  const std::string other = scratch / "other.tly";
  files.push_back(other);
  run(id::SAVE);
  EXPECT_EQ(form.documentPath(), other);
  EXPECT_NE(contentOf(other).find("edited"), std::string::npos);
}

TEST_F(Document, WhatCannotBeReadLeavesAllInStep) {
  open(contactsFile({"Ash", "Birch"}));
  const Names bad{scratch.folder("folder"), scratch / "missing.tly",
                  scratch.file("short.tly", "\"a\"\r\n"), "NUL"};
  for (const std::string& path : bad) {
    SCOPED_TRACE(path);
    boxes.clear();
    open(path);
    EXPECT_EQ(boxes.size(), 1U);
    EXPECT_EQ(form.contacts().count(), 0);
    EXPECT_TRUE(names().empty());
    EXPECT_EQ(text(id::textItem(0)), "");
    EXPECT_EQ(status(), "");
    EXPECT_FALSE(enabled(id::REMOVE));
    EXPECT_EQ(text(id::LBLDESC), "Tellary - (" + path + ")");
  }
}

TEST_F(Document, ClosingAsksByNameAndObeysTheAnswer) {
  const std::string path = contactsFile({"Ash"});
  open(path);
  type(id::textItem(0), "Alder");
  answers = {IDCANCEL};
  run(id::EXIT);
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].text, "Do you wish to save '" + path + "' before you close ?");
  EXPECT_EQ(boxes[0].title, "Tellary");
  ASSERT_TRUE(form.loaded());

  answers = {IDYES};
  SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_READONLY);
  SendMessageA(form.handle(), WM_CLOSE, 0, 0);  // asks, cannot save, tells, stays
  EXPECT_EQ(boxes.size(), 3U);
  EXPECT_EQ(boxes.back().title, "Save");
  ASSERT_TRUE(form.loaded());
  SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);

  answers = {IDYES};
  SendMessageA(form.handle(), WM_CLOSE, 0, 0);
  EXPECT_FALSE(form.loaded());
  EXPECT_EQ(contentOf(path).substr(0, 9), "\"Alder\"\r\n");
}

TEST_F(Document, ShuttingDownAsksOnceAndDiscardsNothingBeforeTheSessionEnds) {
  open(contactsFile({"Ash"}));
  type(id::textItem(0), "Alder");
  answers = {IDCANCEL};
  EXPECT_EQ(SendMessageA(form.handle(), WM_QUERYENDSESSION, 0, 0), FALSE);
  answers = {IDNO};
  EXPECT_EQ(SendMessageA(form.handle(), WM_QUERYENDSESSION, 0, 0), TRUE);
  SendMessageA(form.handle(), WM_ENDSESSION, FALSE, 0);  // another program stopped it
  EXPECT_EQ(boxes.size(), 2U);
  EXPECT_TRUE(form.modified());
  EXPECT_EQ(text(id::textItem(0)), "Alder");
}

TEST_F(Document, BarsAreToggledRememberedAndLeaveNoGap) {
  const auto height = [this] {
    const RECT place = form.outerPixels();
    return place.bottom - place.top;
  };
  const int full = height();
  run(id::STANDARDBAR);
  EXPECT_FALSE(form.control(id::PICMAINTBAR).visible());
  EXPECT_EQ(form.control(id::PICHEADER).pixels().top, 0);
  EXPECT_LT(height(), full);
  EXPECT_EQ(ScratchRegistry::text(registry.user(), viewKey, "Standard Toolbar"), "False");
  EXPECT_EQ(ScratchRegistry::text(registry.user(), viewKey, "Status Bar"), "True");
  run(id::STATUSBAR);
  EXPECT_EQ(ScratchRegistry::text(registry.user(), viewKey, "Status Bar"), "False");
  form.unload();
  form.load();
  EXPECT_FALSE(form.control(id::PICMAINTBAR).visible());
  EXPECT_FALSE(form.control(id::SBMAIN).visible());
  run(id::STANDARDBAR);
  run(id::STATUSBAR);
  EXPECT_EQ(height(), full);
}

// Frames keep their distance from the tab strip, and nothing reaches past the window.
TEST_F(Document, NothingIsClipped) {
  const RECT tabs = form.control(id::TABMAIN).pixels();
  const RECT body = form.control(id::PICMAINBOX).pixels();
  EXPECT_LE(tabs.bottom, body.bottom - body.top);
  for (const int frame : {id::FRAMGENERAL, id::FRAMADDRESS, id::FRAMADDRESSWORK}) {
    EXPECT_LE(form.control(frame).pixels().bottom, tabs.bottom);
    EXPECT_NEAR(form.control(frame).top() - form.control(id::TABMAIN).top(), 390, 15);
  }
  const RECT place = form.outerPixels();
  EXPECT_LE(place.bottom - place.top, 512);
}

// Other captions and menus chosen in the system's settings change the room inside the window.
TEST_F(Document, TheStatusBarStaysAtTheFoot) {
  RECT place = form.outerPixels();
  place.bottom += 30;
  form.moveOuter(place);
  RECT inside{};
  GetClientRect(form.handle(), &inside);
  EXPECT_EQ(form.control(id::SBMAIN).pixels().bottom, inside.bottom);
  EXPECT_EQ(form.control(id::PICMAINBOX).pixels().bottom, form.control(id::SBMAIN).pixels().top);
}

}  // namespace
