// A whole safe save of a full document against writing, flushing and renaming the same bytes:
//   bench_saving_win FULL_DOCUMENT
#include <windows.h>

#include <cstdlib>
#include <string>

#include "bench/measuring.h"
#include "document/reader.h"
#include "document/writer.h"
#include "files/safe_file_win.h"
#include "mainwindow/document_file_win.h"

namespace {

void check(bool good, const char* what) {
  if (good) return;
  std::printf("%s: error %lu\n", what, GetLastError());
  std::exit(1);
}

void writeFlushRename(const std::string& bytes, const char* temporary, const char* path) {
  const HANDLE file = CreateFileA(temporary, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  DWORD done = 0;
  check(WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &done, nullptr) != FALSE,
        "writing");
  check(FlushFileBuffers(file) != FALSE, "flushing");
  check(CloseHandle(file) != FALSE, "closing");
  check(MoveFileExA(temporary, path, MOVEFILE_REPLACE_EXISTING) != FALSE, "renaming");
}

// As usual on Windows: a new file can be given everything that belongs to the old one.
class WindowsFiles : public files::FileCalls {
 public:
  bool securityIsWhole() override { return true; }
};

void measure(const char* what, const std::string& bytes, const document::ContactList& list,
             files::FileCalls& files, double limit) {
  bench::Figure figure;
  for (int round = 0; round < bench::rounds; ++round) {
    double floor = 0;
    double saving = 0;
    for (int turn = 0; turn < 5; ++turn) {
      floor += bench::milliseconds(
          [&] { writeFlushRename(bytes, "bench_saving.tmp", "bench_saving1.tly"); });
      saving += bench::milliseconds([&] {
        files::replaceFile(
            "bench_saving2.tly", [&](const files::FileSink& sink) { document::write(list, sink); },
            files);
      });
    }
    figure.add(saving / 5, floor / 5);
  }
  figure.tell(what, limit);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  files::FileCalls files;
  document::ContactList list;
  document::read(mainwindow::readFile(argv[1], files).bytes, list);
  std::string bytes;
  document::write(list, [&](std::string_view piece) { bytes += piece; });

  WindowsFiles windowsFiles;
  measure("safe save / write + flush + rename (ms)", bytes, list, windowsFiles, 1.3);
  measure("safe save on Wine / the same (ms)", bytes, list, files, 2.5);
  DeleteFileA("bench_saving1.tly");
  DeleteFileA("bench_saving2.tly");
  return 0;
}
