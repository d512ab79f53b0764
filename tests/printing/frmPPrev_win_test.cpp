#include "printing/frmPPrev_win.h"

#include <gtest/gtest.h>

#include <functional>

#include "library/modLibrary_win.h"
#include "paper/printer_win.h"
#include "printing/clsPrinting_win.h"
#include "printing/frmPPrev_ids.h"
#include "tests/support/print_job_win.h"
#include "tests/support/printers_win.h"
#include "tests/support/recording_win.h"
#include "tests/support/scratch_registry_win.h"
#include "values/runtime_error.h"
#include "windowing/application_win.h"
#include "windowing/screen_win.h"
#include "windowing/seams_win.h"

namespace printing {
namespace {

using library::Setting;
using paper::printer;
using test_support::JobPage;
using test_support::lines;
using test_support::ScratchRegistry;
using test_support::TestPrinters;
using windowing::ComboBox;
using windowing::screenPixels;
using windowing::screenTwips;
// Runs once in the message loop that shows the preview, and closes the preview after it.
std::function<void()> duringPreview;

void CALLBACK inPreview(HWND, UINT, UINT_PTR timer, DWORD) {
  // Drawing on a printer may look for messages, too.
  if (!IsWindowVisible(thePreview().handle())) return;
  KillTimer(nullptr, timer);
  const auto run = std::exchange(duringPreview, {});
  run();
  thePreview().runCommand(id::CLOSE);
  EXPECT_FALSE(thePreview().loaded());
  static_cast<void>(thePreview().unload());
}

class Preview : public testing::Test {
 protected:
  Preview() {
    window_ = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr,
                              nullptr);
    RTF1_.create(window_, 1, {0, 0, 10, 10});
    RTF1_.setPlain(lines(150));
    printer().select(TestPrinters::a4);
    printer().select(TestPrinters::letter);
    static_cast<void>(thePreview().unload());
  }
  ~Preview() override {
    static_cast<void>(thePreview().unload());
    DestroyWindow(window_);
  }

  // Shows the preview as the main window's command does and runs `test` meanwhile.
  void preview(std::function<void()> test) {
    bool ran = false;
    duringPreview = [&] {
      ran = true;
      test();
    };
    SetTimer(nullptr, 0, 1, inPreview);
    PRINTING().setReport(RTF1_);
    PRINTING().PRINTPREVIEW();
    EXPECT_TRUE(ran);
  }

  static std::string shown(const ComboBox& list) { return list.selectedEntry(); }
  static std::string page() { return shown(thePreview().CBOPGNO()); }
  static std::string zoom() { return shown(thePreview().CBOPGZOOM()); }
  // Chooses as the user does: the selection, then the notice of it.
  static void choose(const ComboBox& list, int index) {
    list.focus();
    list.select(index);
    const HWND handle = list.handle();
    for (const int notice : {CBN_SELCHANGE, CBN_CLOSEUP})
      SendMessageA(GetParent(handle), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(handle), notice),
                   reinterpret_cast<LPARAM>(handle));
    EXPECT_FALSE(list.focused()) << "the page takes the keys";
  }
  static std::string firstLineOnShow() {
    const auto drawing = test_support::drawingOf(thePreview().PICSTDPAGE().recording());
    for (const auto& text : drawing.texts)
      if (text.text.rfind("Line ", 0) == 0) return text.text;
    return "";
  }
  static std::string available(std::initializer_list<int> commands) {
    std::string states;
    for (const int command : commands) {
      states += thePreview().commandEnabled(command) ? '1' : '0';
      const windowing::ToolBar bar(thePreview().control(id::TBARMAIN).handle());
      EXPECT_EQ(bar.buttonEnabled(command), thePreview().commandEnabled(command)) << command;
    }
    return states;
  }
  static std::string paging() { return available({id::FIRST, id::PREVIOUS, id::NEXT, id::LAST}); }
  static void press(WPARAM key) {
    MSG message{thePreview().control(id::PICWINDOW).handle(), WM_KEYDOWN, key, 0, 0, {}};
    windowing::dispatchMessage(message);
  }

  TestPrinters printers_;
  ScratchRegistry settings_;
  HWND window_ = nullptr;
  paper::RichTextBox RTF1_{"RTF1"};
};

TEST_F(Preview, OpensAtTheFirstPageAndHalfSize) {
  preview([&] {
    frmPPrev& form = thePreview();
    EXPECT_EQ(form.CBOPGNO().count(), 3);
    EXPECT_EQ(form.CBOPGZOOM().count(), 8);
    EXPECT_EQ(page() + "/" + zoom(), "1/50 %");
    EXPECT_TRUE(form.commandChecked(id::ZOOM50));
    EXPECT_EQ(form.control(id::LBLPAPER).text(), "8.50 x 11.00 inches");
    EXPECT_TRUE(form.control(id::PICWINDOW).focused());
    EXPECT_FALSE(IsWindowVisible(form.RTF3().handle()));
    EXPECT_FALSE(IsWindowVisible(form.RTF2().handle()));
    EXPECT_EQ(GetWindowLongA(form.handle(), GWL_STYLE) & WS_MINIMIZEBOX, 0);
    int shown = 0;
    const windowing::Replaced about(library::modLibrary().showAbout, [&] { ++shown; });
    form.runCommand(id::ABOUT);
    EXPECT_EQ(shown, 1);
    const RECT onScreen = form.PICWINDOW().pagePixels();
    EXPECT_EQ(onScreen.right - onScreen.left, screenPixels(6120));
    EXPECT_EQ(onScreen.bottom - onScreen.top, screenPixels(7920));
    EXPECT_FALSE(IsWindowEnabled(GetDlgItem(form.PICWINDOW().handle(), id::SCRHBAR)));
    EXPECT_TRUE(IsWindowEnabled(GetDlgItem(form.PICWINDOW().handle(), id::SCRVBAR)));
  });
}

TEST_F(Preview, TurnsPages) {
  preview([&] {
    struct Step {
      std::function<void()> turn;
      const char* page;
      const char* available;
    };
    const auto run = [](int command) { return [command] { thePreview().runCommand(command); }; };
    const auto key = [](WPARAM code) { return [code] { press(code); }; };
    const auto list = [](int index) { return [index] { choose(thePreview().CBOPGNO(), index); }; };
    const Step steps[] = {
        {run(id::FIRST), "1", "0011"}, {run(id::PREVIOUS), "1", "0011"},
        {run(id::NEXT), "2", "1111"},  {run(id::NEXT), "3", "1100"},
        {run(id::NEXT), "3", "1100"},  {run(id::PREVIOUS), "2", "1111"},
        {run(id::LAST), "3", "1100"},  {run(id::FIRST), "1", "0011"},
        {key(VK_END), "3", "1100"},    {key(VK_PRIOR), "2", "1111"},
        {key(VK_NEXT), "3", "1100"},   {key(VK_HOME), "1", "0011"},
        {list(1), "2", "1111"},        {list(2), "3", "1100"},
    };
    std::vector<std::string> firstLines(4);
    for (const Step& step : steps) {
      step.turn();
      EXPECT_EQ(page() + paging(), std::string(step.page) + step.available);
      EXPECT_EQ(PRINTING().currentPage(), std::stoi(step.page));
      std::string& known = firstLines[static_cast<std::size_t>(std::stoi(step.page))];
      if (known.empty()) known = firstLineOnShow();
      EXPECT_EQ(firstLineOnShow(), known) << "one page, whichever way one came to it";
    }
    EXPECT_EQ(firstLines[1], "Line 1");
    EXPECT_NE(firstLines[2], firstLines[1]);
    EXPECT_NE(firstLines[3], firstLines[2]);
  });
  for (const char* text : {"Line on one page", ""}) {
    RTF1_.setPlain(text);
    preview([&] {
      EXPECT_EQ(page() + paging(), "10000");
      EXPECT_EQ(firstLineOnShow(), text);
    });
  }
}

TEST_F(Preview, ZoomsByMenuListAndSteps) {
  struct Row {
    const char* text;
    int command;
    const char* stepping;  // in and out
  };
  const Row rows[] = {{"25 %", id::ZOOM25, "10"},       {"50 %", id::ZOOM50, "11"},
                      {"75 %", id::ZOOM75, "11"},       {"100 %", id::ZOOM100, "11"},
                      {"150 %", id::ZOOM150, "11"},     {"200 %", id::ZOOM200, "01"},
                      {"Page Width", id::ZOOMPW, "00"}, {"Whole Page", id::ZOOMWP, "00"}};
  preview([&] {
    frmPPrev& form = thePreview();
    const auto expectRow = [&](const Row& row) {
      EXPECT_EQ(zoom(), row.text);
      EXPECT_EQ(available({id::ZOOMIN, id::ZOOMOUT}), row.stepping) << row.text;
      for (const Row& other : rows)
        EXPECT_EQ(form.commandChecked(other.command), other.command == row.command) << row.text;
      const double percent = std::strtod(row.text, nullptr);
      const double width = form.PICWINDOW().pagePlace().across.length;
      if (percent != 0) {
        EXPECT_NEAR(width, 12240 * percent / 100, 0.01);
      }
    };
    for (std::size_t i = 0; i < std::size(rows); ++i) {
      form.runCommand(rows[i].command);
      expectRow(rows[i]);
      choose(form.CBOPGZOOM(), static_cast<int>((i + 3) % std::size(rows)));
      expectRow(rows[(i + 3) % std::size(rows)]);
    }
    form.runCommand(id::ZOOM75);
    for (const auto& [command, shown] : {std::pair{id::ZOOMIN, "100 %"}, {id::ZOOMOUT, "75 %"}}) {
      form.runCommand(command);
      EXPECT_EQ(zoom(), shown);
    }
    // By the buttons of the mouse, on the page and only there.
    form.runCommand(id::ZOOM50);
    const HWND view = form.control(id::PICWINDOW).handle();
    const auto click = [&](UINT button, int x, int y) {
      SendMessageA(view, button, 0, MAKELPARAM(x, y));
      return zoom();
    };
    const RECT at = form.PICWINDOW().pagePixels();
    EXPECT_EQ(click(WM_LBUTTONDOWN, at.left - 2, at.top + 5), "50 %");
    EXPECT_EQ(click(WM_LBUTTONDOWN, at.left + 5, at.top + 5), "75 %");
    EXPECT_EQ(click(WM_RBUTTONDOWN, at.left + 5, at.top + 5), "50 %");
  });
}

TEST_F(Preview, ScrollsThePage) {
  preview([&] {
    frmPPrev& form = thePreview();
    PageView& view = form.PICWINDOW();
    form.runCommand(id::ZOOM200);
    const POINT last{view.pagePlace().across.scrollMax, view.pagePlace().down.scrollMax};
    view.scrollTo({0, 0});
    EXPECT_EQ(view.pageLeft(), 45);
    EXPECT_EQ(view.pageTop(), 45);
    view.scrollTo({45, 45});
    EXPECT_EQ(view.pagePixels().left, 0);
    EXPECT_EQ(view.pagePixels().top, 0);
    view.scrollTo({1'000'000, 1'000'000});
    EXPECT_EQ(view.scrollPosition().x, last.x);
    EXPECT_EQ(view.scrollPosition().y, last.y);
    const ViewSize size = view.size();
    EXPECT_NEAR(view.pageLeft() + view.pagePlace().across.length, size.visibleWidth() - 45, 1);
    EXPECT_NEAR(view.pageTop() + view.pagePlace().down.length, size.visibleHeight() - 45, 1);

    // The bars know positions that do not fit into the 16 bits of their messages.
    const HWND bar = GetDlgItem(view.handle(), id::SCRVBAR);
    SCROLLINFO info{sizeof info, SIF_ALL, 0, 0, 0, 0, 0};
    GetScrollInfo(bar, SB_CTL, &info);
    EXPECT_EQ(info.nPos, last.y);
    EXPECT_EQ(info.nMax - static_cast<int>(info.nPage) + 1, last.y);
    press(VK_UP);
    EXPECT_LT(view.scrollPosition().y, last.y);
    SendMessageA(view.handle(), WM_VSCROLL, SB_TOP, reinterpret_cast<LPARAM>(bar));
    EXPECT_EQ(view.scrollPosition().y, 0);
    SendMessageA(view.handle(), WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0);
    EXPECT_GT(view.scrollPosition().y, 0);
    const POINT before = view.scrollPosition();
    SendMessageA(view.handle(), WM_MOUSEHWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0);
    EXPECT_LT(view.scrollPosition().x, before.x);
    EXPECT_EQ(view.scrollPosition().y, before.y);
    form.runCommand(id::NEXT);
    EXPECT_EQ(view.scrollPosition().y, 0) << "a page begins at its top";

    form.runCommand(id::ZOOM25);
    EXPECT_EQ(view.scrollPosition().x, 0);
    EXPECT_FALSE(IsWindowEnabled(GetDlgItem(view.handle(), id::SCRHBAR)));
  });
}

TEST_F(Preview, LaysOutAtEverySize) {
  preview([&] {
    frmPPrev& form = thePreview();
    const auto edges = [&](int control) { return form.control(control).pixels(); };
    for (const SIZE size : {SIZE{700, 500}, {400, 300}, {160, 90}, {1000, 700}}) {
      form.moveOuter({0, 0, size.cx, size.cy});
      RECT client{};
      GetClientRect(form.handle(), &client);
      const RECT view = edges(id::PICWINDOW);
      EXPECT_EQ(view.top, edges(id::PICTBAR).bottom);
      EXPECT_EQ(view.right, client.right);
      EXPECT_EQ(edges(id::LBLPAPER).right, client.right - screenPixels(90));
      EXPECT_GT(edges(id::CBOPGNO).left, edges(id::TBARMAIN).right) << "side by side";
      EXPECT_EQ(view.bottom, std::max(view.top, edges(id::SBMAIN).top));
      for (const int zoom : {id::ZOOMPW, id::ZOOMWP, id::ZOOM25}) form.runCommand(zoom);
    }
    const ViewSize now = form.PICWINDOW().size();
    form.runCommand(id::ZOOMPW);
    form.moveOuter({0, 0, 800, 600});
    EXPECT_NEAR(form.PICWINDOW().pagePlace().across.length,
                now.width - screenTwips(200) - now.verticalBar - 180, 1)
        << "fitted anew";
    form.runCommand(id::TOOLBAR);
    EXPECT_EQ(edges(id::PICWINDOW).top, 0);
    form.runCommand(id::STATUSBAR);
    RECT client{};
    GetClientRect(form.handle(), &client);
    EXPECT_EQ(edges(id::PICWINDOW).bottom, client.bottom);
    EXPECT_EQ(settings_.stored(Setting::previewToolbar), "(none)")
        << "stored when it closes, not before";
  });
  EXPECT_EQ(settings_.stored(Setting::previewToolbar), "False");
}

TEST_F(Preview, KeepsItsSettings) {
  preview([&] {
    thePreview().runCommand(id::ZOOMWP);
    thePreview().runCommand(id::STATUSBAR);
    thePreview().moveOuter({30, 40, 730, 540});
  });
  EXPECT_EQ(settings_.stored(Setting::previewZoom), "Whole Page");
  EXPECT_EQ(settings_.stored(Setting::previewStatusBar), "False");
  EXPECT_EQ(settings_.stored(Setting::previewToolbar), "True");
  EXPECT_EQ(settings_.stored(Setting::windowState, library::sharedPlace), "0");
  EXPECT_EQ(settings_.stored(Setting::windowWidth, library::sharedPlace),
            std::to_string(static_cast<int>(screenTwips(700))));
  preview([&] {
    EXPECT_EQ(page() + "/" + zoom(), "1/Whole Page");
    EXPECT_EQ(thePreview().outerPixels().left, 30);
    EXPECT_EQ(thePreview().outerPixels().bottom, 540);
    EXPECT_FALSE(thePreview().control(id::SBMAIN).visible());
    EXPECT_FALSE(thePreview().commandChecked(id::STATUSBAR));
  });
}

TEST_F(Preview, ReadsWhatOthersStored) {
  struct Case {
    const char* zoom;
    const char* bar;
    const char* expectedZoom;
    bool expectedBar;
  };
  for (const Case& c : {Case{"150 %", "false", "150 %", false},
                        {"60 %", "0", "50 %", false},
                        {"page width", "maybe", "50 %", true}}) {
    settings_.store(Setting::previewZoom, c.zoom);
    settings_.store(Setting::previewToolbar, c.bar);
    settings_.store(Setting::previewStatusBar, c.bar);
    settings_.store(Setting::windowWidth, "wide", library::sharedPlace);
    preview([&] {
      EXPECT_EQ(zoom(), c.expectedZoom) << c.zoom;
      EXPECT_EQ(thePreview().control(id::PICTBAR).visible(), c.expectedBar) << c.bar;
      EXPECT_EQ(thePreview().control(id::SBMAIN).visible(), c.expectedBar) << c.bar;
      EXPECT_EQ(thePreview().commandChecked(id::TOOLBAR), c.expectedBar) << c.bar;
    });
  }
}

// Lines of the text with their places, so that neither the clock nor an empty footer matters.
template <typename Texts>
std::vector<std::string> placedLines(const Texts& texts) {
  std::vector<std::string> found;
  int top = 0;
  for (const auto& text : texts) {
    if (text.text.rfind("Line ", 0) != 0) continue;
    if (found.empty()) top = text.y;
    found.push_back(text.text + " at " + std::to_string(text.x) + ", " +
                    std::to_string(text.y - top));
  }
  return found;
}

TEST_F(Preview, ShowsThePagesThatArePrinted) {
  // Long lines, which wrap where the printer has them wrap, whatever the screen's resolution.
  std::string text;
  for (int number = 1; number <= 45; ++number) {
    for (int word = 0; word < 25; ++word) text += "Line " + std::to_string(number * word) + ' ';
    text += "\r\n";
  }
  RTF1_.setPlain(text);
  preview([&] {
    TestPrinters::clearJobs();
    PRINTING().PRINTDOCUMENT(thePreview(), thePreview().RTF3(), true);
    const std::vector<JobPage> job = test_support::pagesOf(TestPrinters::letterJob());
    ASSERT_GE(job.size(), 2U);
    ASSERT_EQ(static_cast<int>(job.size()), thePreview().CBOPGNO().count());
    for (const JobPage& printed : job) {
      const auto drawing = test_support::drawingOf(thePreview().PICSTDPAGE().recording());
      // The picture is the whole paper; the printer's places count from the printable corner.
      std::vector<test_support::DrawnText> drawn = drawing.texts;
      for (auto& line : drawn) line.x -= 360 * 10 / 24;
      EXPECT_GT(placedLines(drawn).size(), 1U);
      EXPECT_EQ(placedLines(drawn), placedLines(printed.texts));
      thePreview().runCommand(id::NEXT);
    }
  });
}

TEST_F(Preview, ShowsTheWordsWhereTheyArePrintedAtEveryZoom) {
  std::string text;  // lines far enough from each other to be told apart at the smallest size
  for (int line = 1; line <= 11; ++line) text += "Line\r\n\r\n\r\n\r\n\r\n";
  RTF1_.setPlain(text);
  preview([&] {
    PageView& view = thePreview().PICWINDOW();
    const auto drawing = test_support::drawingOf(thePreview().PICSTDPAGE().recording());
    for (int zoom = id::ZOOM200; zoom <= id::ZOOMWP; ++zoom) {
      thePreview().runCommand(zoom);
      view.scrollTo({0, 0});
      const values::WindowDc shown(view.handle());
      const RECT page = view.pagePixels();
      const double scale = (page.bottom - page.top) / 6600.0;
      // Darkest of what is shown of a part of the page, from 0 black to 255 white.
      const auto darkest = [&](int left, int top, int right, int bottom) {
        const auto pixels = [scale](int onPaper) { return static_cast<int>(onPaper * scale); };
        int found = 255;
        for (int y = page.top + pixels(top); y < page.top + pixels(bottom); ++y)
          for (int x = page.left + pixels(left); x < page.left + pixels(right); ++x)
            found = std::min<int>(found, GetRValue(GetPixel(shown.get(), x, y)));
        return found;
      };
      int seen = 0;
      const double visible = screenPixels(view.size().visibleHeight());
      for (const auto& [words, left, base, weight, width, colour] : drawing.texts) {
        if (words != "Line" || page.top + (base + 300) * scale > visible) continue;
        ++seen;
        EXPECT_LT(darkest(left, base - 80, left + width, base), 180) << zoom;
        EXPECT_EQ(darkest(left, base + 80, left + width, base + 300), 255) << zoom;
        EXPECT_EQ(darkest(left + width + 100, base - 80, left + 1000, base), 255) << zoom;
      }
      EXPECT_EQ(seen == 11, zoom == id::ZOOM25 || zoom == id::ZOOMWP) << zoom;
      EXPECT_GE(seen, 1) << zoom;
    }
  });
}

TEST_F(Preview, PrintsWithAndWithoutTheDialog) {
  preview([&] {
    frmPPrev& form = thePreview();
    int dialogs = 0;
    const windowing::Replaced dialog(windowing::seams().printDialog, [&](PRINTDLGA& asked) -> BOOL {
      ++dialogs;
      EXPECT_EQ(+asked.hwndOwner, form.handle());
      asked.Flags |= PD_PAGENUMS;
      asked.nFromPage = asked.nToPage = 2;
      return TRUE;
    });
    const auto printedPages = [] {
      return test_support::pagesOf(TestPrinters::letterJob()).size();
    };
    form.runCommand(id::NEXT);
    form.PICWINDOW().scrollTo({0, 500});
    TestPrinters::clearJobs();
    form.runCommand(id::PRINT);
    EXPECT_EQ(printedPages(), 1U);
    TestPrinters::clearJobs();
    const HWND bar = form.control(id::TBARMAIN).handle();
    SendMessageA(GetParent(bar), WM_COMMAND, id::PRINT, reinterpret_cast<LPARAM>(bar));
    EXPECT_EQ(printedPages(), 3U);
    EXPECT_EQ(dialogs, 1);
    EXPECT_EQ(page() + paging(), "21111") << "the page on show stays";
    EXPECT_EQ(form.CBOPGZOOM().count(), 8);
    EXPECT_EQ(form.PICWINDOW().scrollPosition().y, 500) << "and what is seen of it";

    std::string told;
    const windowing::Replaced box(windowing::seams().messageBox,
                                  [&](HWND, const std::string& text, const std::string&, UINT) {
                                    told += text;
                                    return IDOK;
                                  });
    TestPrinters::removeLetter();
    SendMessageA(GetParent(bar), WM_COMMAND, id::PRINT, reinterpret_cast<LPARAM>(bar));
    EXPECT_EQ(told, "") << "the button is silent";
    form.runCommand(id::PRINT);
    EXPECT_NE(told.find(TestPrinters::letter), std::string::npos) << told;
    EXPECT_EQ(dialogs, 1);
  });
}

TEST_F(Preview, FollowsThePrinterThatIsChosenInTheDialog) {
  RTF1_.setPlain(lines(112));
  paper::Printer other;
  other.select(TestPrinters::a4);
  other.setOrientation(paper::Orientation::landscape);
  preview([&] {
    EXPECT_EQ(thePreview().CBOPGNO().count(), 2);
    const windowing::Replaced dialog(windowing::seams().printDialog, [&](PRINTDLGA& asked) -> BOOL {
      printer().adopt(other.name(), *reinterpret_cast<const DEVMODEA*>(other.settings().data()));
      GlobalFree(asked.hDevMode);
      asked.hDevMode = nullptr;
      return TRUE;
    });
    thePreview().runCommand(id::PRINT);
    EXPECT_EQ(thePreview().CBOPGNO().count(), 3);
    EXPECT_EQ(thePreview().control(id::LBLPAPER).text(), "11.69 x 8.26 inches");
    const PagePlace place = thePreview().PICWINDOW().pagePlace();
    EXPECT_GT(place.across.length, place.down.length);
  });
  printer().select(TestPrinters::letter);
}

TEST_F(Preview, HiddenStoresNothing) {
  PRINTING().PRINTDOCUMENT(thePreview(), RTF1_, true);
  ASSERT_TRUE(thePreview().loaded());
  EXPECT_FALSE(IsWindowVisible(thePreview().handle()));
  EXPECT_TRUE(thePreview().unload());
  EXPECT_EQ(settings_.stored(Setting::previewZoom), "(none)");
  EXPECT_EQ(settings_.stored(Setting::windowLeft, library::sharedPlace), "(none)");
}

TEST_F(Preview, MarginsThatDoNotFitOpenNothing) {
  PRINTING().setReport(RTF1_);
  // The last one leaves room for the text, but none for the footer.
  for (const auto& [edge, margin] : {std::pair{Setting::topMargin, "23"},
                                     {Setting::topMargin, "x"},
                                     {Setting::rightMargin, "-22"}}) {
    settings_.store(edge, margin);
    EXPECT_THROW(PRINTING().PRINTPREVIEW(), values::RuntimeError) << margin;
    EXPECT_FALSE(thePreview().loaded());
    EXPECT_EQ(thePreview().PICSTDPAGE().dc(), nullptr) << "no page is left half drawn";
    settings_.store(edge, "1");
  }
  preview([&] { EXPECT_EQ(thePreview().CBOPGNO().count(), 3); });
}

TEST(PreviewWithoutPrinter, TellsTheUser) {
  ASSERT_TRUE(paper::printerNames().empty());
  const ScratchRegistry settings;
  std::string told;
  const windowing::Replaced box(windowing::seams().messageBox,
                                [&](HWND, const std::string& text, const std::string&, UINT) {
                                  told = text;
                                  return IDOK;
                                });
  const paper::RichTextBox report("RTF1");
  PRINTING().setReport(report);
  PRINTING().PRINTPREVIEW();
  EXPECT_EQ(told.rfind("There is no printer installed.", 0), 0U) << told;
}

}  // namespace
}  // namespace printing
