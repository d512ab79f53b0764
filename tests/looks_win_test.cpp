// Every form drawn into a picture, without a screen and without themes. tools/looks.sh compares
// the pictures with those in tests/looks; TELLARY_LOOKS is the folder that they are written to.
#include <gtest/gtest.h>

#include <windows.h>

#include <commctrl.h>

#include <cstdlib>
#include <functional>
#include <utility>

#include "dialogs/frmAbout_win.h"
#include "dialogs/frmProps_ids.h"
#include "dialogs/frmProps_win.h"
#include "library/modLibrary_win.h"
#include "mainwindow/frmMain_ids.h"
#include "pagesetup/frmPSetup_win.h"
#include "printing/frmPPrev_win.h"
#include "tests/support/bitmap_win.h"
#include "tests/support/main_window_win.h"
#include "tests/support/printers_win.h"

namespace {

namespace id = mainwindow::id;

class Looks : public test_support::MainWindowTest {
 protected:
  Looks() {
    const char* folder = std::getenv("TELLARY_LOOKS");
    if (folder != nullptr) folder_ = folder;
    registry.store(library::Setting::registeredOwner, "Ann Bee");
    registry.store(library::Setting::registeredOrganization, "Bee & Daughters");
  }
  /// Writes the picture of a form; it is shown for as long as that takes.
  void draw(windowing::Form& shown, const std::string& name) const {
    shown.show();
    SetFocus(nullptr);
    settle();
    RedrawWindow(shown.handle(), nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    write(shown.handle(), name);
  }
  void write(HWND window, const std::string& name) const {
    RECT area{};
    GetClientRect(window, &area);
    const test_support::Bitmap picture(area.right, area.bottom);
    const values::WindowDc source(window);
    BitBlt(picture.dc(), 0, 0, area.right, area.bottom, source.get(), 0, 0, SRCCOPY);
    EXPECT_TRUE(picture.write(folder_ + "\\" + name + ".bmp")) << name;
  }

  static void settle() {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
  }
  /// Writes the picture of a menu, known by its access key.
  void drawMenu(windowing::Form& shown, char letter, const char* name) {
    inMenu = [this, name](HWND menu) { write(menu, name); };
    SetTimer(nullptr, 0, 50, whileMenuIsOpen);
    shown.show();
    settle();
    SendMessageA(shown.handle(), WM_SYSCOMMAND, SC_KEYMENU, letter);
    EXPECT_FALSE(inMenu) << name << " did not open";
  }
  static void CALLBACK whileMenuIsOpen(HWND, UINT, UINT_PTR timer, DWORD) {
    const HWND menu = FindWindowA("#32768", nullptr);
    if (menu == nullptr) return;
    KillTimer(nullptr, timer);
    std::exchange(inMenu, {})(menu);
    EndMenu();
  }
  static void CALLBACK whilePreviewIsOpen(HWND, UINT, UINT_PTR timer, DWORD) {
    if (!IsWindowVisible(printing::thePreview().handle())) return;
    KillTimer(nullptr, timer);
    std::exchange(inPreview, {})();
    EXPECT_TRUE(printing::thePreview().unload());
  }
  static void turn(const windowing::Form& shown, int strip, int tab) {
    const auto tabs = shown.control<windowing::TabStrip>(strip);
    tabs.select(tab);
    NMHDR chosen{tabs.handle(), static_cast<UINT_PTR>(strip), static_cast<UINT>(TCN_SELCHANGE)};
    SendMessageA(shown.handle(), WM_NOTIFY, chosen.idFrom, reinterpret_cast<LPARAM>(&chosen));
  }

  std::string folder_;
  inline static std::function<void(HWND menu)> inMenu;
  inline static std::function<void()> inPreview;
};

TEST_F(Looks, OfEveryForm) {
  if (folder_.empty()) GTEST_SKIP() << "TELLARY_LOOKS names no folder";
  const test_support::TestPrinters printers;
  windowing::seams().localTime = [] { return SYSTEMTIME{2024, 2, 1, 5, 9, 5, 0, 0}; };
  const std::string file = contactsFile({"Thistlebrook", "Okafor"});
  open(file);
  form.SETTITLE("C:\\Book.tly");
  for (int item = 0; item < id::textItemCount; ++item)
    type(id::textItem(item), "Text " + std::to_string(item));
  for (const int link : {id::CBOPEMAIL, id::CBOPWORKWEBSITE}) type(link, "a@example.org");
  const char* pages[] = {"general", "home", "work"};
  for (const int page : {1, 2, 0}) {
    turnTo(page);
    draw(form, pages[page]);
  }
  for (const auto& [letter, name] : {std::pair{'f', "file-menu"}, {'v', "view-menu"}})
    drawMenu(form, letter, name);
  // The toolbar's Print composes the report that is previewed.
  SendMessageA(form.handle(), WM_COMMAND, id::PRINT,
               reinterpret_cast<LPARAM>(form.control(id::TBARMAIN).handle()));
  inPreview = [this] {
    write(printing::thePreview().handle(), "preview");
    drawMenu(printing::thePreview(), 'v', "preview-view-menu");
  };
  SetTimer(nullptr, 0, 20, whilePreviewIsOpen);
  run(id::PRINTPREVIEW);
  EXPECT_FALSE(inPreview) << "the preview did not open";
  run(id::REMOVE);
  run(id::REMOVE);
  draw(form, "no-contacts");

  library::modLibrary().documentPath.clear();
  library::modLibrary().documentKind = "UNTITLED";
  dialogs::frmProps properties;
  properties.setDocumentText([] { return "Four words\r\nof text"; });
  properties.load();
  draw(properties, "properties");
  turn(properties, dialogs::props_id::TABPROPS, 1);
  draw(properties, "properties-document");

  pagesetup::frmPSetup setup;
  setup.load();
  draw(setup, "page-setup");
  setup.selectTab("HEADERFOOTER");
  draw(setup, "header-footer");

  dialogs::frmAbout about;
  about.load();
  draw(about, "about");
}

}  // namespace
