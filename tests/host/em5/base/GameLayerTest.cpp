#include "em5/base/GameLayer.h"

#include "em5/base/Jobs.h"
#include "em5/base/Messages.h"
#include "qsf/Qsf.h"
#include "qsf/base/StringHashManager.h"
#include "qsf/job/JobManagers.h"
#include "qsf/job/JobProxy.h"
#include "qsf/message/MessageSystem.h"

#include <gtest/gtest.h>

namespace {

using em5::Jobs;

TEST(GameLayer, GivesAFrameItsStepsOfWhichTheSimulationRestsInAPause) {
  qsf::Qsf host;
  em5::addGameLayer(host);
  std::string calls;
  qsf::JobProxy gui, vehicle, fire, logic;
  gui.registerAt(Jobs::REALTIME_GUI_DEBUG, [&](const qsf::JobArguments&) { calls += "gui "; });
  vehicle.registerAt(Jobs::ANIMATION_VEHICLE, [&](const qsf::JobArguments&) { calls += "vehicle "; });
  fire.registerAt(Jobs::SIMULATION_FIRE, [&](const qsf::JobArguments&) { calls += "fire "; });
  logic.registerAt(Jobs::SIMULATION_LOGIC, [&](const qsf::JobArguments&) { calls += "logic "; });
  host.getJobManagers().runFrame(qsf::Time::fromSeconds(0.05));
  EXPECT_EQ(calls, "logic fire vehicle gui ");
  calls.clear();
  host.getJobManagers().setPaused(true);
  host.getJobManagers().runFrame(qsf::Time::fromSeconds(0.05));
  EXPECT_EQ(calls, "vehicle gui ");
  EXPECT_EQ(host.getJobManagers().getSimulationManager(), Jobs::SIMULATION_LOGIC);
}

TEST(GameLayer, NamesItsStepsAndMessages) {
  qsf::Qsf host;
  em5::addGameLayer(host);
  const qsf::StringHashManager& names = host.getStringHashManager();
  EXPECT_EQ(names.getStringByHash(Jobs::ANIMATION_VEHICLE), "em5::Jobs::ANIMATION_VEHICLE");
  EXPECT_EQ(names.getStringByHash(em5::Messages::EM5_CHANGE_SELECTION), "em5::Messages::EM5_CHANGE_SELECTION");
  EXPECT_TRUE(host.getMessageSystem().getMessageNames().contains("em5::Messages::GAME_STARTUP_FINISHED"));
}

}
