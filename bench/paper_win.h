// What the printing and preview benchmarks share: a long report, and a printer of their own.
#pragma once

#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "bench/measuring.h"
#include "document/ContactRecord.h"
#include "paper/printer_win.h"
#include "paper/richtextbox_win.h"
#include "printing/compose_report_win.h"
#include "printing/print_form_win.h"
#include "tests/support/printers_win.h"

namespace bench {

/// A contact whose comment has `lines` lines of different lengths, a hundred characters at most.
[[nodiscard]] inline document::ContactRecord longContact(int lines) {
  document::ContactRecord contact;
  contact[document::Slot::FirstNames] = "Ann";
  contact[document::Slot::Surname] = "Alder";
  std::string comment;
  for (int line = 1; line <= lines; ++line) {
    comment += "Line " + std::to_string(line) + " of a long comment";
    for (int word = 0; word < line % 12; ++word) comment += ", " + std::to_string(line * word);
    comment += "\r\n";
  }
  contact[document::Slot::Comments] = std::move(comment);
  return contact;
}

/// A hidden box that holds the report of a contact, and the printer it is laid out for.
class Paper {
 public:
  Paper() {
    window_ = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr,
                              nullptr);
    report.create(window_, 1, {0, 0, 10, 10});
    paper::printer().select(test_support::TestPrinters::letter);
  }
  Paper(const Paper&) = delete;
  Paper& operator=(const Paper&) = delete;
  ~Paper() { DestroyWindow(window_); }

  void compose(const document::ContactRecord& contact, printing::PageBoxes& form) {
    printing::composeReport(contact, report, form.RTF3());
  }

  paper::RichTextBox report{"RTF1"};

 private:
  test_support::TestPrinters printers_;
  HWND window_ = nullptr;
};

/// Ends the program where the thing to be measured is not as expected.
inline void require(bool good, const char* what) {
  if (good) return;
  std::printf("%s\n", what);
  std::exit(3);
}

}  // namespace bench
