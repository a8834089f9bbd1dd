#pragma once
#include "apps/tidemark/platform/Platform.h"
#include "apps/tidemark/test/TestResult.h"

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace tidemark::test {

/// Runs tests, each in a process and a temporary folder of its own, several at a time. The folders go when their tests
/// have ended, however they end.
class TestScheduler {
public:
  struct Options {
    std::size_t jobs = 1;
    std::chrono::milliseconds limit{60000}; ///< of real time; a test that takes longer is killed and fails
    bool strict = false;                    ///< notes are failures
    std::string blank;                      ///< as on the command line; empty: nothing is blanked
    std::vector<std::string> allowWrite; ///< folders in which scripts may write beside the working directory; absolute
  };
  /// Called for each test, in the order of the files.
  using Report = std::function<void(const TestResult&)>;

  explicit TestScheduler(const Options& options) : mOptions(options) {}
  /// All results, in the order of the files; fewer if the program was interrupted. Throws std::system_error.
  std::vector<TestResult> run(const std::vector<std::string>& files, const Report& report);

private:
  using Clock = std::chrono::steady_clock;
  struct Running {
    std::size_t index;
    std::string folder;
    platform::ChildProcess process;
    Clock::time_point start;
  };
  struct Slot {
    TestResult result;
    bool done = false;
  };

  void start(std::size_t index, const std::string& file);
  bool collect(Running& running);
  void finish(const Running& running, Outcome outcome);
  void killAll();

  Options mOptions;
  std::string mFolder;
  std::vector<Running> mRunning;
  std::vector<Slot> mSlots;
};

}
