// The example project over and over: the same each time, and in the same memory.
#include "apps/tidemark/ProgramFixture.h"
#include "apps/tidemark/session/Installation.h"
#include "apps/tidemark/session/ModuleAccess.h"
#include "em5/game/HostSession.h"
#include "qsf/Qsf.h"
#include "qsf/log/LogSystem.h"
#include "tests/support/Paths.h"

#include <malloc.h>

#include <random>
#include <set>

namespace tidemark {

namespace {

namespace fs = std::filesystem;

const std::string HARBOUR_MAP = "harbour/map/harbour/harbour";

class EqualRuns : public Program {
protected:
  // Each run finds the project as it is, whatever the one before has written into it.
  std::string playHarbour(std::uint64_t seed) const {
    fs::remove_all(folder());
    fs::copy(paths::sourceDirectory() + "/examples/harbour", folder(), fs::copy_options::recursive);
    const Outcome outcome = run({"run", folder(), "--seconds", "30", "--log-level", "trace", "--seed",
                                 std::to_string(seed), "--report", folder() + "/report.json"});
    EXPECT_EQ(outcome.code, 0);
    return outcome.output + readAll(folder() + "/report.json");
  }
};

TEST_F(EqualRuns, TheHarbourGivesTheSameLogAndReportByteForByteWithEachOfTwentySeeds) {
  std::mt19937_64 seeds(20);
  std::set<std::string> outputs;
  for (int i = 0; i < 20; ++i) {
    const std::uint64_t seed = seeds();
    const std::string first = playHarbour(seed);
    EXPECT_TRUE(first == playHarbour(seed)) << "seed " << seed;
    outputs.insert(first);
  }
  EXPECT_GT(outputs.size(), 1u) << "the seed changes nothing";
}

/// The harbour in this process, where its memory can be looked at.
class LongRun : public testing::Test {
protected:
  LongRun() : mFolder(fs::path(platform::makeTemporaryDirectory())), mBefore(fs::current_path()) {
    fs::copy(paths::sourceDirectory() + "/examples/harbour", mFolder / "harbour", fs::copy_options::recursive);
    fs::current_path(mFolder / "harbour");
    session.getQsf().getLogSystem().addListener([this](const qsf::LogSystem::Record&) { ++lines; });
    session.mountBaseProject(baseProjectDirectory());
    session.mountMod((mFolder / "harbour").string());
    session.startup();
    EXPECT_TRUE(session.loadPlugin(modulePath()));
    session.startGame(HARBOUR_MAP);
  }
  ~LongRun() override {
    fs::current_path(mBefore);
    fs::remove_all(mFolder);
  }

  void runMinutes(int minutes) {
    for (int frame = 0; frame < minutes * FRAMES_OF_A_MINUTE; ++frame)
      session.runFrame(qsf::Time::fromSeconds(0.05));
  }
  /// Bytes that are in use, whatever the library keeps back. 0 under a sanitizer, which has an allocator of its own.
  static std::int64_t memory() { return static_cast<std::int64_t>(mallinfo2().uordblks); }

  static constexpr int FRAMES_OF_A_MINUTE = 1200;
  std::uint64_t lines = 0; ///< of the log
  LoadedModule module;
  em5::HostSession session{em5::HostSession::Options{.logThreshold = 0}};

private:
  fs::path mFolder, mBefore;
};

// The bounds leave room for the record of calls, which keeps some hundred bytes of each.

TEST_F(LongRun, AnHourOfTheHarbourKeepsItsMemory) {
  runMinutes(10);
  const std::int64_t before = memory();
  runMinutes(50);
  EXPECT_EQ(session.getTime(), qsf::Time::fromSeconds(3600));
  EXPECT_LT(memory() - before, 256 * 1024);
}

TEST_F(LongRun, SixtyDaysOfTheHarbourKeepTheirMemory) {
  std::int64_t before = 0;
  for (int day = 0; day < 60; ++day) {
    if (day == 10) before = memory();
    session.startGame(HARBOUR_MAP);
    runMinutes(1);
  }
  EXPECT_GT(lines, 60u * 20u) << "the days are too quiet";
  EXPECT_LT(memory() - before, 128 * 1024);
}

}

}
