// Contacts that a box cannot take: nothing of them is lost, and nothing of another gets into them.
#include <windows.h>

#include <gtest/gtest.h>

#include "controls/TXTBTN_win.h"
#include "mainwindow/frmMain_ids.h"
#include "tests/support/failing_files_win.h"
#include "tests/support/main_window_win.h"
#include "tests/support/short_memory_win.h"

namespace {

namespace id = mainwindow::id;
using test_support::RefusingBox;
using test_support::ShortMemory;

constexpr int comments = id::textItem(22);
constexpr int company = id::textItem(23);
constexpr std::size_t little = 1 << 18;

class Unshown : public test_support::MainWindowTest {
 protected:
  [[nodiscard]] bool locked(int box) const {
    return (GetWindowLongA(form.control(box).handle(), GWL_STYLE) & ES_READONLY) != 0;
  }
  /// Boxes that came up since, with what was posted to the window done.
  std::size_t told() {
    MSG message{};
    while (PeekMessageA(&message, form.handle(), 0, 0, PM_REMOVE)) DispatchMessageA(&message);
    return boxes.size();
  }
  const std::string bytes_ = fileOf({{28, "one"}, {28, "two"}});
  const std::string path_ = scratch.file("unshown.tly", bytes_);
};

TEST_F(Unshown, AContactThatABoxDoesNotTakeIsLockedAndKeptAndToldOfOnce) {
  for (const int box : {comments, id::textItem(0), id::CBOPWEBSITE}) {
    for (const LRESULT answer : {FALSE, TRUE}) {
      SCOPED_TRACE(std::to_string(box) + " answers " + std::to_string(answer));
      boxes.clear();
      open(path_);
      {
        const RefusingBox refusing(form.control(box).handle(), WM_SETTEXT, answer);
        run(id::NEXT);
        EXPECT_EQ(text(box), "") << "not the text of another contact";
        EXPECT_EQ(text(id::textItem(3)), "two");
        for (const int any : {box, id::textItem(3), id::CBOPEMAIL}) EXPECT_TRUE(locked(any));
        // Whatever changes a locked box is no edit.
        type(id::textItem(3), "typed");
        type(id::textItem(1), "typed");
        notice(id::CBOPWEBSITE, controls::TXTBTN::left);
        EXPECT_EQ(text(id::CBOPWEBSITE), box == id::CBOPWEBSITE ? "" : "two");
        EXPECT_FALSE(form.modified());
        EXPECT_EQ(text(id::CBOPWEBSITE), box == id::CBOPWEBSITE ? "" : "two");
        EXPECT_EQ(names().at(1), "two two");
        run(id::PREVIOUS);
        run(id::NEXT);
      }
      run(id::PREVIOUS);
      EXPECT_EQ(text(box), "one");
      EXPECT_FALSE(locked(box));
      {
        const RefusingBox again(form.control(box).handle(), WM_SETTEXT, answer);
        run(id::NEXT);
        EXPECT_TRUE(locked(box));
      }
      form.FILESAVEAS(path_);
      EXPECT_EQ(support::bytesOf(path_), bytes_);
      ASSERT_EQ(told(), 1U);
      EXPECT_TRUE(boxes[0].text.starts_with("This contact cannot be shown whole")) << boxes[0].text;
    }
  }
}

TEST_F(Unshown, ANewDocumentTellsOfItsOwn) {
  open(path_);
  for (std::size_t documents = 1; documents <= 2; ++documents) {
    {
      const RefusingBox refusing(form.control(comments).handle(), WM_SETTEXT, FALSE);
      run(id::NEXT);
      run(id::FIRST);
    }
    EXPECT_EQ(told(), documents);
    form.SETSAVE("False");
    run(id::NEW);
    type(comments, "new");
    run(id::ADD);
    type(comments, "new");
  }
}

TEST_F(Unshown, TooLittleMemoryToFillABoxIsNoOtherReason) {
  std::vector<std::string> large(28, "two");
  large[27] = std::string(little + 1, 'x');
  const std::string bytes = fileOf({{28, "one"}, large});
  open(scratch.file("large.tly", bytes));
  {
    const ShortMemory memory(little);
    run(id::NEXT);
    EXPECT_TRUE(locked(company));
    EXPECT_EQ(text(company), "");
    run(id::FIRST);
    form.FILESAVEAS(path_);
  }
  EXPECT_TRUE(support::bytesOf(path_) == bytes);
  EXPECT_FALSE(locked(company));
  run(id::LAST);
  EXPECT_TRUE(text(company) == large[27]);
  EXPECT_FALSE(locked(company));
}

// What was typed must not be lost when a page that is first shown turns out too large.
TEST_F(Unshown, APageThatCannotBeFilledLocksTheContactWithWhatWasTypedStored) {
  std::vector<std::string> contact(28, "one");
  contact[14] = std::string(little + 1, 'x');
  const std::string path = scratch.file("pages.tly", fileOf({contact}));
  form.unload();
  form.openNamedAtStart(path);
  type(id::textItem(3), "typed");
  {
    // The first edit needs room for the whole contact.
    const ShortMemory memory(little);
    turnTo(1);
  }
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_TRUE(boxes[0].text.starts_with("Run-time error 7:")) << boxes[0].text;
  EXPECT_EQ(text(id::textItem(3)), "typed");
  EXPECT_FALSE(locked(id::textItem(3)));
  form.FILESAVEAS(path);
  type(id::textItem(3), "more");
  {
    const ShortMemory memory(little);
    turnTo(1);
  }
  EXPECT_TRUE(locked(id::textItem(3)));
  EXPECT_TRUE(locked(id::CBOPEMAIL));
  EXPECT_EQ(text(id::CBOPWEBSITE), "");
  contact[3] = "more";
  form.FILESAVEAS(path);
  EXPECT_TRUE(support::bytesOf(path) == fileOf({contact}));
}

// A box that cannot hand its text out has not been emptied.
TEST_F(Unshown, ABoxThatGivesNoTextCallsTheStepOff) {
  open(path_);
  type(id::textItem(3), "typed");
  const windowing::ComboBox nameBox(form.control(id::CBOTBARBOX).handle());
  const std::pair<int, const char*> steps[] = {{id::NEXT, "'Next Page' could not be completed."},
                                               {id::ADD, "'Add' could not be completed."},
                                               {0, "The contact on screen could not be left."}};
  for (const auto& [step, undone] : steps) {
    boxes.clear();
    const RefusingBox refusing(form.control(id::textItem(3)).handle(), WM_GETTEXT, 0);
    if (step == 0) {
      nameBox.select(1);
      notice(id::CBOTBARBOX, CBN_SELCHANGE);
    } else {
      run(step);
    }
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text,
              "Run-time error 7:\r\n\r\nOut of memory\r\n\r\n" + std::string(undone));
    EXPECT_EQ(nameBox.selected(), 0);
    EXPECT_EQ(form.contacts().count(), 2);
    EXPECT_EQ(names().size(), 2U);
  }
  EXPECT_EQ(text(id::textItem(3)), "typed");
  run(id::NEXT);
  EXPECT_EQ(form.contacts().field(0, document::Slot::JobTitle), "typed");
}

// Without its entry, those behind it would stand for other contacts.
TEST_F(Unshown, ANameThatTheNameBoxDoesNotTakeKeepsItsPlace) {
  COMBOBOXINFO parts{};
  parts.cbSize = sizeof parts;
  const HWND list = form.control(id::CBOTBARBOX).handle();
  ASSERT_TRUE(GetComboBoxInfo(list, &parts));
  {
    const RefusingBox refusing(parts.hwndList, LB_ADDSTRING, LB_ERRSPACE);
    open(path_);
  }
  EXPECT_EQ(names(), (test_support::Names{"", ""}));
  {
    const RefusingBox refusing(list, CB_INSERTSTRING, CB_ERRSPACE);
    type(id::textItem(0), "Ash");
  }
  EXPECT_EQ(names(), (test_support::Names{"", ""}));
  type(id::textItem(0), "Birch");
  EXPECT_EQ(names(), (test_support::Names{"one Birch", ""}));
}

}  // namespace
