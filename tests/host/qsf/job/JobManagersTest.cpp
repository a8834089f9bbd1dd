#include "qsf/job/JobManagers.h"
#include "qsf/Qsf.h"
#include "qsf/job/JobProxy.h"
#include "qsf/log/FaultCounter.h"
#include "qsf/log/LogSystem.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace {

using qsf::JobArguments;
using qsf::JobProxy;
using qsf::Time;

struct Jobs {
  static constexpr qsf::StringHash SIMULATION_LOGIC{"test::LOGIC"};
  static constexpr qsf::StringHash SIMULATION_FIRE{"test::FIRE"};
  static constexpr qsf::StringHash ANIMATION_VEHICLE{"test::VEHICLE"};
  static constexpr qsf::StringHash REALTIME_GUI_DEBUG{"test::GUI"};
  static void addTo(const qsf::Qsf& host) {
    using Kind = qsf::JobManagers::Kind;
    host.getJobManagers().addJobManager("test::LOGIC", Kind::SIMULATION);
    host.getJobManagers().addJobManager("test::FIRE", Kind::SIMULATION);
    host.getJobManagers().addJobManager("test::VEHICLE", Kind::REALTIME);
    host.getJobManagers().addJobManager("test::GUI", Kind::REALTIME);
  }
};

class JobManagersTest : public testing::Test {
protected:
  JobManagersTest() {
    Jobs::addTo(host);
    host.getLogSystem().addListener([this](const qsf::LogSystem::Record& record) {
      lines.push_back(std::to_string(record.severity) + " " + std::string(record.message));
    });
  }
  JobProxy::JobFunction note(const std::string& text) {
    return [this, text](const JobArguments&) { calls += text; };
  }
  void frame(double seconds = 0.05) { host.getJobManagers().runFrame(Time::fromSeconds(seconds)); }

  qsf::Qsf host;
  std::string calls;
  std::vector<std::string> lines;
};

TEST_F(JobManagersTest, ManagersRunInTheirFixedOrderAndJobsInThatOfRegistration) {
  JobProxy gui, vehicle, fire, logic, secondLogic;
  gui.registerAt(Jobs::REALTIME_GUI_DEBUG, note("gui "));
  vehicle.registerAt(Jobs::ANIMATION_VEHICLE, note("vehicle "));
  fire.registerAt(Jobs::SIMULATION_FIRE, note("fire "));
  logic.registerAt(Jobs::SIMULATION_LOGIC, note("logic1 "));
  secondLogic.registerAt(Jobs::SIMULATION_LOGIC, note("logic2 "));
  frame();
  EXPECT_EQ(calls, "logic1 logic2 fire vehicle gui ");
}

TEST_F(JobManagersTest, TheWorldMovesInTheFirstManagerOfTheSimulation) {
  EXPECT_EQ(host.getJobManagers().getSimulationManager(), Jobs::SIMULATION_LOGIC);
  JobProxy world;
  world.registerInSimulation(note("world"));
  EXPECT_EQ(host.getJobManagers().getNumberOfJobs(Jobs::SIMULATION_LOGIC), 1u);
  frame();
  host.getJobManagers().setPaused(true);
  frame();
  EXPECT_EQ(calls, "world");
}

TEST_F(JobManagersTest, AManagerAddedAgainStaysAsItIs) {
  host.getJobManagers().addJobManager("test::LOGIC", qsf::JobManagers::Kind::REALTIME);
  JobProxy logic;
  logic.registerAt(Jobs::SIMULATION_LOGIC, note("logic"));
  host.getJobManagers().setPaused(true);
  frame();
  EXPECT_EQ(calls, "");
}

TEST(JobManagers, AHostWithoutAGameHasNoStepForTheWorld) {
  qsf::Qsf host;
  int warnings = 0;
  host.getLogSystem().addListener([&](const qsf::LogSystem::Record& record) { warnings += record.severity == 3; });
  JobProxy world;
  world.registerInSimulation([](const JobArguments&) {});
  EXPECT_FALSE(world.isRegistered());
  EXPECT_EQ(warnings, 1);
}

TEST_F(JobManagersTest, RegisteringAgainMovesAJobToTheEnd) {
  JobProxy a, b;
  a.registerAt(Jobs::SIMULATION_LOGIC, note("a"));
  b.registerAt(Jobs::SIMULATION_LOGIC, note("b"));
  a.registerAt(Jobs::SIMULATION_LOGIC, note("A"));
  EXPECT_EQ(host.getJobManagers().getNumberOfJobs(Jobs::SIMULATION_LOGIC), 2u);
  frame();
  EXPECT_EQ(calls, "bA");
}

TEST_F(JobManagersTest, AJobRegisteredInsideAFrameRunsFromTheNextFrameOn) {
  JobProxy outer, sameManager, laterManager;
  outer.registerAt(Jobs::SIMULATION_LOGIC, [&](const JobArguments&) {
    calls += "outer ";
    if (!sameManager.isRegistered()) {
      sameManager.registerAt(Jobs::SIMULATION_LOGIC, note("same "));
      laterManager.registerAt(Jobs::REALTIME_GUI_DEBUG, note("later "));
    }
  });
  frame();
  EXPECT_EQ(calls, "outer ");
  frame();
  EXPECT_EQ(calls, "outer outer same later ");
}

TEST_F(JobManagersTest, AJobUnregisteredInsideAFrameDoesNotRunAnyMore) {
  JobProxy first, second, third;
  first.registerAt(Jobs::SIMULATION_LOGIC, [&](const JobArguments&) {
    calls += "first ";
    second.unregister();
    third.unregister();
  });
  second.registerAt(Jobs::SIMULATION_LOGIC, note("second "));
  third.registerAt(Jobs::SIMULATION_FIRE, note("third "));
  frame();
  frame();
  EXPECT_EQ(calls, "first first ");
  EXPECT_FALSE(second.isRegistered());
  EXPECT_EQ(host.getJobManagers().getNumberOfJobs(Jobs::SIMULATION_LOGIC), 1u);
  EXPECT_EQ(host.getJobManagers().getNumberOfJobs(Jobs::SIMULATION_FIRE), 0u);
}

TEST_F(JobManagersTest, AJobLeavingDoesNotCostTheOnesBehindItTheirFrame) {
  JobProxy once, behind;
  once.registerAt(Jobs::SIMULATION_LOGIC, [&](const JobArguments&) {
    calls += "once ";
    once.unregister();
  });
  behind.registerAt(Jobs::SIMULATION_LOGIC, note("behind "));
  frame();
  frame();
  EXPECT_EQ(calls, "once behind behind ");
}

TEST_F(JobManagersTest, ARunningJobMayDestroyItsOwnerAndItself) {
  struct Owner {
    JobProxy proxy;
    std::string text = "a text that is long enough to lie on the heap";
  };
  auto owner = std::make_unique<Owner>();
  const auto captured = std::make_shared<std::string>("captured by the function itself");
  owner->proxy.registerAt(Jobs::SIMULATION_LOGIC, [&owner, captured, this](const JobArguments& arguments) {
    owner.reset();
    // The function and its captures must live until the call is over.
    calls += *captured;
    EXPECT_EQ(arguments.getTimePassed(), Time::fromSeconds(0.05));
  });
  JobProxy behind;
  behind.registerAt(Jobs::SIMULATION_LOGIC, note(" behind"));
  frame();
  EXPECT_EQ(calls, "captured by the function itself behind");
  EXPECT_EQ(captured.use_count(), 1);
  frame();
  EXPECT_EQ(calls, "captured by the function itself behind behind");
}

TEST_F(JobManagersTest, AFunctionThatOwnsOtherProxiesMayGo) {
  auto inner = std::make_shared<JobProxy>();
  inner->registerAt(Jobs::SIMULATION_LOGIC, note("inner "));
  JobProxy outer;
  outer.registerAt(Jobs::SIMULATION_LOGIC, [inner](const JobArguments&) {});
  inner.reset();
  outer.unregister();
  frame();
  EXPECT_EQ(calls, "");
  EXPECT_EQ(host.getJobManagers().getNumberOfJobs(Jobs::SIMULATION_LOGIC), 0u);
}

TEST_F(JobManagersTest, AFaultIsLoggedWithItsManagerAndCostsThatCallOnly) {
  JobProxy faulty, unknown, sound;
  int calls1 = 0;
  faulty.registerAt(Jobs::SIMULATION_LOGIC, [&](const JobArguments&) {
    ++calls1;
    throw std::runtime_error("no such thing");
  });
  unknown.registerAt(Jobs::ANIMATION_VEHICLE, [](const JobArguments&) { throw 7; });
  sound.registerAt(Jobs::SIMULATION_LOGIC, note("sound "));
  frame();
  frame();
  EXPECT_EQ(calls1, 2);
  EXPECT_EQ(calls, "sound sound ");
  ASSERT_EQ(lines.size(), 4u);
  EXPECT_EQ(lines[0], "4 Fault in a job of test::LOGIC: no such thing");
  EXPECT_EQ(lines[1], "4 Fault in a job of test::VEHICLE: unknown exception");
  EXPECT_EQ(host.getFaultCounter().getCount(), 4u);
}

TEST_F(JobManagersTest, AnEmptyFunctionIsAFaultToo) {
  JobProxy empty;
  empty.registerAt(Jobs::SIMULATION_LOGIC, JobProxy::JobFunction());
  frame();
  EXPECT_EQ(host.getFaultCounter().getCount(), 1u);
}

TEST_F(JobManagersTest, APauseHoldsFromTheNextFrameOnAndRestsTheSimulation) {
  JobProxy logic, fire, vehicle, gui;
  logic.registerAt(Jobs::SIMULATION_LOGIC, [this](const JobArguments&) {
    calls += "logic ";
    host.getJobManagers().setPaused(true);
  });
  fire.registerAt(Jobs::SIMULATION_FIRE, note("fire "));
  vehicle.registerAt(Jobs::ANIMATION_VEHICLE, note("vehicle "));
  gui.registerAt(Jobs::REALTIME_GUI_DEBUG, note("gui "));
  frame();
  EXPECT_EQ(calls, "logic fire vehicle gui ");
  calls.clear();
  frame();
  EXPECT_EQ(calls, "vehicle gui ");
  EXPECT_TRUE(host.getJobManagers().isPaused());
  calls.clear();
  host.getJobManagers().setPaused(false);
  frame();
  EXPECT_EQ(calls, "logic fire vehicle gui ");
}

TEST_F(JobManagersTest, AHeldSimulationRestsApartFromAPause) {
  JobProxy logic, gui;
  logic.registerAt(Jobs::SIMULATION_LOGIC, note("logic "));
  gui.registerAt(Jobs::REALTIME_GUI_DEBUG, note("gui "));
  host.getJobManagers().setSimulationHeld(true);
  frame();
  EXPECT_EQ(calls, "gui ");
  EXPECT_FALSE(host.getJobManagers().isPaused());
  host.getJobManagers().setPaused(true);
  host.getJobManagers().setSimulationHeld(false);
  frame();
  EXPECT_EQ(calls, "gui gui ") << "the pause goes on";
  host.getJobManagers().setPaused(false);
  frame();
  EXPECT_EQ(calls, "gui gui logic gui ");
}

TEST_F(JobManagersTest, PausedTimeDoesNotPassForTheSimulation) {
  JobProxy logic;
  Time sum;
  logic.registerAt(Jobs::SIMULATION_LOGIC, [&](const JobArguments& arguments) { sum += arguments.getTimePassed(); });
  frame();
  host.getJobManagers().setPaused(true);
  frame();
  frame();
  host.getJobManagers().setPaused(false);
  frame();
  EXPECT_EQ(sum, Time::fromSeconds(0.1));
}

TEST_F(JobManagersTest, TimeOfFramesAddsUpExactly) {
  JobProxy job;
  Time sum;
  job.registerAt(Jobs::SIMULATION_LOGIC, [&](const JobArguments& arguments) { sum += arguments.getTimePassed(); });
  for (int k = 1; k <= 6000; ++k) {
    frame(0.05);
    ASSERT_EQ(sum, Time::fromSeconds(k * 0.05)) << k;
  }
}

TEST_F(JobManagersTest, ATimeBetweenCallsGathersTheTimeOfTheFramesBetween) {
  JobProxy job;
  std::vector<std::int64_t> passed;
  job.registerAt(Jobs::SIMULATION_LOGIC,
                 [&](const JobArguments& arguments) { passed.push_back(arguments.getTimePassed().getMicroseconds()); });
  job.changeTimeBetweenCalls(Time::fromSeconds(0.1));
  for (int i = 0; i < 4; ++i)
    frame(0.05);
  EXPECT_EQ(passed, (std::vector<std::int64_t>{100000, 100000}));
  job.changeTimeBetweenCalls(Time::fromSeconds(0.12)); // no whole number of frames: the first frame that reaches it
  for (int i = 0; i < 6; ++i)
    frame(0.05);
  EXPECT_EQ(passed, (std::vector<std::int64_t>{100000, 100000, 150000, 150000}));
  job.changeTimeBetweenCalls(Time::ZERO);
  frame(0.05);
  EXPECT_EQ(passed.back(), 50000);
  EXPECT_EQ(passed.size(), 5u);
}

TEST_F(JobManagersTest, AFrameInsideAFrameIsLeftOut) {
  JobProxy job;
  int count = 0;
  job.registerAt(Jobs::SIMULATION_LOGIC, [&](const JobArguments&) {
    ++count;
    frame();
  });
  frame();
  EXPECT_EQ(count, 1);
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0][0], '4');
}

TEST_F(JobManagersTest, AnUnknownManagerWarnsAndLeavesTheProxyUnregistered) {
  JobProxy job;
  job.registerAt(qsf::StringHash("no::Such::Manager"), note("x"));
  EXPECT_FALSE(job.isRegistered());
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0][0], '3');
  frame();
  EXPECT_EQ(calls, "");
}

TEST(JobProxy, MayOutliveTheHostAndBeUsedWithoutOne) {
  JobProxy job;
  job.registerAt(Jobs::SIMULATION_LOGIC, [](const JobArguments&) {});
  EXPECT_FALSE(job.isRegistered());
  {
    qsf::Qsf host;
    Jobs::addTo(host);
    job.registerAt(Jobs::SIMULATION_LOGIC, [](const JobArguments&) {});
    EXPECT_TRUE(job.isRegistered());
  }
  EXPECT_FALSE(job.isRegistered());
  job.changeTimeBetweenCalls(Time::fromSeconds(1));
  job.unregister();
}

}
