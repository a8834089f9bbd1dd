#include "bench/support/Benchmarks.h"

#include "em5/base/GameLayer.h"
#include "qsf/Qsf.h"
#include "qsf/log/LogSystem.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <iterator>
#include <limits>
#include <memory>
#include <string_view>

namespace tidemark::bench {

namespace {

constexpr double MISSING = std::numeric_limits<double>::quiet_NaN();

/// "idle/script/1000/iterations:5/repeats:5" is filed under "idle/script/1000".
std::string plainName(const benchmark::BenchmarkReporter::Run& run) {
  std::string name = run.run_name.function_name;
  if (!run.run_name.args.empty()) name += "/" + run.run_name.args;
  return name;
}

}

Results::Results() : ConsoleReporter(OO_Tabular) {}

void Results::ReportRuns(const std::vector<Run>& runs) {
  std::vector<Run> medians;
  std::copy_if(runs.begin(), runs.end(), std::back_inserter(medians), [](const Run& run) {
    return run.error_occurred || (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median");
  });
  if (!medians.empty()) ConsoleReporter::ReportRuns(medians);
  for (const Run& run : runs) {
    if (run.error_occurred) {
      mFailed = true;
      continue;
    }
    if (run.run_type == Run::RT_Aggregate) continue;
    const std::string name = plainName(run);
    mTimes[name].push_back(run.cpu_accumulated_time / static_cast<double>(run.iterations) * 1e9);
    for (const auto& [counterName, counter] : run.counters)
      mCounters[name][counterName] = counter;
  }
}

double Results::nanoseconds(const std::string& name) const {
  const auto found = mTimes.find(name);
  if (found == mTimes.end()) return MISSING;
  return *std::min_element(found->second.begin(), found->second.end());
}

double Results::counter(const std::string& name, const std::string& counterName) const {
  const auto found = mCounters.find(name);
  if (found == mCounters.end()) return MISSING;
  const auto value = found->second.find(counterName);
  return value == found->second.end() ? MISSING : value->second;
}

std::string Table::text(Style style) const {
  std::vector<std::size_t> widths(mRows.front().size());
  for (const auto& row : mRows)
    for (std::size_t i = 0; i < row.size(); ++i)
      widths[i] = std::max(widths[i], row[i].size());
  std::string result;
  for (std::size_t i = 0; i < mRows.size(); ++i) {
    for (std::size_t column = 0; column < mRows[i].size(); ++column) {
      const std::string_view separator = style == Style::MARKDOWN ? "| " : "  ";
      // Names on the left, numbers on the right.
      result += column == 0 ? fmt::format("{}{:<{}} ", separator, mRows[i][column], widths[column])
                            : fmt::format("{}{:>{}} ", separator, mRows[i][column], widths[column]);
    }
    if (style == Style::MARKDOWN)
      result += "|";
    else
      result.pop_back();
    result += "\n";
    if (i == 0 && style == Style::MARKDOWN) {
      for (std::size_t column = 0; column < widths.size(); ++column)
        result += column == 0 ? "|---" : "|--:";
      result += "|\n";
    }
  }
  return result;
}

int runAndPrint(int argc, char** argv, Table (*makeTable)(const Results& results)) {
  Table::Style style = Table::Style::PLAIN;
  std::vector<char*> arguments(argv, argv + argc);
  const auto isMarkdown = [](const char* argument) { return std::string_view(argument) == "--markdown"; };
  if (const auto found = std::find_if(arguments.begin() + 1, arguments.end(), isMarkdown); found != arguments.end()) {
    style = Table::Style::MARKDOWN;
    arguments.erase(found);
  }
  // Repetitions of all benchmarks are mixed, so that a slow spell of the machine hits both sides of a ratio.
  char repetitions[] = "--benchmark_repetitions=11";
  char mixed[] = "--benchmark_enable_random_interleaving=true";
  char shortTime[] = "--benchmark_min_time=0.05";
  arguments.insert(arguments.begin() + 1, {repetitions, mixed, shortTime});

  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 2;

  std::unique_ptr<qsf::Qsf> own; // unless the program has a host already
  if (!qsf::Qsf::instance()) {
    own = std::make_unique<qsf::Qsf>();
    em5::addGameLayer(*own);
  }
  qsf::Qsf::instance()->getLogSystem().setThreshold(qsf::LogSystem::ERROR);
  Results results;
  benchmark::RunSpecifiedBenchmarks(&results);
  std::fflush(stdout);
  fmt::print("\n{}", makeTable(results).text(style));
  return results.hasFailed() ? 1 : 0;
}

std::string oneDigit(double value) { return std::isnan(value) ? "-" : fmt::format("{:.1f}", value); }

std::string grouped(double value) {
  if (std::isnan(value)) return "-";
  std::string digits = fmt::format("{:.0f}", value);
  for (std::ptrdiff_t i = static_cast<std::ptrdiff_t>(digits.size()) - 3; i > 0; i -= 3)
    digits.insert(static_cast<std::size_t>(i), 1, ' ');
  return digits;
}

}
