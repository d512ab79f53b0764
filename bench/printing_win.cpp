// Measures printing and the preview: how long the first and the last page take, and how long the
// user waits for one, against the drawing calls themselves. Prints into a file, on a printer of its
// own.
#include <windows.h>

#include <psapi.h>

#include <vector>

#include "bench/paper_win.h"
#include "paper/page_picture_win.h"
#include "printing/clsPrinting_win.h"
#include "printing/frmPPrev_win.h"
#include "windowing/form_win.h"
#include "windowing/seams_win.h"

namespace {

using bench::require;
using paper::printer;

constexpr int jobs = 3;  // of 200 pages each, twice and once more without the engine
constexpr int linesOf200Pages = 11900;
constexpr int linesOf3Pages = 120;
constexpr int linesOf500Pages = 29500;

/// A preview whose window stays open without being modal, so that the program can use it.
class OpenPreview : public printing::frmPPrev {
 public:
  void showPreview() override {
    show();
    settle();
  }
  void settle() const {
    RedrawWindow(handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) windowing::dispatchMessage(message);
  }
};

/// A preview, a print engine and the report that is printed.
struct Program {
  OpenPreview preview;
  printing::clsPrinting engine{preview};
  bench::Paper paper;

  void compose(int lines) {
    paper.compose(bench::longContact(lines), preview);
    engine.setReport(paper.report);
  }
  double print() {
    return bench::milliseconds([&] { engine.PRINTDOCUMENT(preview, paper.report, true); });
  }
};

/// The times at which the pages of a job begin. The header of each page asks for the time.
std::vector<double> pageTimes(Program& program) {
  std::vector<std::chrono::steady_clock::time_point> begun;
  const auto clock = windowing::seams().localTime;
  windowing::seams().localTime = [&] {
    begun.push_back(std::chrono::steady_clock::now());
    return clock();
  };
  program.print();
  windowing::seams().localTime = clock;
  std::vector<double> pages;
  for (std::size_t i = 1; i < begun.size(); ++i)
    pages.push_back(std::chrono::duration<double, std::milli>(begun[i] - begun[i - 1]).count());
  return pages;
}

/// All pages as recordings of what is drawn on them.
std::vector<paper::MetafileHandle> record(Program& program) {
  std::vector<paper::MetafileHandle> pages;
  for (int page = 1; page <= program.engine.pageCount(); ++page) {
    program.engine.PAGESEL(static_cast<std::int16_t>(page), program.preview.PICSTDPAGE());
    pages.emplace_back(CopyEnhMetaFileA(program.preview.PICSTDPAGE().recording(), nullptr));
  }
  return pages;
}

double printRecordings(const std::vector<paper::MetafileHandle>& pages) {
  return bench::milliseconds([&] {
    const HDC dc = printer().startOutput();
    const SIZE size = printer().physicalSize();
    const RECT place{0, 0, size.cx, size.cy};
    for (std::size_t page = 0; page < pages.size(); ++page) {
      if (page > 0) printer().newPage();
      PlayEnhMetaFile(dc, pages[page].get(), &place);
    }
    printer().endDocument();
  });
}

void measurePrinting(Program& program) {
  const double composing = bench::milliseconds([&] { program.compose(linesOf200Pages); });
  program.print();
  const int count = program.engine.pageCount();
  require(count >= 200, "The comment is too short for 200 pages");
  program.engine.PRINTPREVIEW();
  const std::vector<paper::MetafileHandle> recordings = record(program);

  bench::Figure flat;
  bench::Figure engine;
  std::vector<double> printing;
  std::vector<double> counting;
  for (int round = 0; round < jobs; ++round) {
    const std::vector<double> pages = pageTimes(program);
    require(pages.size() + 1 >= recordings.size(), "Pages are missing");
    flat.add(pages[199], pages[1]);
    printing.push_back(program.print());
    engine.add(printing.back(), printRecordings(recordings));
    counting.push_back(bench::milliseconds([&] {
      require(program.engine.PAGECOUNT(program.preview, 0, 1, 1, 1, 1) == count, "count");
    }));
  }
  const auto rate = [&](double milliseconds) { return count * 1000 / milliseconds; };
  std::printf("pages per second of %d: composed %.0f, counted %.0f, printed %.0f\n", count,
              rate(composing), rate(bench::median(counting)), rate(bench::median(printing)));
  flat.tell("page 200 / page 2 of a job (ms)", 1.5);
  engine.tell("printing 200 pages / their drawing calls (ms)", 2);
}

/// The time of drawing 120 lines of text into a surface in memory.
double draw120Lines() {
  const values::WindowDc screen(nullptr);
  const values::MemoryDc memory(CreateCompatibleDC(screen.get()));
  const values::BitmapHandle bitmap(CreateCompatibleBitmap(screen.get(), 816, 1056));
  const values::Selected surface(memory.get(), bitmap.get());
  return bench::milliseconds([&] {
    for (int line = 0; line < 120; ++line) {
      const std::string text = "Line " + std::to_string(line) + " of a page of text in memory";
      TextOutA(memory.get(), 10, line * 8, text.data(), static_cast<int>(text.size()));
    }
  });
}

double turnTo(Program& program, int page) {
  return bench::milliseconds([&] {
    program.engine.PAGESEL(static_cast<std::int16_t>(page), program.preview.PICSTDPAGE());
    program.preview.settle();
  });
}

double turnBetween(Program& program, int page, int other) {
  turnTo(program, other);
  return turnTo(program, page);
}

double zoomStep(Program& program) {
  program.engine.ZOOMOUT();
  program.preview.settle();
  return bench::milliseconds([&] {
    program.engine.ZOOMIN();
    program.preview.settle();
  });
}

/// Drawing the page that is shown once, at the size of the zoom.
double drawOnce(Program& program) {
  const RECT whole = program.preview.PICWINDOW().pagePixels();
  const values::WindowDc screen(nullptr);
  const values::MemoryDc memory(CreateCompatibleDC(screen.get()));
  const int width = whole.right - whole.left;
  const int height = whole.bottom - whole.top;
  const values::BitmapHandle bitmap(CreateCompatibleBitmap(screen.get(), width, height));
  const values::Selected surface(memory.get(), bitmap.get());
  return bench::milliseconds([&] {
    program.preview.PICSTDPAGE().draw(memory.get(), {0, 0, width, height});
  });
}

double usedMegabytes() {
  PROCESS_MEMORY_COUNTERS memory{};
  require(GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof memory), "memory");
  return static_cast<double>(memory.WorkingSetSize) / 1e6;
}

double count(Program& program) {
  return bench::milliseconds(
      [&] { (void)program.engine.PAGECOUNT(program.preview, 0, 1, 1, 1, 1); });
}

/// Counts the pages and shows the first one, against counting and ten drawings of a page of text.
bench::Figure firstPage(Program& program) {
  bench::Figure figure;
  for (int round = 0; round < bench::rounds; ++round) {
    const double counting = count(program);
    figure.add(counting + turnTo(program, 1), counting + 10 * draw120Lines());
  }
  return figure;
}

void measurePreview(Program& program) {
  program.compose(linesOf3Pages);
  std::vector<double> opening;
  for (int round = 0; round < bench::rounds; ++round) {
    ShowWindow(program.preview.handle(), SW_HIDE);
    opening.push_back(bench::milliseconds([&] { program.engine.PRINTPREVIEW(); }));
  }
  require(program.engine.pageCount() == 3, "The report has not three pages");
  std::printf("opening the preview of 3 pages: %.0f ms\n", bench::median(opening));
  firstPage(program).tell("first of 3 pages shown / 10 drawings + counting (ms)", 1);

  program.compose(linesOf500Pages);
  program.engine.PRINTPREVIEW();
  require(program.engine.pageCount() >= 500, "The comment is too short for 500 pages");
  firstPage(program).tell("first of 500 pages shown / the same (ms)", 1);
  bench::Figure turning;
  bench::Figure zooming;
  for (int round = 0; round < bench::rounds; ++round) {
    turning.add(turnBetween(program, 499, 498), turnBetween(program, 2, 1));
    zooming.add(zoomStep(program), drawOnce(program));
  }
  turning.tell("turning to page 499 / to page 2 (ms)", 2);
  zooming.tell("a zoom step / drawing the page once (ms)", 3);

  for (int page = 1; page <= 50; ++page) turnTo(program, page);
  const double early = usedMegabytes();
  for (int page = 51; page <= 500; ++page) turnTo(program, page);
  bench::Figure memory;
  memory.add(usedMegabytes(), early);
  memory.tell("memory after 500 turned pages / after 50 (MB)", 1.05);
}

}  // namespace

int main() {
  Program program;
  measurePrinting(program);
  measurePreview(program);
  return 0;
}
