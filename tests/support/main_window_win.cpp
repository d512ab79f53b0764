#include "tests/support/main_window_win.h"

#include <commctrl.h>

#include "mainwindow/frmMain_ids.h"

namespace test_support {

namespace id = mainwindow::id;

namespace {

// What is done to a modal form once it is open.
std::function<void(windowing::Form&)> onOpen;

void CALLBACK visit(HWND, UINT, UINT_PTR timer, DWORD) {
  windowing::Form* const open = windowing::formOf(windowing::dialogOwner());
  if (open == nullptr || GetWindow(open->handle(), GW_OWNER) == nullptr) return;
  KillTimer(nullptr, timer);
  onOpen(*open);
  if (open->loaded()) PostMessageA(open->handle(), WM_CLOSE, 0, 0);
}

}  // namespace

MainWindowTest::MainWindowTest() {
  windowing::Seams& seams = windowing::seams();
  seams.messageBox = [this](HWND, const std::string& text, const std::string& title, UINT flags) {
    boxes.push_back({text, title, flags});
    if (answers.empty()) return (flags & MB_TYPEMASK) == MB_OK ? IDOK : IDNO;
    const int answer = answers.front();
    answers.pop_front();
    return answer;
  };
  seams.fileDialog = [this](HWND, const windowing::FileDialog& dialog) {
    dialogs.push_back(dialog);
    if (files.empty()) return std::optional<std::string>();
    std::optional<std::string> answer = files.front();
    files.pop_front();
    return answer;
  };
  seams.shellOpen = [](auto&&...) {};
  form.load();
  for (const int page : {1, 2, 0}) turnTo(page);
}

MainWindowTest::~MainWindowTest() {
  if (form.loaded()) form.SETSAVE("False");
  form.unload();
  const std::function<HKEY(HKEY)> root = windowing::seams().settingsRoot;
  windowing::seams() = real_;
  windowing::seams().settingsRoot = root;
}

void MainWindowTest::notice(int box, int code) {
  SendMessageA(form.handle(), WM_COMMAND, MAKEWPARAM(box, code),
               reinterpret_cast<LPARAM>(form.control(box).handle()));
}

void MainWindowTest::runModal(int command, const std::function<void(windowing::Form&)>& look) {
  int looks = 0;
  onOpen = [&](windowing::Form& shown) {
    ++looks;
    look(shown);
  };
  SetTimer(nullptr, 0, 10, visit);
  run(command);
  EXPECT_EQ(looks, 1) << command;
}

void MainWindowTest::turnTo(int page) {
  const windowing::TabStrip tabs(form.control(id::TABMAIN).handle());
  tabs.select(page);
  NMHDR chosen{tabs.handle(), id::TABMAIN, static_cast<UINT>(TCN_SELCHANGE)};
  SendMessageA(form.handle(), WM_NOTIFY, id::TABMAIN, reinterpret_cast<LPARAM>(&chosen));
}

std::string MainWindowTest::status() const {
  return form.control<windowing::StatusBar>(id::SBMAIN).panel();
}

Names MainWindowTest::names() const {
  const windowing::ComboBox box(form.control(id::CBOTBARBOX).handle());
  Names all;
  for (int i = 0; i < box.count(); ++i) all.push_back(box.entry(i));
  return all;
}

void MainWindowTest::open(const std::string& path) {
  form.SETSAVE("False");
  files.emplace_back(path);
  run(id::OPEN);
}

std::string MainWindowTest::fileOf(const std::vector<std::vector<std::string>>& contacts) {
  std::string bytes;
  for (const std::vector<std::string>& contact : contacts)
    for (const std::string& field : contact) bytes += '"' + field + "\"\r\n";
  return bytes;
}

std::string MainWindowTest::contactsFile(const std::vector<std::string>& surnames) {
  std::vector<std::vector<std::string>> contacts;
  for (const std::string& surname : surnames) {
    contacts.emplace_back(28);
    contacts.back()[0] = surname;
  }
  return scratch.file("contacts" + std::to_string(++files_) + ".tly", fileOf(contacts));
}

}  // namespace test_support
