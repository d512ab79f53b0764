#include "pagesetup/frmPSetup_win.h"

#include <gtest/gtest.h>

#include <commctrl.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "library/modLibrary_win.h"
#include "pagesetup/frmPSetup_ids.h"
#include "pagesetup/paper_table.h"
#include "pagesetup/stored_options_win.h"
#include "paper/printer_win.h"
#include "tests/support/printers_win.h"
#include "tests/support/scratch_registry_win.h"
#include "windowing/seams_win.h"

namespace pagesetup {
namespace {

using library::Setting;
using paper::Orientation;
using paper::printer;
using test_support::ScratchRegistry;
using test_support::TestPrinters;
constexpr Setting edges[] = {Setting::leftMargin, Setting::rightMargin, Setting::topMargin,
                             Setting::bottomMargin};
constexpr int marginBoxes[] = {id::UDNLEFT, id::UDNRIGHT, id::UDNTOP, id::UDNBOTTOM};
constexpr int masters[] = {id::CHKHEADER, id::CHKFOOTER};
constexpr int items[] = {id::CHKHEADTITLE,  id::CHKHEADDATE,   id::CHKHEADTIME, id::CHKHEADLINE,
                         id::CHKFOOTFIELD1, id::CHKFOOTFIELD2, id::CHKFOOTPGNO, id::CHKFOOTLINE};
constexpr int itemSamples[] = {id::TXTHEADTITLE, id::TXTHEADDATE,   id::TXTHEADTIME,
                               id::LNHEADLINE,   id::TXTFOOTFIELD1, id::TXTFOOTFIELD2,
                               id::TXTFOOTPGNO,  id::LNFOOTLINE};

class PageSetup : public testing::Test {
 protected:
  PageSetup() {
    printer().select(TestPrinters::a4);
    printer().select(TestPrinters::letter);
    forget();
    settings_.store(Setting::registeredOwner, "Ann Bee");
  }
  ~PageSetup() override {
    form_.unload();
    forget();
  }
  static void forget() {
    library::ProgramVariables& variables = library::modLibrary();
    variables.documentPath = variables.orientation = variables.printerName = variables.paperCode =
        "";
  }

  [[nodiscard]] std::string text(int control) const { return form_.control(control).text(); }
  [[nodiscard]] std::string texts(std::initializer_list<int> controls) const {
    std::string all;
    for (const int control : controls) all += text(control) + "|";
    return all;
  }
  void type(int control, const std::string& text) const { form_.control(control).setText(text); }
  [[nodiscard]] bool accepts() const { return form_.control(id::BTNOK).enabled(); }
  [[nodiscard]] windowing::ComboBox list(int control) const {
    return form_.control<windowing::ComboBox>(control);
  }
  [[nodiscard]] int state(int box) const { return form_.control<windowing::CheckBox>(box).state(); }
  void click(int control) const { form_.control(control).send(BM_CLICK); }
  /// Picks an entry of a list as a user does.
  void choose(int control, int index) const {
    const HWND chosen = list(control).handle();
    list(control).select(index);
    SendMessageA(GetParent(chosen), WM_COMMAND, MAKEWPARAM(control, CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(chosen));
  }
  /// A key as the message loop hands it on.
  static void press(WPARAM key, UINT message = WM_KEYDOWN) {
    MSG pressed{GetFocus(), message, key, 1, 0, {}};
    windowing::dispatchMessage(pressed);
  }
  [[nodiscard]] std::string margins() const {
    return texts({id::UDNLEFT, id::UDNRIGHT, id::UDNTOP, id::UDNBOTTOM});
  }
  /// States of the two boxes that switch a group, and of the eight items.
  [[nodiscard]] std::string ticks() const {
    std::string all;
    for (const int box : masters) all += std::to_string(state(box));
    for (const int box : items) all += std::to_string(state(box));
    return all;
  }
  /// What is stored: the margins and the options, "-" where there is nothing.
  [[nodiscard]] std::string stored() const {
    std::string all;
    const auto add = [&](Setting setting) {
      const std::string text = settings_.stored(setting);
      all += (text == "(none)" ? "-" : text) + "|";
    };
    for (const Setting edge : edges) add(edge);
    for (const library::SettingRow& option : optionRows()) add(option.setting);
    return all;
  }
  [[nodiscard]] static std::string remembered() {
    const library::ProgramVariables& variables = library::modLibrary();
    return variables.orientation + "|" + variables.printerName + "|" + variables.paperCode;
  }
  void reload() {
    form_.unload();
    form_.load();
  }

  std::optional<TestPrinters> printers_{std::in_place};
  ScratchRegistry settings_;
  std::vector<std::string> boxes_;
  windowing::Replaced<decltype(windowing::Seams::messageBox)> box_{
      windowing::seams().messageBox,
      [this](HWND, const std::string& text, const std::string&, UINT) {
        boxes_.push_back(text);
        return IDOK;
      }};
  frmPSetup form_;
};

TEST_F(PageSetup, FirstLoadShowsThePrinterAndChoosesNothing) {
  form_.load();
  EXPECT_EQ(list(id::CBOPRINTERS).count(), 2);
  EXPECT_EQ(list(id::CBOPRINTERS).selectedEntry(), TestPrinters::letter);
  ASSERT_EQ(list(id::CBOPAPER).count(), 22);
  EXPECT_EQ(list(id::CBOPAPER).entry(21), papers[21].name);
  EXPECT_EQ(list(id::CBOPAPER).selected(), 0);
  EXPECT_EQ(state(id::OPTORIENTPORT), BST_CHECKED);
  EXPECT_EQ(margins(), "1.0|1.0|1.0|1.0|");
  EXPECT_EQ(texts({id::LBLWIDTH, id::LBLHEIGHT}), "Width: 8.50|Height: 11.00|");
  EXPECT_EQ(ticks(), "1111111111");
  EXPECT_EQ(texts({id::TXTHEADTITLE, id::TXTFOOTFIELD1, id::TXTFOOTFIELD2}),
            "Tellary Report.|Ann Bee|Untitled|");
  EXPECT_EQ(texts({id::TXTHEADDATE, id::TXTHEADTIME}), "12/12/2002|12:00:00 pm|");
  EXPECT_FALSE(accepts());
  EXPECT_EQ(printer().scaleWidth(), GetDeviceCaps(printer().dc(), HORZRES)) << "in pixels";
  EXPECT_EQ(remembered(), "1||");
  EXPECT_EQ(stored(), "-|-|-|-|-|-|-|-|-|-|-|-|-|-|-|-|-|");
}

TEST_F(PageSetup, ChoicesActOnThePrinterAtOnceAndTheSampleFollows) {
  form_.load();
  const struct {
    int paper;  // entry of the list
    int code;   // that the printer reports then
    int shown;  // entry of the list
    const char* size;
  } cases[] = {{1, 9, 1, "Width: 8.26|Height: 11.69|"},
               {4, 9, 1, "Width: 8.26|Height: 11.69|"},  // unknown to the driver
               {0, 1, 0, "Width: 8.50|Height: 11.00|"}};
  for (const auto& [paper, code, shown, size] : cases) {
    choose(id::CBOPAPER, paper);
    EXPECT_EQ(printer().paperSize(), code) << paper;
    EXPECT_EQ(list(id::CBOPAPER).selected(), shown) << paper;
    EXPECT_EQ(texts({id::LBLWIDTH, id::LBLHEIGHT}), size) << paper;
    EXPECT_TRUE(accepts());
    reload();
    EXPECT_FALSE(accepts());
  }
  click(id::OPTORIENTLAND);
  EXPECT_EQ(printer().orientation(), Orientation::landscape);
  EXPECT_TRUE(accepts());
  EXPECT_EQ(text(id::LBLWIDTH), "Width: 11.00");
  EXPECT_GT(form_.sample()->PICPAPER.width, form_.sample()->PICPAPER.height);
  click(id::OPTORIENTPORT);
  EXPECT_EQ(printer().orientation(), Orientation::portrait);

  reload();
  const Box before = form_.sample()->SHPAREA.value();
  type(id::UDNLEFT, "2.0");
  EXPECT_TRUE(accepts());
  EXPECT_GT(form_.sample()->SHPAREA->left, before.left);
  EXPECT_LT(form_.sample()->SHPAREA->width, before.width);

  reload();
  choose(id::CBOPRINTERS, 0);
  EXPECT_EQ(printer().name(), TestPrinters::a4);
  EXPECT_EQ(text(id::LBLHEIGHT), "Height: 11.69");
  EXPECT_EQ(list(id::CBOPAPER).selected(), 1);
  EXPECT_TRUE(accepts());
}

TEST_F(PageSetup, OKStoresRemembersAndAppliesAgain) {
  library::modLibrary().documentPath = "C:\\Data\\Book.tly";
  form_.load();
  EXPECT_EQ(text(id::TXTFOOTFIELD2), "Book.tly");
  const char* wanted[] = {"0.5", "2", "0.7", ""};
  for (int i = 0; i < 4; ++i) type(marginBoxes[i], wanted[i]);
  choose(id::CBOPAPER, 1);
  click(id::OPTORIENTLAND);
  click(id::CHKHEADER);
  click(id::CHKFOOTPGNO);
  type(id::TXTHEADTITLE, "  two blanks ");
  type(id::TXTFOOTFIELD1, "");
  const std::string longest(254, 'x');
  type(id::TXTFOOTFIELD2, longest);
  RECT place = form_.outerPixels();
  OffsetRect(&place, 31, -27);
  form_.moveOuter(place);
  // Something else happened to the printer meanwhile: OK gives it what was chosen.
  printer().setPaperSize(1);
  printer().setOrientation(Orientation::portrait);
  click(id::BTNOK);
  EXPECT_FALSE(form_.loaded());
  EXPECT_EQ(stored(), "0.5|2.0|0.7|1.0|0|1|1|1|1|  two blanks |1|1|1|1|0||" + longest + "|");
  EXPECT_EQ(remembered(), std::string("2|") + TestPrinters::letter + "|9");
  EXPECT_EQ(printer().paperSize(), 9);
  EXPECT_EQ(printer().orientation(), Orientation::landscape);

  library::modLibrary().documentPath = "C:\\Data\\Other.tly";
  form_.load();
  EXPECT_EQ(form_.outerPixels().left, place.left);
  EXPECT_EQ(form_.outerPixels().top, place.top);
  EXPECT_EQ(margins() + ticks(), "0.5|2.0|0.7|1.0|0111111101");
  EXPECT_EQ(texts({id::TXTHEADTITLE, id::TXTFOOTFIELD1, id::TXTFOOTFIELD2}),
            "  two blanks ||" + longest + "|");
  EXPECT_FALSE(accepts());
  EXPECT_TRUE(boxes_.empty());
}

TEST_F(PageSetup, CancelWritesNothingButChoicesStay) {
  form_.load();
  choose(id::CBOPAPER, 1);
  click(id::BTNOK);  // remembers A4 upright
  const std::string before = stored();
  form_.load();
  choose(id::CBOPRINTERS, 0);
  choose(id::CBOPAPER, 0);
  click(id::OPTORIENTLAND);
  type(id::UDNTOP, "3.0");
  click(id::CHKFOOTER);
  type(id::TXTHEADTITLE, "gone");
  click(id::BTNCANCEL);
  EXPECT_FALSE(form_.loaded());
  EXPECT_EQ(printer().name(), TestPrinters::a4);
  EXPECT_EQ(printer().paperSize(), 1);
  EXPECT_EQ(printer().orientation(), Orientation::landscape);
  EXPECT_EQ(stored(), before);
  EXPECT_EQ(remembered(), std::string("1|") + TestPrinters::letter + "|9");
  // What OK remembered comes back with the next loading, on the printer chosen last.
  form_.load();
  EXPECT_EQ(printer().name(), TestPrinters::a4);
  EXPECT_EQ(printer().paperSize(), 9);
  EXPECT_EQ(state(id::OPTORIENTPORT), BST_CHECKED);
  EXPECT_EQ(ticks(), "1111111111");
}

TEST_F(PageSetup, DefaultsShowAndStoreNothing) {
  for (const Setting edge : edges) settings_.store(edge, "2.5");
  for (const library::SettingRow& option : optionRows())
    settings_.store(option.setting, option.kind == library::SettingKind::tick ? "0" : "mine");
  const std::string before = stored();
  library::modLibrary().documentPath = "C:\\Book.tly";
  form_.load();
  EXPECT_EQ(margins() + ticks(), "2.5|2.5|2.5|2.5|0000000000");
  click(id::BTNDEFAULTS);
  EXPECT_EQ(margins(), "1.0|1.0|1.0|1.0|");
  EXPECT_TRUE(accepts());
  reload();
  form_.selectTab("HEADERFOOTER");
  click(id::BTNDEFAULTSHF);
  EXPECT_EQ(ticks(), "1111111111");
  EXPECT_EQ(texts({id::TXTHEADTITLE, id::TXTFOOTFIELD1, id::TXTFOOTFIELD2}),
            "Tellary Report.|Ann Bee|Book.tly|");
  for (const int item : items) EXPECT_TRUE(form_.control(item).enabled());
  for (const int sample : itemSamples) EXPECT_TRUE(form_.control(sample).visible());
  EXPECT_TRUE(accepts());
  click(id::BTNCANCEL);
  EXPECT_EQ(stored(), before);
}

TEST_F(PageSetup, StoredMarginsOfEveryKind) {
  settings_.store(Setting::windowLeft, "far", "frmPSetup");  // nor is a place needed
  const std::pair<const char*, const char*> cases[] = {
      {"0.75", "0.8"},  {"0,75", "0.8"}, {" .5 ", "0.5"}, {"0", "0.0"},  {"3.8", "3.7"},
      {"1e300", "3.7"}, {"abc", "1.0"},  {"", "1.0"},     {"-2", "1.0"}, {"1,000", "1.0"}};
  for (const auto& [inStore, shown] : cases) {
    settings_.store(edges[0], inStore);
    reload();
    EXPECT_EQ(text(id::UDNLEFT), shown) << inStore;
    EXPECT_FALSE(accepts()) << inStore;
    EXPECT_EQ(stored().substr(0, stored().find('|')), inStore);
  }
  ScratchRegistry::put(settings_.user(), library::keyOf(edges[3]),
                       library::settingRow(edges[3]).name, REG_DWORD, "\2\1\1");
  settings_.store(edges[2], std::string(300, '2'));
  reload();
  EXPECT_EQ(texts({id::UDNTOP, id::UDNBOTTOM}), "1.0|1.0|");
  EXPECT_TRUE(boxes_.empty());
}

TEST_F(PageSetup, StoredStatesOfEveryKind) {
  const std::pair<const char*, int> cases[] = {{"1", 1},    {"0", 0},   {"2", 2},
                                               {"3", 0},    {"-1", 0},  {"", 0},
                                               {"True", 0}, {"1.5", 0}, {"1,0", 1}};
  for (const auto& [inStore, shown] : cases) {
    SCOPED_TRACE(inStore);
    settings_.store(Setting::headerDate, inStore);
    settings_.store(Setting::footer, inStore);
    form_.load();
    EXPECT_EQ(state(id::CHKHEADDATE), shown);
    EXPECT_EQ(state(id::CHKFOOTER), shown);
    EXPECT_FALSE(accepts());
    // Only exactly 1 is on.
    EXPECT_EQ(form_.control(id::TXTHEADDATE).visible(), shown == 1);
    EXPECT_EQ(form_.control(id::CHKFOOTPGNO).enabled(), shown == 1);
    type(id::UDNLEFT, text(id::UDNLEFT) == "2.0" ? "1.0" : "2.0");
    click(id::BTNOK);
    EXPECT_TRUE(stored().ends_with("|" + std::to_string(shown) + "|1|1|1|1|Ann Bee|Untitled|"))
        << stored();
    // No paper was chosen: none is given to the printer.
    EXPECT_EQ(remembered(), std::string("1|") + TestPrinters::letter + "|0");
    EXPECT_EQ(printer().paperSize(), 1);
  }
  // The first click ends the third state for good.
  settings_.store(Setting::headerTitle, "2");
  form_.load();
  for (const int expected : {0, 1, 0}) {
    click(id::CHKHEADTITLE);
    EXPECT_EQ(state(id::CHKHEADTITLE), expected);
  }
}

TEST_F(PageSetup, BoxesLeadTheirItemsAndAllChangesEnableOK) {
  for (std::size_t i = 0; i < std::size(items); ++i) {
    reload();
    form_.control(id::TABSTRIP1).send(WM_KEYDOWN, VK_RIGHT);
    EXPECT_FALSE(form_.control(id::FRAMPAGE).visible());
    click(items[i]);
    EXPECT_TRUE(accepts()) << items[i];
    for (std::size_t k = 0; k < std::size(items); ++k)
      EXPECT_EQ(form_.control(itemSamples[k]).visible(), k != i) << items[i];
    click(items[i]);
    EXPECT_TRUE(form_.control(itemSamples[i]).visible());
  }
  const auto readOnly = [this](int box) {
    return (GetWindowLongA(form_.control(box).handle(), GWL_STYLE) & ES_READONLY) != 0;
  };
  // Colour behind a text that takes no input.
  const auto colour = [this](int box) {
    const HWND text = form_.control(box).handle();
    const values::WindowDc dc(text);
    SendMessageA(GetParent(text), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc.get()),
                 reinterpret_cast<LPARAM>(text));
    return GetBkColor(dc.get());
  };
  for (const int group : {0, 1}) {
    reload();
    click(masters[group]);
    EXPECT_TRUE(accepts());
    EXPECT_EQ(ticks(), group == 0 ? "0111111111" : "1011111111");
    for (int i = 0; i < 8; ++i) EXPECT_EQ(form_.control(items[i]).enabled(), i / 4 != group);
    EXPECT_EQ(readOnly(id::TXTHEADTITLE), group == 0);
    EXPECT_EQ(readOnly(id::TXTFOOTFIELD1), group == 1);
    EXPECT_EQ(readOnly(id::TXTFOOTFIELD2), group == 1);
    EXPECT_EQ(colour(id::TXTHEADDATE), GetSysColor(group == 0 ? COLOR_BTNFACE : COLOR_WINDOW));
    EXPECT_EQ(colour(id::TXTFOOTPGNO), GetSysColor(group == 1 ? COLOR_BTNFACE : COLOR_WINDOW));
    click(masters[group]);
    EXPECT_FALSE(readOnly(id::TXTHEADTITLE) || readOnly(id::TXTFOOTFIELD1));
  }
  for (const int box : {id::TXTHEADTITLE, id::TXTFOOTFIELD1, id::TXTFOOTFIELD2}) {
    reload();
    EXPECT_EQ(form_.control(box).send(EM_GETLIMITTEXT), 254);
    form_.control(box).send(WM_CHAR, 'x');
    EXPECT_TRUE(accepts()) << box;
  }
}

TEST_F(PageSetup, MarginsAreLimitedByThePaperAndTypingGoesOn) {
  form_.load();
  type(id::UDNLEFT, "9");
  type(id::UDNTOP, "9");
  EXPECT_EQ(margins(), "3.7|1.0|4.9|1.0|");
  click(id::OPTORIENTLAND);
  EXPECT_EQ(margins(), "3.7|1.0|3.7|1.0|");
  type(id::UDNLEFT, "9");
  EXPECT_EQ(margins(), "4.9|1.0|3.7|1.0|");
  // A text that is no number yet is left alone while it is typed, and the sample stays.
  const windowing::TextBox box(form_.control(id::UDNRIGHT).handle());
  box.selectAll();
  for (const char typed : {'0', '.'}) box.send(WM_CHAR, static_cast<WPARAM>(typed));
  EXPECT_EQ(box.text(), "0.");
  box.selectAll();
  box.send(WM_CLEAR);
  EXPECT_EQ(box.text(), "");
  EXPECT_TRUE(form_.sample()->SHPAREA);
  click(id::BTNOK);
  EXPECT_TRUE(stored().starts_with("4.9|0.0|3.7|1.0|")) << stored();
}

TEST_F(PageSetup, KeysReachEverything) {
  form_.show();
  form_.selectTab("HEADERFOOTER");
  // Controls that share a letter take turns, and are not clicked.
  for (const auto& [letter, inTurn] :
       {std::pair{'T', std::vector{id::CHKHEADTITLE, id::CHKHEADTIME, id::CHKHEADTITLE}},
        {'D', {id::CHKHEADDATE, id::BTNDEFAULTSHF, id::CHKHEADDATE}}}) {
    form_.control(id::TABSTRIP1).focus();
    for (const int expected : inTurn) {
      press(static_cast<WPARAM>(letter), WM_SYSKEYDOWN);
      EXPECT_EQ(GetDlgCtrlID(GetFocus()), expected) << letter;
    }
  }
  EXPECT_EQ(ticks(), "1111111111");
  form_.control(id::TXTHEADTITLE).focus();
  press('T');
  EXPECT_TRUE(form_.control(id::TXTHEADTITLE).focused()) << "letters of a text";

  press(VK_RETURN);
  EXPECT_TRUE(form_.loaded()) << "nothing to accept";
  type(id::UDNLEFT, "2.0");
  press(VK_RETURN);
  EXPECT_FALSE(form_.loaded());
  form_.show();
  type(id::UDNLEFT, "3.0");
  press(VK_ESCAPE);
  EXPECT_FALSE(form_.loaded());
  EXPECT_TRUE(stored().starts_with("2.0|")) << stored();
}

TEST_F(PageSetup, OKStoresNothingWhereItFails) {
  form_.load();
  const std::string before = stored();
  form_.unload();
  library::modLibrary().paperCode = "1e99";
  form_.load();
  type(id::UDNLEFT, "2.0");
  click(id::BTNOK);
  EXPECT_EQ(boxes_.size(), 1U);
  EXPECT_TRUE(form_.loaded());
  EXPECT_EQ(stored(), before);
  click(id::BTNCANCEL);
  EXPECT_FALSE(form_.loaded());
}

TEST_F(PageSetup, APrinterThatCannotBeAskedForAnythingIsNamedAndTheFormCanBeClosed) {
  TestPrinters::addBroken();
  // As in a program that has just started: no printer was asked yet.
  std::destroy_at(&printer());
  std::construct_at(&printer());
  form_.load();
  ASSERT_EQ(list(id::CBOPRINTERS).count(), 3);
  EXPECT_EQ(list(id::CBOPRINTERS).selectedEntry(), TestPrinters::broken);
  type(id::UDNLEFT, "2.0");
  click(id::BTNOK);
  EXPECT_FALSE(form_.loaded());
  EXPECT_TRUE(boxes_.empty());
  EXPECT_EQ(library::modLibrary().printerName, TestPrinters::broken);
}

TEST_F(PageSetup, TypingGoesOnWhereThePrinterHasNoFigures) {
  printers_.reset();
  form_.show();
  ASSERT_FALSE(form_.sample());
  const windowing::TextBox left(form_.control(id::UDNLEFT).handle());
  left.focus();
  left.selectAll();
  for (const char typed : {'2', '.', '5'}) left.send(WM_CHAR, static_cast<WPARAM>(typed));
  EXPECT_EQ(left.text(), "2.5");
  click(id::BTNOK);
  EXPECT_TRUE(stored().starts_with("2.5|")) << stored();
}

TEST_F(PageSetup, APrinterThatFailsIsSkippedButByItsChoice) {
  form_.load();
  const SamplePage before = form_.sample().value();
  printers_.reset();
  choose(id::CBOPAPER, 1);
  // What could not be told to the device is not what it has.
  EXPECT_EQ(list(id::CBOPAPER).selected(), 0);
  EXPECT_EQ(printer().paperSize(), DMPAPER_LETTER);
  click(id::OPTORIENTLAND);
  EXPECT_EQ(printer().orientation(), Orientation::portrait);
  type(id::UDNLEFT, "2.0");
  EXPECT_TRUE(boxes_.empty());
  EXPECT_EQ(form_.sample()->PICPAPER.width, before.PICPAPER.width);
  choose(id::CBOPRINTERS, 0);
  ASSERT_EQ(boxes_.size(), 1U);
  EXPECT_NE(boxes_[0].find("482"), std::string::npos) << boxes_[0];
  EXPECT_EQ(list(id::CBOPRINTERS).selected(), 1);
}

}  // namespace
}  // namespace pagesetup
