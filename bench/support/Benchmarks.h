#pragma once
#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace tidemark::bench {

/// The results of a run by the benchmark's name: the fastest of its repetitions, since whatever disturbs one
/// (another program, a neighbour of a virtual machine) only ever adds to it.
class Results : public benchmark::ConsoleReporter {
public:
  Results();
  void ReportRuns(const std::vector<Run>& runs) override;

  /// Nanoseconds of processor time for one iteration; NaN if the benchmark didn't run or failed.
  double nanoseconds(const std::string& name) const;
  /// A counter that the benchmark set, from its last run; NaN if it didn't.
  double counter(const std::string& name, const std::string& counterName) const;
  bool hasFailed() const { return mFailed; }

private:
  std::map<std::string, std::vector<double>> mTimes;
  std::map<std::string, std::map<std::string, double>> mCounters;
  bool mFailed = false;
};

/// A table for people, or with `--markdown` one to paste. The first row is the heading.
class Table {
public:
  explicit Table(std::vector<std::string> heading) : mRows{std::move(heading)} {}
  void add(std::vector<std::string> row) { mRows.push_back(std::move(row)); }
  enum class Style { PLAIN, MARKDOWN };
  std::string text(Style style) const;

private:
  std::vector<std::vector<std::string>> mRows;
};

/// Runs the registered benchmarks, some repetitions each, in mixed order, and prints the table that `makeTable` builds
/// of their results. Returns the program's exit code.
int runAndPrint(int argc, char** argv, Table (*makeTable)(const Results& results));

/// A number with one digit behind the point, "-" if there is none.
std::string oneDigit(double value);
/// "1 000 000"
std::string grouped(double value);

}
