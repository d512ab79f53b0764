// The page setup by keyboard alone, and what of it is there at the next start.
#include "tests/app/support/fixture_win.h"
#include "tests/support/printers_win.h"

namespace {

using drive::waitFor;
using test_support::TestPrinters;
namespace id = library::id::psetup;

struct Search {
  int wanted;
  HWND found;
};

BOOL CALLBACK look(HWND window, LPARAM search) {
  auto& looking = *reinterpret_cast<Search*>(search);
  if (GetDlgCtrlID(window) == looking.wanted) looking.found = window;
  return looking.found == nullptr;
}

class PageSetupByKeys : public drive::AppTest {
 protected:
  void open(WORD menu, WORD item) {
    program().key(menu, VK_MENU);
    program().key(item);
    waitFor("the page setup", [this] {
      setup_ = FindWindowA("TellaryForm", "Page Setup");
      return setup_ != nullptr && GetForegroundWindow() == setup_;
    });
  }
  /// A control of the page setup, wherever it lies.
  [[nodiscard]] HWND control(int wanted) const {
    Search search{wanted, nullptr};
    EnumChildWindows(setup_, look, reinterpret_cast<LPARAM>(&search));
    if (search.found == nullptr) throw std::runtime_error("no control " + std::to_string(wanted));
    return search.found;
  }
  [[nodiscard]] std::string text(int box) const {
    char buffer[300] = "";
    program().send(control(box), WM_GETTEXT, sizeof buffer, reinterpret_cast<LPARAM>(buffer));
    return buffer;
  }
  [[nodiscard]] bool checked(int box) const {
    return program().send(control(box), BM_GETCHECK) == BST_CHECKED;
  }
  static void key(int pressed, int with = 0) {
    const auto send = [](int code, DWORD flags) {
      if (code != 0) keybd_event(static_cast<BYTE>(code), 0, flags, 0);
    };
    send(with, 0);
    send(pressed, 0);
    send(pressed, KEYEVENTF_KEYUP);
    send(with, KEYEVENTF_KEYUP);
  }
  void keyTo(int reached, int pressed, int with = 0) const {
    key(pressed, with);
    waitFor("the focus on " + std::to_string(reached),
            [&] { return program().focus() == reached; });
  }
  void type(int box, const std::string& typed) const {
    for (const char c : typed) key(LOBYTE(VkKeyScanA(c)));
    waitFor("the text " + typed, [&] { return text(box) == typed; });
  }
  void leave(int by) const {
    key(by);
    waitFor("the page setup to close", [this] { return !IsWindow(setup_); });
  }
  static void expectMargins(const char* left, const char* bottom) {
    const std::string margin = "SOFTWARE\\Zandor Software Development\\GLOBAL\\frmPPrev\\Items";
    EXPECT_EQ(Registry::text(HKEY_CURRENT_USER, margin, "Page Margin 0"), left);
    EXPECT_EQ(Registry::text(HKEY_CURRENT_USER, margin, "Page Margin 3"), bottom);
  }

 private:
  HWND setup_ = nullptr;
};

TEST_F(PageSetupByKeys, SettingsAreThereAgainAfterARestart) {
  const TestPrinters printers;
  start();
  open('F', 'U');
  EXPECT_EQ(text(id::CBOPRINTERS), TestPrinters::letter);
  keyTo(id::CBOPAPER, 'Z', VK_MENU);
  key(VK_DOWN);
  waitFor("A4", [this] { return text(id::CBOPAPER) == "A4"; });
  keyTo(id::OPTORIENTLAND, 'N', VK_MENU);
  keyTo(id::UDNLEFT, 'L', VK_MENU);
  type(id::UDNLEFT, "0.5");
  keyTo(id::UDNRIGHT, VK_TAB);
  keyTo(id::UDNBOTTOM, 'B', VK_MENU);
  type(id::UDNBOTTOM, "2");
  leave(VK_RETURN);
  expectMargins("0.5", "2.0");

  open('V', 'H');
  EXPECT_EQ(text(id::CBOPAPER), "A4");
  EXPECT_TRUE(checked(id::OPTORIENTLAND));
  key('I', VK_MENU);
  waitFor("the rule to go", [this] { return !checked(id::CHKFOOTLINE); });
  for (const int reached : {id::CHKFOOTER, id::CHKFOOTFIELD1, id::CHKFOOTFIELD2})
    keyTo(reached, 'F', VK_MENU);
  for (const int reached : {id::CHKFOOTPGNO, id::CHKFOOTLINE, id::TXTFOOTFIELD1, id::TXTFOOTFIELD2})
    keyTo(reached, VK_TAB);
  type(id::TXTFOOTFIELD2, "for ann");
  leave(VK_RETURN);
  EXPECT_EQ(setting("frmPPrev\\Items\\Footer", "chkFLine"), "0");

  // Printer, paper and orientation last as long as the program runs, the rest for good.
  start();
  open('F', 'U');
  EXPECT_EQ(text(id::CBOPAPER), "Letter");
  EXPECT_TRUE(checked(id::OPTORIENTPORT));
  EXPECT_EQ(text(id::UDNLEFT) + text(id::UDNBOTTOM), "0.52.0");
  EXPECT_FALSE(checked(id::CHKFOOTLINE));
  EXPECT_EQ(text(id::TXTFOOTFIELD2), "for ann");
  // Enter does nothing as long as nothing has changed; Esc leaves.
  key(VK_RETURN);
  keyTo(id::UDNBOTTOM, 'B', VK_MENU);
  type(id::UDNBOTTOM, "3");
  leave(VK_ESCAPE);
  expectMargins("0.5", "2.0");
}

}  // namespace
