// Measures the main window with a full document: stepping, typing, adding, removing and filling the
// name box, against the time of the controls alone:
//   bench_window_win FULL_DOCUMENT THOUSAND_CONTACTS
#include <windows.h>

#include <commctrl.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "bench/measuring.h"
#include "document/reader.h"
#include "mainwindow/document_file_win.h"
#include "mainwindow/frmMain_design_win.h"
#include "mainwindow/frmMain_ids.h"
#include "mainwindow/frmMain_win.h"
#include "mainwindow/name_box_win.h"

namespace {

namespace id = mainwindow::id;
using mainwindow::frmMain;
using windowing::ComboBox;

constexpr int turns = 20;

/// A form with the controls of the main window and no code behind them; its boxes are the system's.
class BareForm : public windowing::Form {
 public:
  BareForm() : Form(bareDesign()) {}

 protected:
  void onLoad() override {
    for (const int page : mainwindow::design::pages) createControls(page);
    for (const int page : {id::FRAMADDRESS, id::FRAMADDRESSWORK}) control(page).setVisible(false);
    SetWindowPos(control(id::FRAMGENERAL).handle(), HWND_TOP, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }

 private:
  static windowing::FormDesign bareDesign() {
    windowing::FormDesign design = mainwindow::design::form;
    static std::vector<windowing::ControlDesign> rows(design.controls.begin(),
                                                      design.controls.end());
    for (windowing::ControlDesign& row : rows)
      if (row.kind.make == controls::linkBoxKind.make) row.kind = windowing::kind::textBox;
    design.controls = rows;
    return design;
  }
};

/// Paints what has to be painted of a window, and handles the messages that wait.
void settle(const windowing::Form& form) {
  RedrawWindow(form.handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) windowing::dispatchMessage(message);
}

/// Average time of several runs of `work`, painting included.
template <typename Work>
double average(const windowing::Form& form, const Work& work) {
  settle(form);
  return bench::milliseconds([&] {
           for (int turn = 0; turn < turns; ++turn) {
             work(turn);
             settle(form);
           }
         }) /
         turns;
}

void goTo(frmMain& form, int index) {
  const windowing::Control box = form.control(id::CBOTBARBOX);
  box.send(CB_SETCURSEL, static_cast<WPARAM>(index));
  SendMessageA(GetParent(box.handle()), WM_COMMAND, MAKEWPARAM(id::CBOTBARBOX, CBN_SELCHANGE),
               reinterpret_cast<LPARAM>(box.handle()));
  if (form.contacts().current() != index) std::exit(3);
}

void turnTo(frmMain& form, int page) {
  const windowing::TabStrip tabs(form.control(id::TABMAIN).handle());
  tabs.select(page);
  NMHDR chosen{tabs.handle(), id::TABMAIN, static_cast<UINT>(TCN_SELCHANGE)};
  SendMessageA(form.handle(), WM_NOTIFY, id::TABMAIN, reinterpret_cast<LPARAM>(&chosen));
  settle(form);
}

double step(frmMain& form) {
  goTo(form, form.contacts().count() / 2);
  return average(form, [&](int) { form.runCommand(id::NEXT); });
}

// A letter in one turn, Backspace in the next.
char typed(int turn) {
  return turn % 2 == 0 ? 'x' : '\b';
}

double type(frmMain& form) {
  goTo(form, form.contacts().count() / 2);
  return average(form, [&](int turn) {
    form.control(id::TXTITEMS).send(WM_CHAR, static_cast<WPARAM>(typed(turn)));
  });
}

/// The slower of the two pages that are made when they are first shown, in a window of its own,
/// against a step in it.
void turnFirst(bench::Figure& turning, const std::string& document) {
  frmMain form;
  form.show();
  form.FILELOAD(document);
  const double one = step(form);
  double slowest = 0;
  for (const int page : {1, 2})
    slowest = std::max(slowest, bench::milliseconds([&] { turnTo(form, page); }));
  turning.add(slowest, one);
  form.SETSAVE("False");
}

struct AddRemove {
  double add = 0;
  double remove = 0;
};

AddRemove addAndRemove(frmMain& form) {
  AddRemove times;
  for (int turn = 0; turn < turns; ++turn) {
    goTo(form, form.contacts().count() / 2);
    settle(form);
    times.remove += bench::milliseconds([&] {
      form.runCommand(id::REMOVE);
      settle(form);
    });
    goTo(form, form.contacts().count() / 2);
    settle(form);
    times.add += bench::milliseconds([&] {
      form.runCommand(id::ADD);
      settle(form);
    });
  }
  return {times.add / turns, times.remove / turns};
}

double stepFloor(const BareForm& bare, const document::ContactList& list) {
  const int middle = list.count() / 2;
  std::vector<document::ContactRecord> records;
  for (int turn = 0; turn < turns; ++turn) records.push_back(list.record(middle + turn + 1));
  const ComboBox names(bare.control(id::CBOTBARBOX).handle());
  names.select(middle);
  return average(bare, [&](int turn) {
    const document::ContactRecord& record = records[static_cast<std::size_t>(turn)];
    for (const document::Field& field : document::fields)
      bare.control(mainwindow::design::boxId(field)).setText(record[field.slot]);
    names.select(middle + turn + 1);
  });
}

double typeFloor(const BareForm& bare, const document::ContactList& list) {
  const int middle = list.count() / 2;
  const std::string entry = list.nameEntry(middle);
  const ComboBox names(bare.control(id::CBOTBARBOX).handle());
  names.select(middle);
  return average(bare, [&](int turn) {
    bare.control(id::TXTITEMS).send(WM_CHAR, static_cast<WPARAM>(typed(turn)));
    const windowing::PaintingSuspended suspended(names.handle());
    names.replace(middle, entry + typed(turn));
  });
}

/// The fastest way to fill the list, when all texts are in memory.
double fillFloor(const ComboBox& box, const std::vector<std::string>& entries) {
  double fastest = 1e9;
  for (const bool storage : {false, true}) {
    box.clear();
    fastest = std::min(fastest, bench::milliseconds([&] {
                         const windowing::PaintingSuspended suspended(box.handle());
                         if (storage) box.send(CB_INITSTORAGE, entries.size(), 1000000);
                         for (const std::string& entry : entries)
                           box.send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry.c_str()));
                       }));
  }
  return fastest;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  const std::string full = argv[1];
  const std::string thousand = argv[2];
  files::FileCalls files;
  document::ContactList list;
  if (document::read(mainwindow::readFile(full, files).bytes, list).contacts != list.maxCount)
    return 3;
  std::vector<std::string> entries;
  for (int i = 0; i < list.count(); ++i) entries.push_back(list.nameEntry(i));

  BareForm bare;
  bare.show();
  const ComboBox bareNames(bare.control(id::CBOTBARBOX).handle());
  mainwindow::fillNameBox(bareNames, list);
  bench::Figure turning;
  for (int round = 0; round < bench::rounds; ++round) turnFirst(turning, full);
  frmMain form;
  form.show();
  for (const int page : {1, 2, 0}) turnTo(form, page);

  bench::Figure overFloor;
  bench::Figure flatStep;
  bench::Figure typing;
  bench::Figure flatTyping;
  bench::Figure adding;
  bench::Figure removing;
  bench::Figure filling;
  for (int round = 0; round < bench::rounds; ++round) {
    form.FILELOAD(thousand);
    const double smallStep = step(form);
    const double smallTyping = type(form);
    form.FILELOAD(full);
    const double fullStep = step(form);
    overFloor.add(fullStep, stepFloor(bare, list));
    flatStep.add(fullStep, smallStep);
    const double fullTyping = type(form);
    typing.add(fullTyping, typeFloor(bare, list));
    flatTyping.add(fullTyping, smallTyping);
    const AddRemove times = addAndRemove(form);
    adding.add(times.add, fullStep);
    removing.add(times.remove, fullStep);
    bareNames.clear();
    const double filled = bench::milliseconds([&] { mainwindow::fillNameBox(bareNames, list); });
    filling.add(filled, fillFloor(bareNames, entries));
  }
  turning.tell("first switch to a page / Next (ms)", 4.0);
  overFloor.tell("Next / 28 texts, selection, painting (ms)", 1.5);
  flatStep.tell("Next at 32,767 / at 1,000 contacts (ms)", 1.2);
  typing.tell("letter in the surname / bare box and entry (ms)", 2.0);
  flatTyping.tell("letter at 32,767 / at 1,000 contacts (ms)", 1.5);
  adding.tell("Add / Next (ms)", 1.5);
  removing.tell("Remove in the middle / Next (ms)", 1.5);
  filling.tell("filling the name box / fastest filling (ms)", 1.3);
  return 0;
}
