#include "dialogs/frmProps_win.h"

#include <gtest/gtest.h>

#include <commctrl.h>

#include <algorithm>
#include <string>

#include "dialogs/frmProps_ids.h"
#include "library/modLibrary_win.h"
#include "paper/richtextbox_win.h"
#include "printing/clsPrinting_win.h"
#include "printing/frmPPrev_win.h"
#include "tests/support/printers_win.h"
#include "tests/support/scratch_folder_win.h"
#include "tests/support/scratch_registry_win.h"
#include "tests/support/short_memory_win.h"
#include "values/runtime_error.h"
#include "windowing/seams_win.h"

namespace dialogs {
namespace {

using library::Setting;
using test_support::ScratchFolder;
using test_support::ScratchRegistry;
using test_support::TestPrinters;
namespace id = dialogs::props_id;

class Properties : public testing::Test {
 protected:
  void TearDown() override {
    form_.unload();
    library::modLibrary().documentPath.clear();
    library::modLibrary().documentKind.clear();
  }

  void show(const std::string& path, const char* kind = "TEMPLATE") {
    library::modLibrary().documentPath = path;
    library::modLibrary().documentKind = kind;
    form_.load();
    form_.UPDATEINFO();
  }
  [[nodiscard]] std::string text(int control) const { return form_.control(control).text(); }
  [[nodiscard]] std::string texts(std::initializer_list<int> controls) const {
    std::string all;
    for (const int control : controls) all += text(control) + "|";
    return all;
  }
  [[nodiscard]] std::string general() const {
    return texts({id::TXTFILENAME, id::TXTTYPE, id::TXTLOCATION, id::TXTSIZE, id::TXTMODIFIED});
  }
  [[nodiscard]] std::string figures() const {
    return texts({id::TXTDOCPAGES, id::TXTDOCLINES, id::TXTDOCLEN, id::TXTWORDS});
  }
  [[nodiscard]] std::string pictureFacts() const {
    return texts({id::TXTPICTYPE, id::TXTPICWIDTH, id::TXTPICHEIGHT, id::TXTPICPIXELDEPTH});
  }
  /// "1" or "0" for each of the three boxes.
  [[nodiscard]] std::string ticks() const {
    std::string all;
    for (int i = 0; i < 3; ++i)
      all += std::to_string(form_.control(id::CHKATTR + i).send(BM_GETCHECK));
    return all;
  }
  [[nodiscard]] std::string shownFrames() const {
    std::string all;
    for (const int frame : {id::FRAMGENERAL, id::FRAMDOCUMENT, id::FRAMPIC})
      all += form_.control(frame).visible() ? "1" : "0";
    return all;
  }

  ScratchRegistry registry_;
  ScratchFolder folder_;
  frmProps form_;
};

bool americanUser() {
  return GetUserDefaultLCID() == MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), 0);
}

TEST_F(Properties, GeneralFactsAreThoseOfTheDisk) {
  const std::string path = folder_.file("M\xFCller & Co.Tly");
  const values::FileHandle file(
      CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr));
  LARGE_INTEGER end{};
  end.QuadPart = 5000000000;
  ASSERT_TRUE(SetFilePointerEx(file.get(), end, nullptr, FILE_BEGIN) && SetEndOfFile(file.get()));
  SYSTEMTIME local{2020, 2, 6, 29, 13, 5, 9, 0};
  FILETIME time{};
  FILETIME written{};
  ASSERT_TRUE(SystemTimeToFileTime(&local, &time) && LocalFileTimeToFileTime(&time, &written));
  ASSERT_TRUE(SetFileTime(file.get(), nullptr, nullptr, &written));
  show(folder_ / "M\xDCLLER & CO.TLY");
  EXPECT_EQ(text(id::TXTFILENAME), "M\xFCller & Co.Tly");
  EXPECT_EQ(text(id::TXTLOCATION), folder_.path());
  EXPECT_NE(text(id::TXTTYPE), "");
  if (americanUser()) {
    EXPECT_EQ(text(id::TXTSIZE), "4.66GB (5,000,000,000 Bytes)");
    EXPECT_EQ(text(id::TXTMODIFIED), "Saturday, February 29, 2020 1:05:09 PM");
  }
  EXPECT_NE(form_.control(id::PICICON).send(STM_GETIMAGE, IMAGE_ICON), 0);
}

TEST_F(Properties, ReadOnlyBoxChangesTheFileAndTheOthersOnlyShow) {
  const std::string path = folder_.file("a.tly");
  SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN);
  const auto fileIsReadOnly = [&] {
    return (GetFileAttributesA(path.c_str()) & FILE_ATTRIBUTE_READONLY) != 0;
  };
  show(path);
  EXPECT_TRUE(ticks().starts_with("11"));
  const windowing::Control box = form_.control(id::CHKATTR);
  const std::string others = ticks().substr(1);
  box.send(BM_CLICK);
  EXPECT_EQ(ticks(), "0" + others);
  EXPECT_FALSE(fileIsReadOnly());
  EXPECT_FALSE(form_.ATTRREADONLY());
  // The text beside the box is part of it.
  const windowing::Control label = form_.control(id::LBLREAD);
  for (const bool takesInput : {false, true}) {
    EnableWindow(form_.handle(), takesInput);
    EXPECT_EQ(ticks(), "0" + others);
    label.send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
    label.send(WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
  }
  EXPECT_EQ(ticks(), "1" + others);
  EXPECT_TRUE(fileIsReadOnly());
  for (int i = 1; i < 3; ++i) {
    form_.control(id::CHKATTR + i).send(BM_CLICK);
    form_.control(id::LBLREAD + i).send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
    EXPECT_EQ(ticks(), "1" + others);
  }
  EXPECT_TRUE((GetFileAttributesA(path.c_str()) & FILE_ATTRIBUTE_HIDDEN) != 0);

  int beeps = 0;
  const windowing::Replaced beep(windowing::seams().beep, [&] { ++beeps; });
  SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
  ASSERT_TRUE(DeleteFileA(path.c_str()));
  box.send(BM_CLICK);
  EXPECT_EQ(ticks(), "1" + others);
  EXPECT_EQ(beeps, 1);
  form_.UPDATEINFO();
  EXPECT_EQ(ticks(), "000");
}

TEST_F(Properties, WhatIsNoFileHasNoFacts) {
  folder_.file("some.tly");
  const std::pair<std::string, const char*> cases[] = {{"", "Untitled|||||"},
                                                       {folder_ / "som?.tly", "som?.tly|||||"},
                                                       {"C:\\", "C:\\|||||"},
                                                       {"Q:\\gone.tly", "gone.tly|||||"}};
  for (const auto& [path, expected] : cases) {
    show(path);
    EXPECT_EQ(general(), expected);
    EXPECT_EQ(ticks(), "000");
  }
}

TEST_F(Properties, KindsHaveTheirTabsAndATabItsPage) {
  const std::string png("\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\1\x2C\0\0\0\x0A\x08\x02", 26);
  const std::string path = folder_.file("a.png", png);
  const struct {
    const char* kind;
    int tabs;
    const char* last;  // frame of the last one
  } cases[] = {{"DOCUMENT", 2, "010"},
               {"Picture", 2, "001"},
               {"TEMPLATE", 1, "100"},
               {"untitled", 2, "010"},
               {"", 1, "100"}};
  for (const auto& each : cases) {
    show(path, each.kind);
    const windowing::Control strip = form_.control(id::TABPROPS);
    EXPECT_EQ(strip.send(TCM_GETITEMCOUNT), each.tabs) << each.kind;
    EXPECT_EQ(shownFrames(), "100") << each.kind;
    RECT place{};
    strip.send(TCM_GETITEMRECT, static_cast<WPARAM>(each.tabs - 1),
               reinterpret_cast<LPARAM>(&place));
    strip.send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(place.left + 5, place.top + 5));
    strip.send(WM_LBUTTONUP, 0, MAKELPARAM(place.left + 5, place.top + 5));
    EXPECT_EQ(shownFrames(), each.last) << each.kind;
  }
  show(path, "PICTURE");
  EXPECT_EQ(pictureFacts(), "PNG|300 pixels|10 pixels|16 million colors (24 bit)|");
  show(std::string(40000, 'x'), "PICTURE");
  EXPECT_EQ(pictureFacts(), "||||");
}

TEST_F(Properties, FiguresOfTheDocumentsText) {
  constexpr double inch = 1440;
  form_.setPaper([&] {
    return ReportPaper{8.5 * inch, 11 * inch, inch / 6};  // 54 lines between the usual margins
  });
  std::string report = "\r\nAda Byron";
  form_.setDocumentText([&] { return report; });
  const std::string path = folder_.file("a.tly");
  show(path, "DOCUMENT");
  EXPECT_EQ(text(id::TXTDOCPATH), path);
  EXPECT_EQ(figures(), "1|2|11|2|");

  report = "one";
  for (int i = 1; i < 55; ++i) report += "\r\nword";
  form_.UPDATEINFO();
  EXPECT_EQ(figures(), "2|55|327|55|");
  // Margins are shared with the maker's other products.
  const struct {
    Setting edge;
    const char *inches, *figures;
  } margins[] = {{Setting::topMargin, "0,5", "1|55|327|55|"},
                 {Setting::bottomMargin, "8", "4|55|327|55|"},
                 {Setting::bottomMargin, "11", "55|55|327|55|"}};
  for (const auto& margin : margins) {
    registry_.store(margin.edge, margin.inches);
    form_.UPDATEINFO();
    EXPECT_EQ(figures(), margin.figures) << margin.inches;
  }

  // Words wrap between the side margins; the left one is looked for where it is never written.
  report = "a word and ";
  for (int i = 0; i < 5; ++i) report += report;
  form_.UPDATEINFO();
  const int lines = std::stoi(text(id::TXTDOCLINES));
  EXPECT_GT(lines, 2);
  registry_.store(Setting::leftMargin, "4");
  form_.UPDATEINFO();
  EXPECT_EQ(std::stoi(text(id::TXTDOCLINES)), lines);
  registry_.store(Setting::propertiesLeftMargin, "4");
  form_.UPDATEINFO();
  EXPECT_GT(std::stoi(text(id::TXTDOCLINES)), lines);
}

TEST_F(Properties, PagesAreThosePrinted) {
  const TestPrinters printers;
  form_.setPaper([] { return reportPaper(paper::printer()); });
  form_.load();
  paper::RichTextBox report("RTF1");
  report.create(form_.handle(), 1, {0, 0, 9, 9});
  form_.setDocumentText([&] { return report.text(); });
  const auto expectPages = [&](int count, const std::string& line) {
    std::string text = line;
    for (int i = 1; i < count; ++i) text += "\r\n" + line;
    report.setPlain(text);
    show("", "UNTITLED");
    printing::PRINTING().INITIALIZEPATH(printing::thePreview(), report);
    const int pages = printing::PRINTING().PAGECOUNT(printing::thePreview(), 1, 1, 1, 1, 1);
    EXPECT_EQ(this->text(id::TXTDOCPAGES), std::to_string(pages)) << count << " of " << line;
    return pages;
  };
  for (const char* name : {TestPrinters::a4, TestPrinters::letter}) {
    SCOPED_TRACE(name);
    paper::printer().select(name);
    int highest = 0;
    for (int count = 50; count < 70; ++count) highest = std::max(highest, expectPages(count, "x"));
    EXPECT_EQ(highest, 2);
    std::string wrapping;
    for (int word = 0; word < 30; ++word) wrapping += "comments ";
    expectPages(40, wrapping);
  }
}

TEST_F(Properties, AFigureThatFailsLeavesOnlyItselfEmpty) {
  form_.setPaper([]() -> ReportPaper {
    throw values::RuntimeError(values::ErrorNumber::printer, "No printer");
  });
  form_.setDocumentText([] { return std::string("one\r\ntwo three"); });
  show("", "UNTITLED");
  EXPECT_EQ(figures(), "|2|14|3|");
  EXPECT_EQ(text(id::TXTDOCPATH), "");
  form_.setPaper([] { return ReportPaper{12240, 15840, 240}; });
  registry_.store(Setting::rightMargin, "wide");
  form_.UPDATEINFO();
  EXPECT_EQ(figures(), "|2|14|3|");
  // Lines that nothing could be counted in are none.
  for (const LRESULT answer : {FALSE, TRUE}) {
    const test_support::RefusingBox refusing(form_.control(id::TXTDOCUMENT).handle(), WM_SETTEXT,
                                             answer);
    form_.UPDATEINFO();
    EXPECT_EQ(figures(), "||14|3|");
  }
  form_.setDocumentText([]() -> std::string {
    throw values::RuntimeError(values::ErrorNumber::objectMissing, "No contact");
  });
  form_.UPDATEINFO();
  EXPECT_EQ(figures(), "||||");
}

TEST_F(Properties, ComesBackWhereItWasLeft) {
  form_.load();
  RECT place = form_.outerPixels();
  OffsetRect(&place, 31, -27);
  form_.moveOuter(place);
  form_.unload();
  form_.load();
  EXPECT_EQ(form_.outerPixels().left, place.left);
  EXPECT_EQ(form_.outerPixels().top, place.top);
  form_.unload();
  // A stored place that is none does not keep the dialog from opening; Esc closes it.
  registry_.store(Setting::windowLeft, "far", library::sharedPlace);
  form_.load();
  PostMessageA(form_.control(id::TXTLOCATION).handle(), WM_KEYDOWN, VK_ESCAPE, 0);
  form_.showModal();
  EXPECT_FALSE(form_.loaded());
}

}  // namespace
}  // namespace dialogs
