#include "pagesetup/frmPSetup_win.h"

#include <gtest/gtest.h>

#include <commctrl.h>

#include <optional>
#include <string>
#include <vector>

#include "library/identifiers.h"
#include "library/modLibrary_win.h"
#include "pagesetup/paper_table.h"
#include "pagesetup/stored_options_win.h"
#include "tests/support/printers_win.h"
#include "tests/support/scratch_registry_win.h"
#include "windowing/printer_win.h"
#include "windowing/seams_win.h"

namespace pagesetup {
namespace {

using test_support::ScratchRegistry;
using test_support::TestPrinters;
using windowing::Orientation;
using windowing::printer;
namespace id = library::id::psetup;

constexpr char marginKey[] = "SOFTWARE\\Zandor Software Development\\GLOBAL\\frmPPrev\\Items";
constexpr char ownKey[] = "SOFTWARE\\Zandor Software Development\\Tellary";
constexpr char ownerKey[] = "SOFTWARE\\MICROSOFT\\WINDOWS\\CURRENTVERSION";
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
    windowing::seams().messageBox = [this](HWND, const std::string& text, const std::string&,
                                           UINT) {
      boxes_.push_back(text);
      return IDOK;
    };
    ScratchRegistry::putText(settings_.machine(), ownerKey, "RegisteredOwner", "Ann Bee");
  }
  ~PageSetup() override {
    form_.unload();
    forget();
    const auto root = windowing::seams().settingsRoot;
    windowing::seams() = real_;
    windowing::seams().settingsRoot = root;
  }
  static void forget() {
    library::ProgramVariables& variables = library::modLibrary();
    variables.documentPath = variables.orientation = variables.printerName = variables.paperCode =
        "";
  }

  [[nodiscard]] std::string text(int control) const { return form_.control(control).text(); }
  [[nodiscard]] bool accepts() const { return form_.control(id::BTNOK).enabled(); }
  [[nodiscard]] windowing::ComboBox list(int control) const {
    return windowing::ComboBox(form_.control(control).handle());
  }
  [[nodiscard]] int state(int box) const {
    return windowing::CheckBox(form_.control(box).handle()).state();
  }
  void click(int control) const { form_.control(control).send(BM_CLICK); }
  /// Picks an entry of a list as a user does.
  void choose(int control, int index) const {
    list(control).select(index);
    SendMessageA(GetParent(list(control).handle()), WM_COMMAND, MAKEWPARAM(control, CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(list(control).handle()));
  }
  /// A key as the message loop hands it on.
  static void key(HWND at, WPARAM key, UINT message = WM_KEYDOWN) {
    MSG pressed{at, message, key, 1, 0, {}};
    windowing::dispatchMessage(pressed);
  }
  [[nodiscard]] std::string margins() const {
    std::string all;
    for (const int box : marginBoxes) all += text(box) + "|";
    return all;
  }
  [[nodiscard]] std::string storedMargins() const {
    std::string all;
    for (const char* edge : {"0", "1", "2", "3"})
      all +=
          ScratchRegistry::text(settings_.user(), marginKey, std::string("Page Margin ") + edge) +
          "|";
    return all;
  }
  void storeMargin(const char* edge, const std::string& inches) const {
    ScratchRegistry::putText(settings_.user(), marginKey, std::string("Page Margin ") + edge,
                             inches);
  }
  void storeOption(Option option, const std::string& value) const {
    ScratchRegistry::putText(settings_.user(), keyOf(storedOption(option)),
                             storedOption(option).valueName, value);
  }
  [[nodiscard]] std::string storedOptionTexts() const {
    std::string all;
    for (const StoredOption& stored : storedOptions)
      all += ScratchRegistry::text(settings_.user(), ownKey + std::string(stored.section),
                                   stored.valueName) +
             "|";
    return all;
  }
  [[nodiscard]] std::string ticks() const {
    std::string all;
    for (const int box : masters) all += std::to_string(state(box));
    for (const int box : items) all += std::to_string(state(box));
    return all;
  }
  [[nodiscard]] std::string remembered() const {
    const library::ProgramVariables& variables = library::modLibrary();
    return variables.orientation + "|" + variables.printerName + "|" + variables.paperCode;
  }
  void reload() {
    form_.unload();
    form_.load();
  }

  std::optional<TestPrinters> printers_{std::in_place};
  ScratchRegistry settings_;
  windowing::Seams real_ = windowing::seams();
  std::vector<std::string> boxes_;
  frmPSetup form_;
};

const std::string nothingStored = "(none)|(none)|(none)|(none)|";
std::string noOptions() {
  std::string all;
  for (std::size_t i = 0; i < optionCount; ++i) all += "(none)|";
  return all;
}

TEST_F(PageSetup, FirstLoadShowsThePrinterAndChoosesNothing) {
  form_.load();
  EXPECT_EQ(list(id::CBOPRINTERS).count(), 2);
  EXPECT_EQ(list(id::CBOPRINTERS).entry(list(id::CBOPRINTERS).selected()), TestPrinters::letter);
  ASSERT_EQ(list(id::CBOPAPER).count(), 22);
  for (int i = 0; i < 22; ++i)
    EXPECT_EQ(list(id::CBOPAPER).entry(i), papers[static_cast<std::size_t>(i)].name);
  EXPECT_EQ(list(id::CBOPAPER).selected(), 0);
  EXPECT_EQ(state(id::OPTORIENTPORT), BST_CHECKED);
  EXPECT_EQ(margins(), "1.0|1.0|1.0|1.0|");
  EXPECT_EQ(text(id::LBLWIDTH) + text(id::LBLHEIGHT), "Width: 8.50Height: 11.00");
  EXPECT_EQ(ticks(), "1111111111");
  EXPECT_EQ(text(id::TXTHEADTITLE), "Tellary Report.");
  EXPECT_EQ(text(id::TXTFOOTFIELD1), "Ann Bee");
  EXPECT_EQ(text(id::TXTFOOTFIELD2), "Untitled");
  EXPECT_EQ(text(id::TXTHEADDATE) + text(id::TXTHEADTIME), "12/12/200212:00:00 pm");
  EXPECT_FALSE(accepts());
  EXPECT_EQ(printer().scaleMode(), windowing::PrinterScale::pixels);
  EXPECT_EQ(remembered(), "1||");
  EXPECT_EQ(storedMargins() + storedOptionTexts(), nothingStored + noOptions());
}

TEST_F(PageSetup, ChoicesActOnThePrinterAtOnceAndTheSampleFollows) {
  form_.load();
  struct Case {
    int paper;     // entry of the list
    int code;      // that the printer reports then
    int selected;  // what the list shows
    const char* size;
  };
  // Papers that the driver does not know give way to what it reports.
  for (const Case& c : {Case{1, 9, 1, "Width: 8.26Height: 11.69"},
                        {4, 9, 1, "Width: 8.26Height: 11.69"},
                        {1, 9, 1, "Width: 8.26Height: 11.69"},
                        {0, 1, 0, "Width: 8.50Height: 11.00"}}) {
    choose(id::CBOPAPER, c.paper);
    EXPECT_EQ(printer().paperSize(), c.code) << c.paper;
    EXPECT_EQ(list(id::CBOPAPER).selected(), c.selected) << c.paper;
    EXPECT_EQ(text(id::LBLWIDTH) + text(id::LBLHEIGHT), c.size) << c.paper;
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
  form_.control(id::UDNLEFT).setText("2.0");
  EXPECT_TRUE(accepts());
  EXPECT_GT(form_.sample()->SHPAREA->left, before.left);
  EXPECT_LT(form_.sample()->SHPAREA->width, before.width);

  reload();
  choose(id::CBOPRINTERS, 0);
  EXPECT_EQ(printer().name(), TestPrinters::a4);
  EXPECT_EQ(text(id::LBLHEIGHT), "Height: 11.69");
  EXPECT_EQ(list(id::CBOPAPER).selected(), 1);
  EXPECT_TRUE(accepts());
  char standard[80] = "";
  DWORD size = sizeof standard;
  GetDefaultPrinterA(standard, &size);
  EXPECT_STREQ(standard, TestPrinters::letter);
}

TEST_F(PageSetup, OKStoresRemembersAndAppliesAgain) {
  library::modLibrary().documentPath = "C:\\Data\\Book.tly";
  form_.load();
  EXPECT_EQ(text(id::TXTFOOTFIELD2), "Book.tly");
  const char* wanted[] = {"0.5", "2", "0.7", ""};
  for (int i = 0; i < 4; ++i) form_.control(marginBoxes[i]).setText(wanted[i]);
  choose(id::CBOPAPER, 1);
  click(id::OPTORIENTLAND);
  click(id::CHKHEADER);
  click(id::CHKFOOTPGNO);
  form_.control(id::TXTHEADTITLE).setText("  two blanks ");
  form_.control(id::TXTFOOTFIELD1).setText("");
  const std::string longest(254, 'x');
  form_.control(id::TXTFOOTFIELD2).setText(longest);
  // Something else happened to the printer meanwhile: OK gives it what was chosen.
  printer().setPaperSize(1);
  printer().setOrientation(Orientation::portrait);
  click(id::BTNOK);
  EXPECT_FALSE(form_.loaded());
  EXPECT_EQ(storedMargins(), "0.5|2.0|0.7|1.0|");
  EXPECT_EQ(storedOptionTexts(), "0|1|1|1|1|  two blanks |1|1|1|1|0||" + longest + "|");
  EXPECT_EQ(remembered(), std::string("2|") + TestPrinters::letter + "|9");
  EXPECT_EQ(printer().paperSize(), 9);
  EXPECT_EQ(printer().orientation(), Orientation::landscape);

  library::modLibrary().documentPath = "C:\\Data\\Other.tly";
  form_.load();
  EXPECT_EQ(margins(), "0.5|2.0|0.7|1.0|");
  EXPECT_EQ(ticks(), "0111111101");
  EXPECT_EQ(text(id::TXTHEADTITLE) + "|" + text(id::TXTFOOTFIELD1), "  two blanks |");
  EXPECT_EQ(text(id::TXTFOOTFIELD2), longest);
  EXPECT_FALSE(accepts());
  EXPECT_TRUE(boxes_.empty());
}

TEST_F(PageSetup, CancelWritesNothingButChoicesStay) {
  form_.load();
  choose(id::CBOPAPER, 1);
  click(id::BTNOK);  // remembers A4 upright
  const std::string stored = storedMargins() + storedOptionTexts();
  form_.load();
  choose(id::CBOPRINTERS, 0);
  choose(id::CBOPAPER, 0);
  click(id::OPTORIENTLAND);
  form_.control(id::UDNTOP).setText("3.0");
  click(id::CHKFOOTER);
  form_.control(id::TXTHEADTITLE).setText("gone");
  click(id::BTNCANCEL);
  EXPECT_FALSE(form_.loaded());
  EXPECT_EQ(printer().name(), TestPrinters::a4);
  EXPECT_EQ(printer().paperSize(), 1);
  EXPECT_EQ(printer().orientation(), Orientation::landscape);
  EXPECT_EQ(storedMargins() + storedOptionTexts(), stored);
  EXPECT_EQ(remembered(), std::string("1|") + TestPrinters::letter + "|9");
  // What OK remembered comes back with the next loading, on the printer chosen last.
  form_.load();
  EXPECT_EQ(printer().name(), TestPrinters::a4);
  EXPECT_EQ(printer().paperSize(), 9);
  EXPECT_EQ(printer().orientation(), Orientation::portrait);
  EXPECT_EQ(state(id::OPTORIENTPORT), BST_CHECKED);
  EXPECT_EQ(ticks(), "1111111111");
}

TEST_F(PageSetup, OKWithoutAPaperChosenLeavesThePaper) {
  form_.load();
  form_.control(id::UDNLEFT).setText("2.0");
  for (int round = 0; round < 2; ++round) {
    click(id::BTNOK);
    EXPECT_EQ(printer().paperSize(), 1);
    EXPECT_TRUE(library::modLibrary().paperCode == "0") << library::modLibrary().paperCode;
    form_.load();
    EXPECT_EQ(list(id::CBOPAPER).selected(), 0);
    form_.control(id::UDNLEFT).setText("3.0");
  }
  EXPECT_TRUE(boxes_.empty());
}

TEST_F(PageSetup, DefaultsShowAndStoreNothing) {
  for (const char* edge : {"0", "1", "2", "3"}) storeMargin(edge, "2.5");
  for (const StoredOption& stored : storedOptions)
    storeOption(stored.option, stored.otherwise == Default::on ? "0" : "mine");
  const std::string before = storedMargins() + storedOptionTexts();
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
  EXPECT_EQ(text(id::TXTHEADTITLE) + text(id::TXTFOOTFIELD1) + text(id::TXTFOOTFIELD2),
            "Tellary Report.Ann BeeBook.tly");
  for (const int item : items) EXPECT_TRUE(form_.control(item).enabled());
  for (const int sample : itemSamples) EXPECT_TRUE(form_.control(sample).visible());
  EXPECT_TRUE(accepts());
  click(id::BTNCANCEL);
  EXPECT_EQ(storedMargins() + storedOptionTexts(), before);
}

TEST_F(PageSetup, StoredMarginsOfEveryKind) {
  const struct {
    const char* stored;
    const char* shown;
  } cases[] = {{"0.75", "0.8"}, {"0.25", "0.3"}, {" .5 ", "0.5"},  {"0", "0.0"},
               {"3.7", "3.7"},  {"3.8", "3.7"},  {"1e300", "3.7"}, {"abc", "1.0"},
               {"", "1.0"},     {"-2", "1.0"},   {"1,000", "1.0"}};
  for (const auto& [stored, shown] : cases) {
    storeMargin("0", stored);
    reload();
    EXPECT_EQ(text(id::UDNLEFT), shown) << stored;
    EXPECT_FALSE(accepts()) << stored;
    EXPECT_EQ(ScratchRegistry::text(settings_.user(), marginKey, "Page Margin 0"), stored);
  }
  ScratchRegistry::put(settings_.user(), marginKey, "Page Margin 3", REG_DWORD, "\2\1\1");
  storeMargin("2", std::string(300, '2'));
  reload();
  EXPECT_EQ(text(id::UDNBOTTOM) + text(id::UDNTOP), "1.01.0");
  EXPECT_TRUE(boxes_.empty());
}

TEST_F(PageSetup, StoredStatesOfEveryKind) {
  const struct {
    const char* stored;
    int shown;
    const char* writtenBack;
  } cases[] = {{"1", 1, "1"},   {"0", 0, "0"}, {"2", 2, "2"},    {"3", 0, "0"},  {"-1", 0, "0"},
               {"abc", 0, "0"}, {"", 0, "0"},  {"True", 0, "0"}, {"1.5", 0, "0"}};
  for (const auto& [stored, shown, writtenBack] : cases)
    for (const auto& [option, box] :
         {std::pair{Option::date, id::CHKHEADDATE}, {Option::footer, id::CHKFOOTER}}) {
      storeOption(option, stored);
      form_.load();
      EXPECT_EQ(state(box), shown) << stored;
      EXPECT_FALSE(accepts()) << stored;
      // Only exactly 1 is on.
      EXPECT_EQ(form_.control(box == id::CHKFOOTER ? id::CHKFOOTPGNO : id::CHKHEADDATE).enabled(),
                box != id::CHKFOOTER || shown == 1);
      EXPECT_EQ(form_.control(id::TXTHEADDATE).visible(), state(id::CHKHEADDATE) == 1) << stored;
      form_.control(id::UDNLEFT).setText(text(id::UDNLEFT) == "2.0" ? "1.0" : "2.0");
      click(id::BTNOK);
      EXPECT_EQ(ScratchRegistry::text(settings_.user(), keyOf(storedOption(option)),
                                      storedOption(option).valueName),
                writtenBack);
      storeOption(option, "1");
    }
  storeOption(Option::title, "2");
  form_.load();
  const int afterClicks[] = {0, 1, 0, 1};
  for (const int expected : afterClicks) {
    click(id::CHKHEADTITLE);
    EXPECT_EQ(state(id::CHKHEADTITLE), expected);
  }
}

TEST_F(PageSetup, BoxesLeadTheirItemsAndAllChangesEnableOK) {
  form_.load();
  form_.selectTab("HEADERFOOTER");
  for (std::size_t i = 0; i < std::size(items); ++i) {
    reload();
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
  const auto brush = [this](int box, UINT message) {
    const windowing::WindowDc dc(form_.control(box).handle());
    return SendMessageA(GetParent(form_.control(box).handle()), message,
                        reinterpret_cast<WPARAM>(dc.get()),
                        reinterpret_cast<LPARAM>(form_.control(box).handle()));
  };
  const auto window = reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_WINDOW));
  const auto face = reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_BTNFACE));
  for (const int group : {0, 1}) {
    reload();
    const int other = 1 - group;
    EXPECT_EQ(brush(group == 0 ? id::TXTHEADDATE : id::TXTFOOTPGNO, WM_CTLCOLORSTATIC), window);
    click(masters[group]);
    EXPECT_TRUE(accepts());
    EXPECT_EQ(ticks(), group == 0 ? "0111111111" : "1011111111");
    for (int i = 0; i < 4; ++i) {
      EXPECT_FALSE(form_.control(items[group * 4 + i]).enabled());
      EXPECT_TRUE(form_.control(items[other * 4 + i]).enabled());
    }
    EXPECT_EQ(readOnly(id::TXTHEADTITLE), group == 0);
    EXPECT_EQ(readOnly(id::TXTFOOTFIELD1), group == 1);
    EXPECT_EQ(readOnly(id::TXTFOOTFIELD2), group == 1);
    EXPECT_EQ(brush(id::TXTHEADTITLE, WM_CTLCOLORSTATIC), group == 0 ? face : window);
    EXPECT_EQ(brush(id::TXTFOOTPGNO, WM_CTLCOLORSTATIC), group == 1 ? face : window);
    click(masters[group]);
    EXPECT_EQ(readOnly(id::TXTHEADTITLE) || readOnly(id::TXTFOOTFIELD1), false);
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
  form_.control(id::UDNLEFT).setText("9");
  form_.control(id::UDNTOP).setText("9");
  EXPECT_EQ(margins(), "3.7|1.0|4.9|1.0|");
  click(id::OPTORIENTLAND);
  EXPECT_EQ(margins(), "3.7|1.0|3.7|1.0|");
  form_.control(id::UDNLEFT).setText("9");
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
  EXPECT_EQ(storedMargins(), "4.9|0.0|3.7|1.0|");
}

TEST_F(PageSetup, KeysReachEverything) {
  form_.show();
  form_.selectTab("HEADERFOOTER");
  const struct {
    WPARAM letter;
    std::vector<int> inTurn;
  } cases[] = {{'T', {id::CHKHEADTITLE, id::CHKHEADTIME, id::CHKHEADTITLE}},
               {'D', {id::CHKHEADDATE, id::BTNDEFAULTSHF, id::CHKHEADDATE}},
               {'F', {id::CHKFOOTER, id::CHKFOOTFIELD1, id::CHKFOOTFIELD2, id::CHKFOOTER}}};
  for (const auto& [letter, inTurn] : cases) {
    form_.control(id::TABSTRIP1).focus();
    for (const int expected : inTurn) {
      key(GetFocus(), letter, WM_SYSKEYDOWN);
      EXPECT_EQ(GetDlgCtrlID(GetFocus()), expected) << letter;
    }
  }
  EXPECT_EQ(ticks(), "1111111111");
  // In a text the letters are text.
  form_.control(id::TXTHEADTITLE).focus();
  key(GetFocus(), 'T');
  EXPECT_TRUE(form_.control(id::TXTHEADTITLE).focused());

  form_.control(id::TABSTRIP1).focus();
  key(GetFocus(), VK_RETURN);
  EXPECT_TRUE(form_.loaded());
  form_.control(id::UDNLEFT).setText("2.0");
  key(GetFocus(), VK_RETURN);
  EXPECT_FALSE(form_.loaded());
  EXPECT_EQ(storedMargins(), "2.0|1.0|1.0|1.0|");
  form_.show();
  form_.control(id::UDNLEFT).setText("3.0");
  key(GetFocus(), VK_ESCAPE);
  EXPECT_FALSE(form_.loaded());
  EXPECT_EQ(storedMargins(), "2.0|1.0|1.0|1.0|");
}

TEST_F(PageSetup, TabsShowTheirPages) {
  form_.load();
  const auto shown = [this] {
    return std::string(form_.control(id::FRAMPAGE).visible() ? "page " : "") +
           (form_.control(id::FRAMHEADERFOOTER).visible() ? "headerfooter " : "") +
           std::to_string(form_.control(id::TABSTRIP1).send(TCM_GETCURSEL));
  };
  EXPECT_EQ(shown(), "page 0");
  form_.selectTab("HEADERFOOTER");
  EXPECT_EQ(shown(), "headerfooter 1");
  form_.selectTab("OTHER");
  EXPECT_EQ(shown(), "headerfooter 1");
  form_.selectTab("PAGE");
  EXPECT_EQ(shown(), "page 0");
  const windowing::Control strip = form_.control(id::TABSTRIP1);
  strip.send(WM_KEYDOWN, VK_RIGHT);
  EXPECT_EQ(shown(), "headerfooter 1");
}

TEST_F(PageSetup, PlaceIsKept) {
  form_.load();
  RECT place = form_.outerPixels();
  OffsetRect(&place, 31, -27);
  form_.moveOuter(place);
  reload();
  EXPECT_EQ(form_.outerPixels().left, place.left);
  EXPECT_EQ(form_.outerPixels().top, place.top);
  form_.unload();
  const std::string key = std::string(ownKey) + "\\frmPSetup\\Window";
  EXPECT_NE(ScratchRegistry::text(settings_.user(), key, "Left"), "(none)");
  ScratchRegistry::putText(settings_.user(), key, "Left", "far");
  form_.load();
  EXPECT_EQ(margins(), "1.0|1.0|1.0|1.0|");
}

TEST_F(PageSetup, APrinterThatFailsIsSkippedButByItsChoiceAndOK) {
  form_.load();
  const SamplePage before = form_.sample().value();
  printers_.reset();
  choose(id::CBOPAPER, 1);
  // What could not be told to the device is not what it has.
  EXPECT_EQ(list(id::CBOPAPER).selected(), 0);
  EXPECT_EQ(windowing::printer().paperSize(), DMPAPER_LETTER);
  click(id::OPTORIENTLAND);
  EXPECT_EQ(windowing::printer().orientation(), windowing::Orientation::portrait);
  form_.control(id::UDNLEFT).setText("2.0");
  EXPECT_TRUE(boxes_.empty());
  EXPECT_EQ(form_.sample()->PICPAPER.width, before.PICPAPER.width);
  choose(id::CBOPRINTERS, 0);
  ASSERT_EQ(boxes_.size(), 1U);
  EXPECT_NE(boxes_[0].find("482"), std::string::npos) << boxes_[0];
  EXPECT_EQ(list(id::CBOPRINTERS).selected(), 1);
  form_.unload();
  form_.load();
  EXPECT_EQ(list(id::CBOPRINTERS).count(), 0);
  EXPECT_EQ(margins(), "1.0|1.0|1.0|1.0|");
  EXPECT_EQ(text(id::TXTHEADTITLE), "Tellary Report.");
  EXPECT_EQ(boxes_.size(), 1U);
}

}  // namespace
}  // namespace pagesetup
