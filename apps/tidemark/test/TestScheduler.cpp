#include "apps/tidemark/test/TestScheduler.h"

#include "apps/tidemark/test/Discovery.h"
#include "apps/tidemark/test/SingleTest.h"
#include "apps/tidemark/text/Encoding.h"

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <thread>
#include <utility>

namespace tidemark::test {

namespace {

namespace fs = std::filesystem;

constexpr std::chrono::milliseconds POLL_INTERVAL{2};

// A temporary folder that goes with this object.
class TemporaryFolder {
public:
  TemporaryFolder() : mPath(platform::makeTemporaryDirectory()) {}
  ~TemporaryFolder() {
    std::error_code ignored;
    fs::remove_all(mPath, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  const std::string& path() const { return mPath; }

private:
  std::string mPath;
};

// A test whose process didn't come to its end.
Failure describeEnd(const std::string& folder, const std::string& text) {
  Failure failure{0, Failure::Kind::ERROR, text, "", {}};
  appendTail(failure.log, fs::path(folder) / LOG_FILE, "last lines of the log:");
  appendTail(failure.log, fs::path(folder) / OUTPUT_FILE, "last lines of the output:");
  return failure;
}

Outcome readOutcome(const std::string& folder, const platform::ExitStatus& status) {
  if (status.signal != 0)
    return {{describeEnd(folder, fmt::format("the test's process crashed with {}", status.signalName))}, {}};
  const fs::path result = fs::path(folder) / RESULT_FILE;
  if (status.code != 0 || !fs::exists(result))
    return {{describeEnd(folder, fmt::format("the test's process ended with exit code {}", status.code))}, {}};
  try {
    return decodeOutcome(readFile(result.string()));
  } catch (const std::exception& fault) {
    return {{describeEnd(folder, fmt::format("the test's result can't be read: {}", fault.what()))}, {}};
  }
}

}

std::vector<TestResult> TestScheduler::run(const std::vector<std::string>& files, const Report& report) {
  const TemporaryFolder folder;
  mFolder = folder.path();
  mSlots.assign(files.size(), {});
  std::size_t next = 0, reported = 0;
  while (reported < files.size() && !platform::isInterrupted()) {
    while (next < files.size() && mRunning.size() < std::max<std::size_t>(mOptions.jobs, 1)) {
      start(next, files[next]);
      ++next;
    }
    const auto ended =
        std::remove_if(mRunning.begin(), mRunning.end(), [this](Running& running) { return collect(running); });
    if (ended == mRunning.end()) std::this_thread::sleep_for(POLL_INTERVAL);
    mRunning.erase(ended, mRunning.end());
    for (; reported < files.size() && mSlots[reported].done; ++reported)
      report(mSlots[reported].result);
  }
  killAll();
  std::vector<TestResult> results;
  for (std::size_t i = 0; i < reported; ++i)
    results.push_back(std::move(mSlots[i].result));
  return results;
}

void TestScheduler::start(std::size_t index, const std::string& file) {
  const std::string folder = (fs::path(mFolder) / fmt::format("{}", index)).string();
  fs::create_directory(folder);
  mSlots[index].result.file = file;
  const std::string output = (fs::path(folder) / OUTPUT_FILE).string();
  std::vector<std::string> command = {platform::executablePath(), "single-test", file, folder};
  for (const std::string& allowed : mOptions.allowWrite)
    command.insert(command.end(), {"--allow-write", allowed});
  if (!mOptions.blank.empty()) command.insert(command.end(), {"--blank", mOptions.blank});
  mRunning.push_back({index, folder, platform::ChildProcess::start(command, output), Clock::now()});
}

// Whether the test has ended.
bool TestScheduler::collect(Running& running) {
  if (const auto status = running.process.poll()) {
    finish(running, readOutcome(running.folder, *status));
    return true;
  }
  if (Clock::now() - running.start < mOptions.limit) return false;
  running.process.kill();
  finish(running, {{describeEnd(running.folder, fmt::format("the test ran longer than {} s and was ended",
                                                            static_cast<double>(mOptions.limit.count()) / 1000.0))},
                   {}});
  return true;
}

void TestScheduler::finish(const Running& running, Outcome outcome) {
  if (mOptions.strict)
    for (Note& note : std::exchange(outcome.notes, {}))
      outcome.failures.push_back({note.line, Failure::Kind::ERROR, std::move(note.text), "", {}});
  Slot& slot = mSlots[running.index];
  slot.result.seconds = std::chrono::duration<double>(Clock::now() - running.start).count();
  slot.result.failures = std::move(outcome.failures);
  slot.result.notes = std::move(outcome.notes);
  slot.done = true;
  std::error_code ignored;
  fs::remove_all(running.folder, ignored);
}

void TestScheduler::killAll() {
  for (Running& running : mRunning)
    running.process.kill();
  mRunning.clear();
}

}
