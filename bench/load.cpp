// What loading costs: from a file on disk to finished records, in lines a second, and the memory that stays, in bytes
// per trigger. A trigger is the five lines of the tick benchmark, each with a variable of its own.
#include "bench/support/Benchmarks.h"
#include "game_plugin/scenario/loading/ScriptParser.h"
#include "game_plugin/scenario/tick/ScriptDocument.h"

#include <fmt/format.h>

#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <malloc.h>
#include <memory>
#include <new>
#include <string_view>

namespace {

/// Bytes in use through operator new, slack of the allocator included.
std::atomic<std::int64_t> bytesInUse{0};

void* allocate(std::size_t size, std::size_t alignment) {
  void* const block = alignment <= alignof(std::max_align_t)
                          ? std::malloc(size)
                          : std::aligned_alloc(alignment, (size + alignment - 1) / alignment * alignment);
  if (!block) throw std::bad_alloc();
  bytesInUse.fetch_add(static_cast<std::int64_t>(malloc_usable_size(block)), std::memory_order_relaxed);
  return block;
}

void release(void* block) noexcept {
  if (block) bytesInUse.fetch_sub(static_cast<std::int64_t>(malloc_usable_size(block)), std::memory_order_relaxed);
  std::free(block);
}

}

void* operator new(std::size_t size) { return allocate(size, 1); }
void* operator new[](std::size_t size) { return allocate(size, 1); }
void* operator new(std::size_t size, std::align_val_t alignment) {
  return allocate(size, static_cast<std::size_t>(alignment));
}
void* operator new[](std::size_t size, std::align_val_t alignment) {
  return allocate(size, static_cast<std::size_t>(alignment));
}
void operator delete(void* block) noexcept { release(block); }
void operator delete[](void* block) noexcept { release(block); }
void operator delete(void* block, std::size_t) noexcept { release(block); }
void operator delete[](void* block, std::size_t) noexcept { release(block); }
void operator delete(void* block, std::align_val_t) noexcept { release(block); }
void operator delete[](void* block, std::align_val_t) noexcept { release(block); }
void operator delete(void* block, std::size_t, std::align_val_t) noexcept { release(block); }
void operator delete[](void* block, std::size_t, std::align_val_t) noexcept { release(block); }

namespace {

using tidemark::bench::Results;
using tidemark::bench::Table;

constexpr std::int64_t LINES_PER_TRIGGER = 5;
constexpr std::int64_t COUNTS[] = {1'000, 10'000, 100'000};

/// A script on disk for the time of a benchmark.
class ScriptFile {
public:
  ScriptFile(std::int64_t triggers, std::string_view variable)
      : mPath(std::filesystem::temp_directory_path() / fmt::format("tidemark-bench-{}-{}.script", variable, triggers)) {
    std::ofstream file(mPath, std::ios::binary);
    for (std::int64_t i = 0; i < triggers; ++i)
      file << fmt::format("InitNewTrigger(\"T_{0}\",true,true);\n"
                          "InitConditions();\n"
                          "  CompareValues(\"{1}_{0}\",\">=\",\"0\");\n"
                          "InitEffects();\n"
                          "  VariableModify(\"{1}_{0}\",\"+\",\"1\",\"{1}_{0}\");\n",
                          i, variable);
  }
  ~ScriptFile() {
    std::error_code ignored;
    std::filesystem::remove(mPath, ignored);
  }
  ScriptFile(const ScriptFile&) = delete;
  ScriptFile& operator=(const ScriptFile&) = delete;

  std::string path() const { return mPath.string(); }

private:
  std::filesystem::path mPath;
};

void load(benchmark::State& state) {
  const ScriptFile file(state.range(0), "v");
  const script::ScriptParser parser;
  for (auto _ : state) {
    const auto program = parser.parse(file.path(), "bench/load");
    if (program->triggers().size() != static_cast<std::size_t>(state.range(0)))
      state.SkipWithError("the script was not read whole");
  }
}

/// Memory of a script that is loaded: its program and one run of it, without what a handler adds.
double measureBytesPerTrigger(std::int64_t triggers) {
  const ScriptFile file(triggers, "m");
  const std::int64_t before = bytesInUse.load();
  const script::ScriptDocument document(script::ScriptParser().parse(file.path(), "bench/memory"));
  return static_cast<double>(bytesInUse.load() - before) / static_cast<double>(document.triggers.size());
}

void memory(benchmark::State& state) {
  static const double bytes = measureBytesPerTrigger(COUNTS[2]);
  for (auto _ : state)
    benchmark::DoNotOptimize(bytes);
  state.counters["bytes_per_trigger"] = bytes;
}

Table makeTable(const Results& results) {
  using tidemark::bench::grouped;
  Table table({"loading", "result"});
  for (const std::int64_t count : COUNTS) {
    const double nanoseconds = results.nanoseconds(fmt::format("load/{}", count));
    const auto lines = static_cast<double>(count * LINES_PER_TRIGGER);
    table.add({fmt::format("{} lines, lines a second", grouped(lines)), grouped(lines / nanoseconds * 1e9)});
  }
  table.add({"memory, bytes per trigger", grouped(results.counter("memory", "bytes_per_trigger"))});
  return table;
}

void registerAll() {
  benchmark::RegisterBenchmark("memory", &memory)->Iterations(1);
  auto* registered = benchmark::RegisterBenchmark("load", &load)->Unit(benchmark::kMillisecond);
  for (const std::int64_t count : COUNTS)
    registered->Arg(count);
}

}

int main(int argc, char** argv) {
  registerAll();
  return tidemark::bench::runAndPrint(argc, argv, &makeTable);
}
