#include "em5/freeplay/FreeplaySystem.h"

#include "em5/map/MapIdentifier.h"
#include "em5/plugin/Plugin.h"
#include "em5/settings/GameDebugGroup.h"
#include "host/em5/SessionFixture.h"
#include "qsf/base/CallRecorder.h"

namespace {

class FreeplaySystemTest : public SessionTest {
protected:
  static em5::FreeplaySystem& freeplay() { return em5::Plugin::getInstance()->getFreeplaySystem(); }
  static em5::FreeplayEvent* trigger(const std::string& definition) {
    return freeplay().triggerEventByPath(em5::FreeplayEventTriggerInfo(0), definition);
  }
};

TEST_F(FreeplaySystemTest, StartsAnEventOfADefinition) {
  play();
  em5::FreeplayEvent* event = trigger("em5/em5_event/test/open_end");
  ASSERT_TRUE(event);
  EXPECT_TRUE(event->isRunning());
  EXPECT_EQ(event->getEventName(), "Open end");
  EXPECT_EQ(event->getDefinition(), "em5/em5_event/test/open_end");
  EXPECT_EQ(freeplay().getEventManager().getLastEvent(), event);
  em5::FreeplayEvent* second = trigger("test/open_end");
  ASSERT_TRUE(second);
  EXPECT_NE(second->getId(), event->getId());
  EXPECT_EQ(freeplay().getEventManager().getCurrentEvents(), (std::vector<em5::FreeplayEvent*>{event, second}));
  run(5);
  EXPECT_EQ(freeplay().getEventManager().getNumberOfActiveEvents(), 2u);
}

TEST_F(FreeplaySystemTest, StartsNothingWithoutAGameOrADefinition) {
  open().startup();
  EXPECT_EQ(trigger("em5/em5_event/test/open_end"), nullptr);
  session->startGame(EMPTY_MAP);
  EXPECT_EQ(trigger("em5/em5_event/test/nothing"), nullptr);
  EXPECT_EQ(trigger("EventDefinition"), nullptr);
  EXPECT_EQ(trigger(""), nullptr);
  EXPECT_EQ(trigger(EMPTY_MAP), nullptr);
  EXPECT_TRUE(freeplay().getEventManager().getCurrentEvents().empty());
  EXPECT_EQ(freeplay().getEventManager().getLastEvent(), nullptr);
}

TEST_F(FreeplaySystemTest, EventsSucceedAndFailWhenTheirTimeHasCome) {
  play();
  em5::FreeplayEvent* success = trigger("em5/em5_event/test/short_success");
  em5::FreeplayEvent* failure = trigger("em5/em5_event/test/short_failure");
  ASSERT_TRUE(success && failure);
  run(1.95);
  EXPECT_TRUE(success->isRunning());
  EXPECT_EQ(freeplay().getEventManager().getNumberOfActiveEvents(), 2u);
  run(0.05);
  EXPECT_EQ(freeplay().getEventManager().getNumberOfActiveEvents(), 0u);
  EXPECT_TRUE(freeplay().getEventManager().getCurrentEvents().empty());
}

TEST_F(FreeplaySystemTest, AnEventThatMayNotEndGoesOnUntilItIsUnlocked) {
  play();
  em5::FreeplayEvent* event = trigger("em5/em5_event/test/locked");
  ASSERT_TRUE(event);
  run(5);
  EXPECT_TRUE(event->isRunning());
  EXPECT_FALSE(event->finish(em5::FreeplayEvent::State::FAILED));
  event->setCanWinEvent(true);
  run(0.05);
  EXPECT_EQ(freeplay().getEventManager().getEventById(1), nullptr);
}

TEST_F(FreeplaySystemTest, APausedGameStopsTheEventsClock) {
  play();
  trigger("em5/em5_event/test/short_success");
  session->setPaused(true);
  run(5);
  EXPECT_EQ(freeplay().getEventManager().getNumberOfActiveEvents(), 1u);
}

TEST_F(FreeplaySystemTest, EventsAndPoolsEndWithTheGame) {
  play();
  trigger("em5/em5_event/test/open_end");
  EXPECT_TRUE(freeplay().addEventPoolsByName("em5/em5_eventpool/test/quick"));
  session->requestRestart();
  EXPECT_TRUE(freeplay().getEventManager().getCurrentEvents().empty());
  EXPECT_TRUE(freeplay().getEventPoolNames().empty());
}

TEST_F(FreeplaySystemTest, AMalformedDefinitionIsLoggedWithItsPlace) {
  const std::string project = writeProject("mine");
  write("mine", "em5_event/test/bad.json", "{\"succeedsAfter\": \"soon\"}");
  write("mine", "em5_event/test/typo.json", "{\"suceedsAfter\": 2}");
  write("mine", "em5_eventpool/test/bad.json", "{\"events\": [1]}");
  write("mine", "em5_eventpool/test/torn.json", "{\"events\": [");
  write("mine", "em5_eventpool/test/reverse.json", "{\"events\": [], \"shortestInterval\": 5, \"longestInterval\": 2}");
  open().mountMod(project);
  session->startGame(EMPTY_MAP);
  EXPECT_EQ(trigger("mine/em5_event/test/bad"), nullptr);
  EXPECT_TRUE(logged(qsf::LogSystem::ERROR, "/succeedsAfter"));
  EXPECT_EQ(trigger("mine/em5_event/test/typo"), nullptr);
  EXPECT_TRUE(logged(qsf::LogSystem::ERROR, "suceedsAfter"));
  EXPECT_FALSE(freeplay().addEventPoolsByName("mine/em5_eventpool/test/bad"));
  EXPECT_TRUE(logged(qsf::LogSystem::ERROR, "/events/0"));
  EXPECT_FALSE(freeplay().addEventPoolsByName("mine/em5_eventpool/test/torn"));
  EXPECT_FALSE(freeplay().addEventPoolsByName("mine/em5_eventpool/test/reverse"));
  EXPECT_TRUE(freeplay().getEventPoolNames().empty());
}

TEST_F(FreeplaySystemTest, ADefinitionThatNamesWhatIsNotThereIsLogged) {
  const std::string project = writeProject("mine");
  write("mine", "em5_event/test/factory.json", "{\"factory\": \"mine::Factory\"}");
  write("mine", "em5_event/test/component.json", "{\"factory\": \"em5::FireComponent\"}");
  write("mine", "em5_event/test/property.json", "{\"properties\": {\"Mood\": \"grim\"}}");
  write("mine", "em5_event/test/variant.json", "{\"variants\": [{\"Mood\": 1}, {\"Mood\": true}]}");
  write("mine", "em5_eventpool/test/bad.json", "{\"events\": [{\"properties\": {}}]}");
  open().mountMod(project);
  session->startGame(EMPTY_MAP);
  EXPECT_EQ(trigger("mine/em5_event/test/factory"), nullptr);
  EXPECT_TRUE(logged(qsf::LogSystem::ERROR, "/factory: there is no event factory \"mine::Factory\""));
  EXPECT_EQ(trigger("mine/em5_event/test/component"), nullptr);
  EXPECT_TRUE(logged(qsf::LogSystem::ERROR, "makes no events"));
  EXPECT_EQ(trigger("mine/em5_event/test/property"), nullptr);
  EXPECT_TRUE(logged(qsf::LogSystem::ERROR, "has a property \"Mood\""));
  EXPECT_EQ(trigger("mine/em5_event/test/variant"), nullptr);
  EXPECT_FALSE(freeplay().addEventPoolsByName("mine/em5_eventpool/test/bad"));
  EXPECT_THROW(freeplay().triggerPoolEvent("mine/em5_event/test/property"), std::exception);
  EXPECT_THROW(freeplay().triggerPoolEvent("mine/em5_event/test/nothing"), std::exception);
}

TEST_F(FreeplaySystemTest, PoolsTellThePlayerOfTheStart) {
  const std::string project = writeProject("mine");
  write("mine", "em5_event/test/told.json", "{\"supervisorMessage\": \"The mill burns\"}");
  open().mountMod(project);
  session->startGame(EMPTY_MAP);
  const auto& calls = session->getQsf().getCallRecorder().getCalls();
  EXPECT_NE(trigger("test/told"), nullptr);
  EXPECT_NE(freeplay().triggerPoolEvent("test/open_end"), nullptr);
  EXPECT_TRUE(calls.empty());
  EXPECT_NE(freeplay().triggerPoolEvent("test/told"), nullptr);
  ASSERT_EQ(calls.size(), 1u);
  EXPECT_EQ(calls[0].operation, "em5::HintHelper::showSupervisorMessage");
  EXPECT_EQ(calls[0].arguments[0], "The mill burns");
}

TEST_F(FreeplaySystemTest, FactoriesLiveAsLongAsTheGame) {
  play();
  EXPECT_EQ(freeplay().findFactory("test/open_end"), nullptr);
  trigger("test/open_end");
  const em5::FreeplayEventFactory* factory = freeplay().findFactory("em5/em5_event/test/open_end");
  ASSERT_NE(factory, nullptr);
  EXPECT_EQ(factory->getTriggerFailReason(), "");
  EXPECT_EQ(freeplay().findFactory("test/open_end"), factory);
  session->requestRestart();
  EXPECT_EQ(freeplay().findFactory("test/open_end"), nullptr);
}

TEST_F(FreeplaySystemTest, AddsPoolsByNameOnce) {
  open().startup();
  EXPECT_FALSE(freeplay().addEventPoolsByName("em5/em5_eventpool/worldevents/MY_CUSTOM_WORLDEVENTPOOL"));
  EXPECT_FALSE(freeplay().addEventPoolsByName("em5/em5_event/test/open_end"));
  EXPECT_TRUE(freeplay().addEventPoolsByName("em5/em5_eventpool/test/quick"));
  EXPECT_TRUE(freeplay().addEventPoolsByName("em5/em5_eventpool/test/quick"));
  EXPECT_EQ(freeplay().getEventPoolNames(), std::vector<std::string>{"em5/em5_eventpool/test/quick"});
}

TEST_F(FreeplaySystemTest, PoolsStartEventsUpToTheirMaximum) {
  play();
  freeplay().addEventPoolsByName("em5/em5_eventpool/test/quick");
  run(0.9);
  EXPECT_EQ(freeplay().getEventManager().getNumberOfActiveEvents(), 0u);
  run(1.2);
  EXPECT_GE(freeplay().getEventManager().getNumberOfActiveEvents(), 1u);
  for (int i = 0; i < 100; ++i) {
    run(0.5);
    ASSERT_LE(freeplay().getEventManager().getNumberOfActiveEvents(), 2u);
  }
}

TEST_F(FreeplaySystemTest, PoolsRestWhileFreeplayEventsAreSwitchedOff) {
  play();
  freeplay().addEventPoolsByName("em5/em5_eventpool/test/quick");
  qsf::UniqueInstance<em5::GameDebugGroup>()->setActiveFreeplay(false);
  run(20);
  EXPECT_EQ(freeplay().getEventManager().getNumberOfActiveEvents(), 0u);
  EXPECT_TRUE(trigger("em5/em5_event/test/open_end"));
  qsf::UniqueInstance<em5::GameDebugGroup>()->setActiveFreeplay(true);
  run(2.1);
  EXPECT_EQ(freeplay().getEventManager().getNumberOfActiveEvents(), 2u);
}

TEST_F(FreeplaySystemTest, TheSameSeedDrawsTheSameEvents) {
  const auto record = [&] {
    play();
    freeplay().addEventPoolsByName("em5/em5_eventpool/test/quick");
    std::string course;
    for (int i = 0; i < 200; ++i) {
      run(0.1);
      for (const em5::FreeplayEvent* event : freeplay().getEventManager().getCurrentEvents())
        course += event->getDefinition() + " " + std::to_string(event->getId()) + ",";
      course += ";";
    }
    session.reset();
    return course;
  };
  const std::string first = record();
  EXPECT_NE(first.find("open_end"), std::string::npos);
  EXPECT_EQ(record(), first);
}

TEST_F(FreeplaySystemTest, SeasonsAreSwitchedByName) {
  open().startup();
  em5::FreeplayGameMode& mode = freeplay().getGameMode();
  EXPECT_TRUE(mode.getSeasonalEvents().empty());
  mode.toggleSeasonalEvent("christmas", true);
  EXPECT_TRUE(mode.isSeasonalEventEnabled("christmas"));
  mode.toggleSeasonalEvent("christmas", false);
  EXPECT_FALSE(mode.isSeasonalEventEnabled("christmas"));
  const auto& calls = session->getQsf().getCallRecorder().getCalls();
  ASSERT_EQ(calls.size(), 2u);
  EXPECT_EQ(calls[0].operation, "em5::FreeplayGameMode::toggleSeasonalEvent");
  EXPECT_EQ(calls[0].arguments, (std::vector<std::string>{"christmas", "1"}));
}

TEST_F(FreeplaySystemTest, MapsKnowTheirSeasonsInTheFilesOrder) {
  const std::string project = writeProject("mine");
  write("mine", "em5_season/maps/seasonal_events.json",
        "{\"em5/map/map01_munich/map01_munich\": [\"halloween\", \"carnival\"], \"mine/map/a/b\": [\"rain\"]}");
  open().mountMod(project);
  const auto seasons = [](const std::string& map) {
    return em5::MapIdentifier::fromLocalAssetName(map).getSeasonalEvents();
  };
  EXPECT_EQ(seasons("em5/map/map01_munich/map01_munich"),
            (std::vector<std::string>{"christmas", "halloween", "oktoberfest", "carnival"}));
  EXPECT_EQ(seasons("mine/map/a/b"), std::vector<std::string>{"rain"});
  EXPECT_TRUE(seasons("em5/map/test/empty").empty());
  EXPECT_TRUE(seasons("").empty());
}

TEST_F(FreeplaySystemTest, AFaultyEventIsLoggedAndCostsTheOthersNothing) {
  class FaultyEvent : public em5::FreeplayEvent {
    void updateFreeplayEvent(qsf::Time) override { throw std::runtime_error("event fault"); }
  };
  play();
  auto faulty = std::make_unique<FaultyEvent>();
  faulty->setEventName("Faulty");
  freeplay().getEventManager().startEvent(std::move(faulty));
  trigger("em5/em5_event/test/short_success");
  run(2);
  EXPECT_TRUE(logged(qsf::LogSystem::ERROR, "event fault"));
  EXPECT_EQ(freeplay().getEventManager().getNumberOfActiveEvents(), 1u);
}

}
