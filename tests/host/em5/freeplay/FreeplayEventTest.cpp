#include "em5/component/EventIdComponent.h"
#include "em5/component/FireComponent.h"
#include "em5/component/HealthComponent.h"
#include "em5/freeplay/FreeplaySystem.h"
#include "em5/freeplay/ObjectiveHelper.h"
#include "em5/health/Injury.h"
#include "em5/map/EntityHelper.h"
#include "em5/plugin/Plugin.h"
#include "host/em5/SessionFixture.h"

namespace {

/// Notes what happens to it, and judges its objectives.
class JudgedEvent : public em5::FreeplayEvent {
public:
  explicit JudgedEvent(std::string& course, bool starts = true) : mCourse(course), mStarts(starts) {}

private:
  bool onStartup() override {
    mCourse += "startup ";
    return mStarts;
  }
  bool onRun() override {
    mCourse += "run ";
    setRunning();
    return true;
  }
  void onSuccess() override { mCourse += "success "; }
  void onFailure() override { mCourse += "failure "; }
  void onShutdown() override { mCourse += "shutdown"; }
  void updateFreeplayEvent(qsf::Time) override { checkObjectivesState(); }

  std::string& mCourse;
  bool mStarts;
};

class FreeplayEventTest : public SessionTest {
protected:
  static em5::FreeplayEventManager& manager() {
    return em5::Plugin::getInstance()->getFreeplaySystem().getEventManager();
  }
  em5::FreeplayEvent& startJudged() { return *manager().startEvent(std::make_unique<JudgedEvent>(course)); }
  static em5::Objective& add(em5::FreeplayEvent& event, const char* id, em5::ObjectiveType type, int needed) {
    em5::Objective& objective = event.getObjectives().getOrCreateObjective(id, type, event.getId());
    objective.setNeededNumber(needed);
    return objective;
  }
  static qsf::Entity& create(const char* prefab, std::uint64_t id) {
    return *qsf::getMainMap().createObjectByLocalPrefabAssetId(std::string("em5/prefab/test/") + prefab, id);
  }
  std::string course;
};

TEST_F(FreeplayEventTest, GoesThroughItsStates) {
  play();
  em5::FreeplayEvent& event = startJudged();
  add(event, "a", em5::OBJECTIVE_REQUIRED, 1);
  run(0.2);
  EXPECT_EQ(course, "startup run ");
  event.getObjectives().getObjectiveByTypeId("a")->setCurrentNumber(1);
  run(0.05);
  EXPECT_EQ(course, "startup run success shutdown");
  EXPECT_EQ(manager().getNumberOfSucceededEvents(), 1u);
  EXPECT_EQ(manager().getNumberOfFailedEvents(), 0u);
}

TEST_F(FreeplayEventTest, WithoutRequiredObjectivesItSucceeds) {
  play();
  add(startJudged(), "a", em5::OBJECTIVE_OPTIONAL, 5);
  run(0.05);
  EXPECT_EQ(course, "startup run success shutdown");
}

TEST_F(FreeplayEventTest, FailsBeforeItSucceeds) {
  play();
  em5::FreeplayEvent& event = startJudged();
  add(event, "a", em5::OBJECTIVE_REQUIRED, 1).setCurrentNumber(1);
  add(event, "b", em5::OBJECTIVE_FAIL, 1).setCurrentNumber(1);
  run(0.05);
  EXPECT_EQ(course, "startup run failure shutdown");
  EXPECT_EQ(manager().getNumberOfFailedEvents(), 1u);
}

TEST_F(FreeplayEventTest, OneThatMayNotBeLostCanStillBeWon) {
  play();
  em5::FreeplayEvent& event = startJudged();
  event.setCanLoseEvent(false);
  add(event, "b", em5::OBJECTIVE_FAIL, 1).setCurrentNumber(1);
  em5::Objective& open = add(event, "a", em5::OBJECTIVE_REQUIRED, 1);
  run(0.2);
  EXPECT_EQ(course, "startup run ");
  open.setCurrentNumber(1);
  run(0.05);
  EXPECT_EQ(course, "startup run success shutdown");
}

TEST_F(FreeplayEventTest, OneThatDoesNotStartIsDropped) {
  play();
  EXPECT_EQ(manager().startEvent(std::make_unique<JudgedEvent>(course, false)), nullptr);
  EXPECT_EQ(course, "startup ");
  EXPECT_TRUE(manager().getCurrentEvents().empty());
}

TEST_F(FreeplayEventTest, CountsOfEndedEventsAreAGames) {
  play();
  startJudged();
  run(0.05);
  EXPECT_EQ(manager().getNumberOfSucceededEvents(), 1u);
  session->requestRestart();
  EXPECT_EQ(manager().getNumberOfSucceededEvents(), 0u);
}

TEST_F(FreeplayEventTest, KnowsItsEntities) {
  play();
  em5::FreeplayEvent& event = startJudged();
  em5::FreeplayEvent& other = startJudged();
  add(event, "a", em5::OBJECTIVE_REQUIRED, 1);
  add(other, "a", em5::OBJECTIVE_REQUIRED, 1);
  qsf::Entity& a = create("tree", 101);
  qsf::Entity& b = create("tree", 100);
  event.addEntityToEvent(a, 1);
  event.addEntityToEvent(b, 0);
  EXPECT_EQ(event.getEntities(), (std::vector<qsf::Entity*>{&b, &a}));
  event.addEntityToEvent(a, 7);
  EXPECT_EQ(a.getComponent<em5::EventIdComponent>()->getReason(), 1) << "it is in the event already";
  a.getComponent<em5::EventIdComponent>()->setEvent(event, 7);
  EXPECT_EQ(a.getComponent<em5::EventIdComponent>()->getReason(), 7);
  other.addEntityToEvent(a, 6);
  EXPECT_EQ(em5::EntityHelper(a).getFreeplayEvent(), &other) << "the last one has it";
  EXPECT_EQ(event.getEntities(), std::vector<qsf::Entity*>{&b});
  b.setHidden(true);
  EXPECT_EQ(event.getRandomVisibleEventEntity(), nullptr);
  EXPECT_EQ(other.getFocusEntity(), &a);
  other.finish(em5::FreeplayEvent::State::SUCCEEDED);
  EXPECT_EQ(em5::EntityHelper(a).getFreeplayEvent(), nullptr) << "it has ended";
}

TEST_F(FreeplayEventTest, AFireCountsForOneEvent) {
  play();
  em5::FreeplayEvent& event = startJudged();
  em5::FreeplayEvent& other = startJudged();
  qsf::Entity& tree = create("tree", 100);
  em5::EntityHelper(tree).startFire(&event);
  em5::EntityHelper(tree).startFire(&event);
  em5::EntityHelper(tree).startFire(&other);
  const em5::Objective* fires =
      event.getObjectives().getObjectiveByTypeId(em5::ObjectiveHelper::EXTINGUISH_FIRES.typeId);
  ASSERT_NE(fires, nullptr);
  EXPECT_EQ(fires->getNeededNumber(), 1);
  EXPECT_EQ(fires->getEntityIds(), std::vector<std::uint64_t>{100});
  EXPECT_TRUE(other.getObjectives().getObjectives().empty());
  em5::EntityHelper(tree).stopFire();
  em5::EntityHelper(tree).stopFire();
  EXPECT_EQ(fires->getCurrentNumber(), 1);
  EXPECT_TRUE(fires->getEntityIds().empty());
}

TEST_F(FreeplayEventTest, AFireThatIsLitAlreadyJoins) {
  play();
  em5::FreeplayEvent& event = startJudged();
  qsf::Entity& tree = create("tree", 100);
  qsf::Entity& iron = create("tree", 101);
  iron.getComponent<em5::FireComponent>()->setBurnable(false);
  em5::EntityHelper(tree).startFire();
  EXPECT_TRUE(em5::EntityHelper(tree).startFire(&event));
  EXPECT_FALSE(em5::EntityHelper(iron).startFire(&event));
  const em5::Objective* fires =
      event.getObjectives().getObjectiveByTypeId(em5::ObjectiveHelper::EXTINGUISH_FIRES.typeId);
  ASSERT_NE(fires, nullptr);
  EXPECT_EQ(fires->getNeededNumber(), 1);
  EXPECT_EQ(em5::EntityHelper(iron).getFreeplayEvent(), nullptr);
}

TEST_F(FreeplayEventTest, WhatIsGoneBurnsNoMore) {
  play();
  em5::FreeplayEvent& event = startJudged();
  em5::EntityHelper(create("tree", 100)).startFire(&event);
  qsf::getMainMap().destroyObjectById(100);
  EXPECT_EQ(
      event.getObjectives().getObjectiveByTypeId(em5::ObjectiveHelper::EXTINGUISH_FIRES.typeId)->getCurrentNumber(), 1);
}

TEST_F(FreeplayEventTest, InjuriesAndDeathsPutPersonsIntoTheEvent) {
  play();
  em5::FreeplayEvent& event = startJudged();
  auto* injured = create("civilian", 100).getComponent<em5::HealthComponent>();
  auto* dead = create("civilian", 101).getComponent<em5::HealthComponent>();
  auto* well = create("civilian", 102).getComponent<em5::HealthComponent>();
  EXPECT_TRUE(injured->injurePersonByEventById(em5::injury::SHOCK, &event, false));
  EXPECT_FALSE(injured->isCollapsed());
  EXPECT_FALSE(injured->injurePersonByEventById(em5::injury::BROKEN_LEG, &event));
  EXPECT_EQ(injured->getInjuryId(), em5::injury::SHOCK);
  dead->killPerson(&event);
  EXPECT_FALSE(well->injurePersonByEventById(qsf::StringHash(), &event));
  EXPECT_FALSE(well->isInjured());
  EXPECT_EQ(event.getEntities().size(), 2u);
  EXPECT_EQ(injured->getPropertyAsString("Injury"), "SHOCK");
  EXPECT_EQ(dead->getPropertyAsString("Dead"), "1");
  well->setPropertyByString("Dead", "1");
  EXPECT_TRUE(well->isDead());
  well->setPropertyByString("Dead", "0");
  EXPECT_TRUE(well->isDead()) << "the dead stay dead";
}

TEST_F(FreeplayEventTest, FailConditionsCountFromTheMomentOfTheirMaking) {
  play();
  em5::FreeplayEvent& event = startJudged();
  add(event, "a", em5::OBJECTIVE_REQUIRED, 1);
  em5::EntityHelper(create("tree", 100)).startFire(&event);
  create("civilian", 101).getComponent<em5::HealthComponent>()->killPerson(&event);
  em5::ObjectiveHelper(event).addBurningObjectsAndBuildingsFailCondition(2);
  em5::ObjectiveHelper(event).addDeadPersonsFailCondition(2);
  const auto number = [&](qsf::StringHash id) {
    return event.getObjectives().getObjectiveByTypeId(id)->getCurrentNumber();
  };
  EXPECT_EQ(number(em5::ObjectiveHelper::BURNING_OBJECTS), 1);
  EXPECT_EQ(number(em5::ObjectiveHelper::DEAD_PERSONS), 1);
  qsf::getMainMap().destroyObjectById(101);
  em5::EntityHelper(*qsf::getMainMap().getEntityById(100)).stopFire();
  run(0.1);
  EXPECT_EQ(number(em5::ObjectiveHelper::BURNING_OBJECTS), 0) << "it is out";
  EXPECT_EQ(number(em5::ObjectiveHelper::DEAD_PERSONS), 1) << "the dead count for good";
  em5::ObjectiveHelper(event).removeObjectiveByTypeId(em5::ObjectiveHelper::BURNING_OBJECTS);
  run(0.1);
  EXPECT_EQ(event.getObjectives().getObjectiveByTypeId(em5::ObjectiveHelper::BURNING_OBJECTS), nullptr);
}

TEST_F(FreeplayEventTest, IsMadeAnewFromWhatWasSaved) {
  play();
  em5::FreeplaySystem& freeplay = em5::Plugin::getInstance()->getFreeplaySystem();
  em5::FreeplayEvent* event =
      freeplay.triggerEventByPath(em5::FreeplayEventTriggerInfo(0), "em5/em5_event/test/short_success");
  ASSERT_TRUE(event);
  const std::uint64_t id = event->getId();
  event->setEventName("Saved");
  event->setCanLoseEvent(false);
  add(*event, "a", em5::OBJECTIVE_FAIL, 4).setText("Text");
  qsf::Entity& tree = create("tree", 100);
  add(*event, "a", em5::OBJECTIVE_FAIL, 4).increaseNeededNumber(&tree);
  event->addEntityToEvent(tree, 1);
  create("civilian", 101).getComponent<em5::HealthComponent>()->killPerson(event);
  em5::ObjectiveHelper(*event).addDeadPersonsFailCondition(9);
  run(1);
  const std::string saved = manager().saveEvents();
  qsf::getMainMap().destroyObjectById(101);
  freeplay.triggerEventByPath(em5::FreeplayEventTriggerInfo(0), "test/open_end");
  manager().loadEvents(saved);

  ASSERT_EQ(manager().getCurrentEvents().size(), 1u);
  event = manager().getEventById(id);
  ASSERT_TRUE(event);
  EXPECT_TRUE(event->isRunning());
  EXPECT_EQ(event->getEventName(), "Saved");
  EXPECT_EQ(event->getDefinition(), "em5/em5_event/test/short_success");
  EXPECT_FALSE(event->getCanLoseEvent());
  const em5::Objective* objective = event->getObjectives().getObjectiveByTypeId("a");
  ASSERT_TRUE(objective);
  EXPECT_EQ(objective->getType(), em5::OBJECTIVE_FAIL);
  EXPECT_EQ(objective->getText(), "Text");
  EXPECT_EQ(objective->getNeededNumber(), 5);
  EXPECT_EQ(objective->getEntityIds(), std::vector<std::uint64_t>{100});
  EXPECT_EQ(em5::EntityHelper(tree).getFreeplayEvent(), event);
  run(0.9);
  EXPECT_EQ(event->getObjectives().getObjectiveByTypeId(em5::ObjectiveHelper::DEAD_PERSONS)->getCurrentNumber(), 1);
  run(0.1);
  EXPECT_EQ(manager().getEventById(id), nullptr) << "its time goes on where it was";
  EXPECT_EQ(manager().getNumberOfSucceededEvents(), 1u);
  EXPECT_GT(freeplay.triggerEventByPath(em5::FreeplayEventTriggerInfo(0), "test/open_end")->getId(), id + 1)
      << "no id twice";
}

TEST_F(FreeplayEventTest, ATextThatNobodySavedChangesNothing) {
  play();
  startJudged().setCanWinEvent(false);
  EXPECT_THROW(manager().loadEvents("{"), std::runtime_error);
  EXPECT_THROW(manager().loadEvents("{}"), std::runtime_error);
  EXPECT_THROW(manager().loadEvents("{\"events\": [{\"class\": \"em5::FreeplayEvent\"}]}"), std::runtime_error);
  EXPECT_EQ(manager().getCurrentEvents().size(), 1u);
  manager().loadEvents("{\"events\": [{\"class\": \"em5::Nothing\"}]}");
  EXPECT_TRUE(logged(qsf::LogSystem::ERROR, "em5::Nothing"));
  EXPECT_TRUE(manager().getCurrentEvents().empty());
}

TEST_F(FreeplayEventTest, RecordsTellOfThoseThatRunAndHaveEndedAndWhy) {
  play();
  em5::FreeplayEvent& won = startJudged();
  won.setEventName("Won");
  em5::Objective& objective = add(won, "a", em5::OBJECTIVE_REQUIRED, 2);
  objective.setText("Done %d of %d");
  em5::FreeplayEvent& lost = startJudged();
  lost.setEventName("Lost");
  em5::Objective& failure = add(lost, "b", em5::OBJECTIVE_FAIL, 1);
  add(lost, "c", em5::OBJECTIVE_REQUIRED, 1);
  failure.setText("Dead: %d");
  em5::FreeplayEvent& running = startJudged();
  add(running, "d", em5::OBJECTIVE_REQUIRED, 1);
  run(0.1);
  ASSERT_EQ(manager().getRecords().size(), 3u);
  EXPECT_EQ(manager().getRecords()[0].state, em5::FreeplayEvent::State::RUNNING);
  objective.setCurrentNumber(2);
  failure.setCurrentNumber(1);
  run(0.05);
  const std::vector<em5::EventRecord> records = manager().getRecords();
  ASSERT_EQ(records.size(), 3u);
  EXPECT_EQ(records[0].name, "Won");
  EXPECT_EQ(records[0].state, em5::FreeplayEvent::State::SUCCEEDED);
  EXPECT_EQ(records[0].reason, "all required objectives are reached");
  EXPECT_NEAR(records[0].runningTime.getSecondsAsDouble(), 0.15, 0.001);
  ASSERT_EQ(records[0].objectives.size(), 1u);
  EXPECT_EQ(records[0].objectives[0].text, "Done 2 of 2");
  EXPECT_TRUE(records[0].objectives[0].reached);
  EXPECT_EQ(records[1].name, "Lost");
  EXPECT_EQ(records[1].state, em5::FreeplayEvent::State::FAILED);
  EXPECT_EQ(records[1].reason, "Dead: 1");
  EXPECT_EQ(records[1].objectives.size(), 2u);
  EXPECT_EQ(records[2].state, em5::FreeplayEvent::State::RUNNING);
  EXPECT_EQ(records[2].reason, "");
  session->endGame();
  EXPECT_TRUE(manager().getRecords().empty());
}

TEST_F(FreeplayEventTest, AnEntityTakesTheNewReasonOnlyIfTold) {
  play();
  em5::FreeplayEvent& event = startJudged();
  add(event, "a", em5::OBJECTIVE_REQUIRED, 1);
  qsf::Entity& entity = create("barrel", 100);
  event.addEntityToEvent(entity, 0);
  event.addEntityToEvent(entity, 1);
  EXPECT_EQ(entity.getComponent<em5::EventIdComponent>()->getReason(), 0);
  event.addEntityToEvent(entity, 1, true);
  EXPECT_EQ(entity.getComponent<em5::EventIdComponent>()->getReason(), 1);
}

}
