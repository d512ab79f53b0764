// Reading a full document on Windows against one ReadFile and a newline scan of the same bytes:
//   bench_reading_win [SAMPLE]      (default samples/thousand.tly, from the root of the tree)
// Prints the median of nine rounds of each, and of their ratio.
#include <windows.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "bench/big_document.h"
#include "document/ContactList.h"
#include "document/reader.h"

namespace {

using document::Bytes;

[[noreturn]] void fail(const char* what) {
  std::printf("%s: error %lu\n", what, GetLastError());
  std::exit(1);
}

Bytes slurp(const char* path) {
  const HANDLE file = CreateFileA(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                  FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
  if (file == INVALID_HANDLE_VALUE) fail(path);
  const DWORD size = GetFileSize(file, nullptr);
  Bytes bytes(size);
  DWORD got = 0;
  if (!ReadFile(file, bytes.data(), size, &got, nullptr) || got != size) fail(path);
  CloseHandle(file);
  return bytes;
}

template <typename Work>
double milliseconds(const Work& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
      .count();
}

template <typename Figures>
double median(Figures figures) {
  std::sort(figures.begin(), figures.end());
  return figures[figures.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
  const char* const path = "bench_reading.tly";
  const std::string text =
      bench::bigDocument(slurp(argc > 1 ? argv[1] : "samples/thousand.tly").view());
  const HANDLE file =
      CreateFileA(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  DWORD put = 0;
  if (!WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &put, nullptr) ||
      put != text.size())
    fail(path);
  CloseHandle(file);

  std::array<double, 9> floors{};
  std::array<double, 9> readings{};
  std::array<double, 9> ratios{};
  std::size_t lines = 0;
  int contacts = 0;
  for (std::size_t round = 0; round < ratios.size(); ++round) {
    for (int turn = 0; turn < 10; ++turn) {
      floors[round] += milliseconds([&] { lines = bench::countNewlines(slurp(path).view()); }) / 10;
      readings[round] += milliseconds([&] {
                           document::ContactList list;
                           contacts = document::read(slurp(path), list).contacts;
                         }) /
                         10;
    }
    ratios[round] = readings[round] / floors[round];
  }
  DeleteFileA(path);
  std::printf("%d contacts, %zu lines, %zu bytes\n", contacts, lines, text.size());
  std::printf("floor %.2f ms, reading %.2f ms, ratio %.3f (medians of nine)\n", median(floors),
              median(readings), median(ratios));
  return contacts == document::ContactList::maxCount ? 0 : 1;
}
