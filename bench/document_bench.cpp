// Measures reading and writing a document, against floors measured in the same run:
//   document_bench [SAMPLE]      (default samples/thousand.tly, from the root of the tree)
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>

#include "bench/big_document.h"
#include "document/ContactList.h"
#include "document/reader.h"
#include "document/writer.h"

namespace {

using document::Bytes;
using document::ContactList;

double seconds(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void fail(const char* what) {
  std::perror(what);
  std::exit(1);
}

/// One read of the whole file into fresh storage.
Bytes slurp(const std::string& path) {
  std::FILE* const file = std::fopen(path.c_str(), "rb");
  if (file == nullptr) fail(path.c_str());
  std::setvbuf(file, nullptr, _IONBF, 0);
  std::fseek(file, 0, SEEK_END);
  Bytes bytes(static_cast<std::size_t>(std::ftell(file)));
  std::rewind(file);
  if (std::fread(bytes.data(), 1, bytes.size(), file) != bytes.size()) fail(path.c_str());
  std::fclose(file);
  return bytes;
}

/// Reading a full document against one read and a newline scan of the same bytes. Both run in every
/// iteration, so that both are slow when the machine is slow.
void readFull(benchmark::State& state, const std::string& path) {
  double floor = 0;
  double reading = 0;
  for (auto _ : state) {
    floor += seconds([&] {
      const Bytes bytes = slurp(path);
      benchmark::DoNotOptimize(bench::countNewlines(bytes.view()));
    });
    reading += seconds([&] {
      ContactList list;
      if (document::read(slurp(path), list).contacts != ContactList::maxCount) fail("short");
      benchmark::DoNotOptimize(list.count());
    });
  }
  const auto rounds = static_cast<double>(state.iterations());
  state.counters["floor_ms"] = floor / rounds * 1000;
  state.counters["read_ms"] = reading / rounds * 1000;
  state.counters["ratio"] = reading / floor;
}

/// Composing the text of a full document, without a floor.
void writeFull(benchmark::State& state, const std::string& path) {
  ContactList list;
  document::read(slurp(path), list);
  for (auto _ : state) {
    std::size_t size = 0;
    document::write(list, [&](std::string_view piece) { size += piece.size(); });
    benchmark::DoNotOptimize(size);
  }
}

/// All entries of the name box.
void nameEntries(benchmark::State& state, const std::string& path) {
  ContactList list;
  document::read(slurp(path), list);
  for (auto _ : state)
    for (int i = 0; i < list.count(); ++i) benchmark::DoNotOptimize(list.nameEntry(i));
}

/// One contact out of the middle of a full list and a new one at its end.
void removeMiddle(benchmark::State& state, const std::string& path) {
  ContactList list;
  document::read(slurp(path), list);
  for (auto _ : state) {
    list.remove(list.count() / 2);
    if (!list.append()) fail("append");
  }
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  const std::string text =
      bench::bigDocument(slurp(argc > 1 ? argv[1] : "samples/thousand.tly").view());
  const std::string path = "document_bench.tly";
  std::FILE* const file = std::fopen(path.c_str(), "wb");
  if (file == nullptr) fail(path.c_str());
  if (std::fwrite(text.data(), 1, text.size(), file) != text.size()) fail(path.c_str());
  std::fclose(file);

  const auto add = [&](const char* name, void (*work)(benchmark::State&, const std::string&)) {
    return benchmark::RegisterBenchmark(name, work, path)->Repetitions(9)->ReportAggregatesOnly();
  };
  add("read a full document", readFull)->Iterations(20)->Unit(benchmark::kMillisecond);
  add("write a full document", writeFull)->Unit(benchmark::kMillisecond);
  add("all name box entries", nameEntries)->Unit(benchmark::kMillisecond);
  add("remove from the middle", removeMiddle)->Unit(benchmark::kMicrosecond);
  benchmark::RunSpecifiedBenchmarks();
  std::remove(path.c_str());
  return 0;
}
