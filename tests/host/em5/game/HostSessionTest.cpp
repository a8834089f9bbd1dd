#include "em5/game/HostSession.h"

#include "em5/application/Application.h"
#include "em5/base/Jobs.h"
#include "em5/base/Messages.h"
#include "em5/game/Game.h"
#include "em5/gui/EmergencyGui.h"
#include "em5/plugin/Plugin.h"
#include "em5/settings/GameDebugGroup.h"
#include "em5/settings/GameSettingsGroup.h"
#include "host/em5/SessionFixture.h"
#include "qsf/base/LoadError.h"
#include "qsf/base/Random.h"
#include "qsf/editor/Application.h"
#include "qsf/input/InputSystem.h"
#include "qsf/job/JobProxy.h"
#include "qsf/localization/LocalizationSystem.h"
#include "qsf/message/MessageProxy.h"
#include "qsf/message/MessageSystem.h"
#include "qsf/plugin/PluginSystem.h"

namespace {

using HostSessionTest = SessionTest;
using GameInstance = qsf::UniqueInstance<em5::Game>;
using GuiInstance = qsf::UniqueInstance<em5::EmergencyGui>;

/// Notes which singletons exist when it is called.
class LifecyclePlugin : public qsf::Plugin {
public:
  explicit LifecyclePlugin(std::vector<std::string>& notes) : qsf::Plugin(new em5::PluginVersion), mNotes(notes) {}
  const char* getName() const override { return "lifecycle"; }
  const char* getVendor() const override { return "tests"; }
  const char* getDescription() const override { return "notes what exists"; }

protected:
  bool onInstall() override { return note("install"); }
  bool onStartup() override {
    mStarted.registerAt(qsf::MessageConfiguration(em5::Messages::GAME_STARTUP_FINISHED),
                        [this](const qsf::MessageParameters&) { note("game started"); });
    mEnds.registerAt(qsf::MessageConfiguration(em5::Messages::GAME_SHUTDOWN_STARTING),
                     [this](const qsf::MessageParameters&) { note("game ends"); });
    return note("startup");
  }
  void onShutdown() override { note("shutdown"); }
  void onUninstall() override { note("uninstall"); }

private:
  bool note(const std::string& what) {
    mNotes.push_back(what + (GameInstance() ? " game" : "") + (GuiInstance() ? " gui" : "") +
                     (qsf::UniqueInstance<qsf::editor::Application>() ? " editor" : "") +
                     (em5::Plugin::getInstance() ? "" : " no plugin"));
    return true;
  }
  std::vector<std::string>& mNotes;
  qsf::MessageProxy mStarted;
  qsf::MessageProxy mEnds;
};

TEST_F(HostSessionTest, GoesThroughTheLifeOfAGameInOrder) {
  std::vector<std::string> notes;
  open().startup();
  session->getQsf().getPluginSystem().addPlugin(std::make_unique<LifecyclePlugin>(notes));
  session->startGame(EMPTY_MAP);
  run(0.1);
  session.reset();
  EXPECT_EQ(notes, (std::vector<std::string>{"install game gui", "startup game gui", "game started game gui",
                                             "game ends game gui", "shutdown game gui", "uninstall game gui"}));
  EXPECT_FALSE(GameInstance());
  EXPECT_FALSE(GuiInstance());
  EXPECT_EQ(em5::Plugin::getInstance(), nullptr);
  EXPECT_EQ(qsf::Qsf::instance(), nullptr);
}

TEST_F(HostSessionTest, AnEditorHasNeitherGameNorGuiAndHearsNoGameMessages) {
  std::vector<std::string> notes;
  em5::HostSession::Options options;
  options.kind = em5::HostSession::Kind::EDITOR;
  open(options).startup();
  session->getQsf().getPluginSystem().addPlugin(std::make_unique<LifecyclePlugin>(notes));
  session->startGame(EMPTY_MAP);
  EXPECT_TRUE(session->isGameRunning());
  EXPECT_TRUE(qsf::getMainMap().isStarted());
  int calls = 0;
  qsf::JobProxy job;
  job.registerAt(em5::Jobs::ANIMATION_VEHICLE, [&](const qsf::JobArguments&) { ++calls; });
  run(0.2);
  EXPECT_EQ(calls, 4);
  job.unregister();
  session.reset();
  EXPECT_EQ(notes,
            (std::vector<std::string>{"install editor", "startup editor", "shutdown editor", "uninstall editor"}));
}

TEST_F(HostSessionTest, SumsItsTicksExactly) {
  play();
  for (int k = 1; k <= 1000; ++k) {
    session->runFrame(TICK);
    ASSERT_EQ(session->getTime().getMicroseconds(), k * 50'000);
  }
  EXPECT_EQ(session->getFrameCount(), 1000u);
}

TEST_F(HostSessionTest, APauseRestsTheSimulationFromTheNextFrameOn) {
  play();
  int simulated = 0;
  int drawn = 0;
  qsf::JobProxy pausing, simulation, gui;
  pausing.registerAt(em5::Jobs::SIMULATION_LOGIC, [&](const qsf::JobArguments&) { session->setPaused(true); });
  simulation.registerAt(em5::Jobs::SIMULATION_FIRE, [&](const qsf::JobArguments&) { ++simulated; });
  gui.registerAt(em5::Jobs::REALTIME_GUI_DEBUG, [&](const qsf::JobArguments&) { ++drawn; });
  run(0.2);
  EXPECT_EQ(simulated, 1);
  EXPECT_EQ(drawn, 4);
  EXPECT_TRUE(GameInstance()->isPaused());
  pausing.unregister();
  session->setPaused(false);
  run(0.1);
  EXPECT_EQ(simulated, 3);
}

TEST_F(HostSessionTest, PlacesWhatTheProgramPreparesBeforeComponentsStart) {
  open();
  bool startedThen = true;
  session->setMapPreparation([&](qsf::Map& map) {
    startedThen = map.isStarted();
    map.createEntity(100);
  });
  session->startGame(EMPTY_MAP);
  EXPECT_FALSE(startedThen);
  EXPECT_TRUE(qsf::getMainMap().getEntityById(100));
  qsf::getMainMap().destroyObjectById(100);
  session->requestRestart();
  EXPECT_TRUE(qsf::getMainMap().getEntityById(100));
}

TEST_F(HostSessionTest, ChangesTheMapAtTheEndOfTheFrame) {
  play();
  bool asked = false;
  std::vector<std::string> maps;
  qsf::JobProxy asking, looking;
  asking.registerAt(em5::Jobs::SIMULATION_LOGIC, [&](const qsf::JobArguments&) {
    if (!std::exchange(asked, true)) session->requestMap("em5/map/test/other");
  });
  looking.registerAt(em5::Jobs::REALTIME_GUI_DEBUG,
                     [&](const qsf::JobArguments&) { maps.push_back(qsf::getMainMap().getLocalAssetName()); });
  session->runFrame(TICK);
  EXPECT_EQ(maps, std::vector<std::string>{EMPTY_MAP});
  EXPECT_EQ(qsf::getMainMap().getLocalAssetName(), "em5/map/test/other");
  const auto& messages = session->getQsf().getMessageSystem();
  EXPECT_EQ(messages.getEmittedCount(em5::Messages::GAME_SHUTDOWN_STARTING), 1u);
  EXPECT_EQ(messages.getEmittedCount(em5::Messages::GAME_STARTUP_FINISHED), 2u);
  session->runFrame(TICK);
  EXPECT_EQ(maps.back(), "em5/map/test/other");
}

TEST_F(HostSessionTest, AMapChangeWishedWhileAGameStartsWaitsForTheFirstFrame) {
  open();
  qsf::MessageProxy started;
  started.registerAt(qsf::MessageConfiguration(em5::Messages::GAME_STARTUP_FINISHED),
                     [&](const qsf::MessageParameters&) {
                       if (qsf::getMainMap().getLocalAssetName() == EMPTY_MAP) session->requestMap("em5/map/test/step");
                     });
  session->startGame(EMPTY_MAP);
  EXPECT_EQ(qsf::getMainMap().getLocalAssetName(), EMPTY_MAP);
  session->runFrame(TICK);
  EXPECT_EQ(qsf::getMainMap().getLocalAssetName(), "em5/map/test/step");
}

TEST_F(HostSessionTest, TheApplicationStartsTheConfiguredGame) {
  play();
  em5::Application& application = *qsf::UniqueInstance<em5::Application>();
  application.getGameSessionConfiguration().setupForFreeplay(
      em5::MapIdentifier::fromLocalAssetName("em5/map/test/other"), "");
  application.triggerStartGame();
  EXPECT_EQ(qsf::getMainMap().getLocalAssetName(), EMPTY_MAP);
  session->runFrame(TICK);
  EXPECT_EQ(qsf::getMainMap().getLocalAssetName(), "em5/map/test/other");
  application.triggerEndGame();
  session->runFrame(TICK);
  EXPECT_FALSE(session->isGameRunning());
  EXPECT_TRUE(GameInstance()) << "a game program always has one";
}

TEST_F(HostSessionTest, AnUnknownMapLeavesTheGameAsItIs) {
  play();
  session->requestMap("em5/map/test/nowhere");
  EXPECT_TRUE(session->isGameRunning());
  EXPECT_TRUE(logged(qsf::LogSystem::ERROR, "em5/map/test/nowhere"));
  session->requestMap("em5/prefab/test/tree");
  EXPECT_EQ(qsf::getMainMap().getLocalAssetName(), EMPTY_MAP);
}

TEST_F(HostSessionTest, AnUnknownMapIsForgotten) {
  em5::HostSession::Options options;
  options.gameMode = em5::GameModeType::CAMPAIGN;
  open(options).startGame(EMPTY_MAP);
  em5::Application& application = *qsf::UniqueInstance<em5::Application>();
  application.getGameSessionConfiguration().setupForFreeplay(
      em5::MapIdentifier::fromLocalAssetName("em5/map/test/nowhere"), "");
  application.triggerStartGame();
  session->runFrame(TICK);
  EXPECT_EQ(application.getGameSessionConfiguration().getMapIdentifier().getLocalAssetName(), EMPTY_MAP);
  EXPECT_EQ(application.getGameSessionConfiguration().getGameModeType(), em5::GameModeType::CAMPAIGN);
}

TEST_F(HostSessionTest, AFaultyMapLeavesNothingHalfStarted) {
  open();
  const std::string project = writeProject("broken");
  write("broken", "map/test/bad.json", "{\"entities\": [}");
  session->mountMod(project);
  EXPECT_THROW(session->startGame("broken/map/test/bad"), qsf::LoadError);
  EXPECT_FALSE(session->isGameRunning());
  EXPECT_TRUE(GameInstance()) << "a game program always has one";
  session->startGame(EMPTY_MAP);
  session->requestMap("broken/map/test/bad");
  EXPECT_FALSE(session->isGameRunning());
  EXPECT_TRUE(logged(qsf::LogSystem::ERROR, "bad.json"));
  run(0.1);
  session->startGame(EMPTY_MAP);
  EXPECT_TRUE(session->isGameRunning());
}

TEST_F(HostSessionTest, WhatThePreparationThrowsEndsTheStart) {
  open();
  session->setMapPreparation([](qsf::Map& map) {
    map.createEntity(100);
    throw std::runtime_error("no such prefab");
  });
  EXPECT_THROW(session->startGame(EMPTY_MAP), std::runtime_error);
  EXPECT_TRUE(GameInstance()) << "a game program always has one";
  EXPECT_EQ(qsf::getMainMap().getEntityById(100), nullptr);
}

TEST_F(HostSessionTest, AFaultInAJobCostsThatCallOnly) {
  play();
  int calls = 0;
  qsf::JobProxy faulty, sound;
  faulty.registerAt(em5::Jobs::SIMULATION_LOGIC, [](const qsf::JobArguments&) { throw std::runtime_error("oops"); });
  sound.registerAt(em5::Jobs::SIMULATION_LOGIC, [&](const qsf::JobArguments&) { ++calls; });
  run(0.1);
  EXPECT_EQ(calls, 2);
  EXPECT_TRUE(logged(qsf::LogSystem::ERROR, "oops"));
}

TEST_F(HostSessionTest, HandsItsOptionsToTheSystems) {
  em5::HostSession::Options options;
  options.seed = 42;
  options.language = "de";
  options.account = "Anna";
  options.gameMode = em5::GameModeType::MULTIPLAY_COOP;
  open(options);
  const int first = qsf::Random::getRandomInt(0, 1'000'000);
  qsf::Random::setSeed(42);
  EXPECT_EQ(qsf::Random::getRandomInt(0, 1'000'000), first);
  EXPECT_EQ(session->getQsf().getLocalizationSystem().getLanguage(), "de");
  EXPECT_EQ(qsf::UniqueInstance<em5::GameSettingsGroup>()->getSavedAccountname(), "Anna");
  const auto& configuration = qsf::UniqueInstance<em5::Application>()->getGameSessionConfiguration();
  EXPECT_EQ(static_cast<int>(configuration.getGameModeType()), 3);
}

TEST_F(HostSessionTest, WheelMovementLastsOneFrame) {
  play();
  std::vector<float> values;
  qsf::JobProxy job;
  job.registerAt(em5::Jobs::REALTIME_GUI_DEBUG, [&](const qsf::JobArguments&) {
    values.push_back(session->getQsf().getInputSystem().getMouse().getWheel().getValue());
  });
  session->getQsf().getInputSystem().getMouse().moveWheel(2);
  run(0.1);
  EXPECT_EQ(values, (std::vector<float>{2, 0}));
}

TEST_F(HostSessionTest, OnlyOneSessionLivesAtATime) {
  open();
  EXPECT_THROW(em5::HostSession(em5::HostSession::Options{}), std::logic_error);
  EXPECT_TRUE(qsf::Qsf::instance());
}

TEST_F(HostSessionTest, SessionsOneAfterTheOtherStartAnew) {
  play();
  qsf::UniqueInstance<em5::GameDebugGroup>()->setActiveFreeplay(false);
  run(0.1);
  session.reset();
  play();
  EXPECT_TRUE(qsf::UniqueInstance<em5::GameDebugGroup>()->getActiveFreeplay());
  EXPECT_EQ(session->getTime(), qsf::Time());
}

TEST(GameModeType, IsNamedByWords) {
  EXPECT_EQ(em5::parseGameModeType("campaign"), em5::GameModeType::CAMPAIGN);
  EXPECT_EQ(em5::parseGameModeType("endless"), em5::GameModeType::FREEPLAY_ENDLESS);
  EXPECT_EQ(em5::parseGameModeType("challenge"), em5::GameModeType::FREEPLAY_CHALLENGE);
  EXPECT_EQ(em5::parseGameModeType("coop"), em5::GameModeType::MULTIPLAY_COOP);
  EXPECT_EQ(em5::parseGameModeType("competitive"), em5::GameModeType::MULTIPLAY_COMPETITIVE);
  EXPECT_FALSE(em5::parseGameModeType("Endless"));
}

}
