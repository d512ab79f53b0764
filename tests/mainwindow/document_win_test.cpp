// The commands that act on the document as a whole, with every prompt and each answer.
#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include "library/clsLibrary_win.h"
#include "mainwindow/frmMain_ids.h"
#include "tests/support/main_window_win.h"
#include "tests/support/short_memory_win.h"

namespace {

namespace id = mainwindow::id;
using library::Setting;
using test_support::MainWindowTest;
using test_support::Names;

class Document : public MainWindowTest {};

TEST_F(Document, OpenAsksForDocumentsWhereTheLastOneWas) {
  open(contactsFile({"Ash", "Birch"}));
  EXPECT_EQ(text(id::textItem(0)), "Ash");
  run(id::OPEN);
  ASSERT_EQ(dialogs.size(), 2U);
  EXPECT_EQ(dialogs[1].title, "Open");
  EXPECT_EQ(dialogs[1].fileName, "");
  EXPECT_EQ(dialogs[1].folder, scratch.path());
  EXPECT_EQ(dialogs[1].extension, "tly");
  EXPECT_EQ(dialogs[1].filter, "Tellary Document (*.tly)|*.tly");
  EXPECT_EQ(text(id::textItem(0)), "Ash") << "a cancelled dialog changes nothing";
}

TEST_F(Document, WhoeverWantsToEndTheProgramWaitsForTheQuestionOnScreen) {
  open(contactsFile({"Ash"}));
  form.SETSAVE("TRUE");
  int asked = 0;
  const windowing::Replaced box(windowing::seams().messageBox, [&](auto&&...) {
    if (++asked == 1) {
      EXPECT_FALSE(SendMessageA(form.handle(), WM_QUERYENDSESSION, 0, 0));
      SendMessageA(form.handle(), WM_CLOSE, 0, 0);
    }
    return asked == 1 ? IDCANCEL : IDNO;
  });
  const struct {
    UINT message;
    WPARAM wParam;
  } rows[] = {{WM_COMMAND, id::NEW}, {WM_CLOSE, 0}, {WM_QUERYENDSESSION, 0}};
  for (const auto& row : rows) {
    asked = 0;
    EXPECT_FALSE(SendMessageA(form.handle(), row.message, row.wParam, 0));
    EXPECT_EQ(asked, 1);
  }
  EXPECT_TRUE(SendMessageA(form.handle(), WM_QUERYENDSESSION, 0, 0)) << "it is asked again later";
}

TEST_F(Document, WhatCannotBeReadLeavesAllInStep) {
  open(contactsFile({"Ash", "Birch"}));
  const std::string partly = "could not be read completely.\r\n0 contacts were read.\r\n\r\n";
  const std::pair<std::string, std::string> bad[] = {
      {scratch / "missing.tly", "does not exist."},
      {scratch / "gone\\missing.tly", "cannot be found: its folder or drive does not exist."},
      {scratch.folder("folder"), partly + "Access denied."},
      {scratch.file("short.tly", "\"a\"\r\n"), partly + "Input past end of file."},
      {scratch.file("large.tly", std::string(2000, ' ')), partly + "Out of memory."},
      {"NUL", partly + "Access denied."}};
  for (const auto& [path, reason] : bad) {
    SCOPED_TRACE(path);
    boxes.clear();
    {
      const test_support::ShortMemory memory(path.ends_with("large.tly") ? 1000 : 1 << 20);
      open(path);
    }
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].title, "Open");
    EXPECT_EQ(boxes[0].text, std::string("The document '").append(path).append("' ") + reason);
    EXPECT_EQ(form.contacts().count(), 0);
    EXPECT_TRUE(names().empty());
    EXPECT_EQ(text(id::textItem(0)), "");
    EXPECT_EQ(status(), "");
    EXPECT_FALSE(enabled(id::REMOVE));
    EXPECT_EQ(text(id::LBLDESC), "Tellary - (" + path + ")");
  }
}

// The system's dialog does not survive a device, and nobody is helped by a folder that is gone.
TEST_F(Document, OnlyAFolderThatIsThereIsHandedToADialog) {
  const std::string fallBack = library::LIBRARY().FILESLOCATION();
  const std::string file = scratch.file("file.tly", "");
  const struct {
    std::string stored;
    std::string handed;
  } rows[] = {{scratch.path(), scratch.path()},
              {scratch.path() + "\\", scratch.path() + "\\"},
              {"C:", "C:\\"},
              {"", fallBack},
              {"con", fallBack},
              {"C:\\con", fallBack},
              {"C:\\con\\x", fallBack},
              {"nul", fallBack},
              {R"(\\.\C:\)", fallBack},
              {R"(\\?\C:\)", fallBack},
              {"Q:\\away", fallBack},
              {"?*<>|%s", fallBack},
              {file, fallBack},
              {scratch / "gone", fallBack},
              {std::string(200, 'x'), fallBack},
              {scratch / std::string(100, '.'), scratch.path() + "\\"}};
  const std::pair<int, Setting> commands[] = {{id::OPEN, Setting::openFolder},
                                              {id::SAVEAS, Setting::saveFolder}};
  for (const auto& [stored, handed] : rows) {
    for (const auto& [command, setting] : commands) {
      registry.store(setting, stored);
      run(command);
      EXPECT_EQ(dialogs.back().folder, handed) << stored;
    }
  }
  // Not even that may be one.
  registry.store(Setting::openFolder, "con");
  registry.store(Setting::filesLocation, R"(\\.\C:\)");
  run(id::OPEN);
  EXPECT_EQ(dialogs.back().folder, "");
}

// The strips cover one another while they move, and what the system keeps of them is not enough.
TEST_F(Document, AShownBarLeavesNothingUnpainted) {
  form.show();
  const HWND tabs = form.control(id::TABMAIN).handle();
  for (int toggles = 0; toggles < 2; ++toggles) {
    RedrawWindow(form.handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    ASSERT_FALSE(GetUpdateRect(tabs, nullptr, FALSE));
    run(id::STANDARDBAR);
    RECT all{};
    RECT unpainted{};
    GetClientRect(tabs, &all);
    GetUpdateRect(tabs, &unpainted, FALSE);
    EXPECT_TRUE(EqualRect(&all, &unpainted)) << toggles;
  }
}

// Other captions and menus chosen in the system's settings change the room inside the window.
TEST_F(Document, ThePartsFitTheRoomInside) {
  const RECT designed = form.outerPixels();
  RECT lastTab{};
  form.control(id::TABMAIN).send(TCM_GETITEMRECT, 2, reinterpret_cast<LPARAM>(&lastTab));
  EXPECT_LE(designed.bottom - designed.top, 512);
  for (const int more : {-10, 0, 30}) {
    SCOPED_TRACE(more);
    RECT place = designed;
    place.bottom += more;
    form.moveOuter(place);
    RECT inside{};
    GetClientRect(form.handle(), &inside);
    const RECT body = form.control(id::PICMAINBOX).pixels();
    const RECT tabs = form.control(id::TABMAIN).pixels();
    EXPECT_EQ(form.control(id::SBMAIN).pixels().bottom, inside.bottom);
    EXPECT_EQ(body.bottom, form.control(id::SBMAIN).pixels().top);
    EXPECT_LE(tabs.bottom, body.bottom - body.top);
    for (const int page : {id::FRAMGENERAL, id::FRAMADDRESS, id::FRAMADDRESSWORK}) {
      const RECT frame = form.control(page).pixels();
      EXPECT_GE(frame.top, tabs.top + lastTab.bottom);
      EXPECT_LE(frame.bottom, tabs.bottom);
      EXPECT_NE(
          ChildWindowFromPoint(form.control(id::PICMAINBOX).handle(), {frame.left, frame.top}),
          form.control(id::TABMAIN).handle())
          << "the strip lies below its pages";
    }
  }
}

}  // namespace
