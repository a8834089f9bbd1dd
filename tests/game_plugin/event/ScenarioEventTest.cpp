#include "game_plugin/event/ScenarioEvent.h"

#include "em5/component/HealthComponent.h"
#include "em5/component/PersonComponent.h"
#include "em5/freeplay/FreeplaySystem.h"
#include "em5/health/Injury.h"
#include "em5/map/EntityHelper.h"
#include "em5/plugin/Plugin.h"
#include "game_plugin/ModuleFixture.h"
#include "game_plugin/component/EventTargetComponent.h"
#include "game_plugin/event/InjuredPerson.h"
#include "qsf/base/CallRecorder.h"

#include <set>

namespace {

using script::ScenarioEvent;

class ScenarioEventTest : public ModuleTest {
protected:
  static em5::FreeplaySystem& freeplay() { return em5::Plugin::getInstance()->getFreeplaySystem(); }
  static ScenarioEvent* trigger() {
    return script::asScenarioEvent(
        freeplay().triggerEventByPath(em5::FreeplayEventTriggerInfo(1), "ScenarioEvent_Definition/ScenarioEvent"));
  }
  ScenarioEvent& play() {
    start();
    ScenarioEvent* event = trigger();
    if (!event) throw std::runtime_error("the event doesn't start");
    event->uniqueId = 1;
    return *event;
  }
  static em5::HealthComponent& createPerson(std::uint64_t id) {
    return *qsf::getMainMap()
                .createObjectByLocalPrefabAssetId("em5/prefab/test/civilian", id)
                ->getComponent<em5::HealthComponent>();
  }
  static const em5::Objective* find(const ScenarioEvent& event, const char* id) {
    return event.getObjectives().getObjectiveByTypeId(id);
  }
};

TEST_F(ScenarioEventTest, TheFactoryRefusesASecondUnclaimedEvent) {
  start();
  ScenarioEvent* first = trigger();
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(first->uniqueId, -1);
  EXPECT_EQ(trigger(), nullptr);
  EXPECT_EQ(freeplay().findFactory("ScenarioEvent_Definition/ScenarioEvent")->getTriggerFailReason(),
            "The \"ScenarioEvent\" event is allready running with a not initialized uniqued id!");
  first->uniqueId = 5;
  EXPECT_NE(trigger(), nullptr) << "a claimed event doesn't block";
  EXPECT_EQ(count(2, "TRY TRIGGER EVENT"), 3);
  EXPECT_EQ(count(2, "RUNNING"), 2);
}

TEST_F(ScenarioEventTest, PoolsSetTheTypeOfEventOrFactory) {
  write("mod", "em5_event/mine/flood.json",
        "{\"factory\": \"script::ScenarioEventFactory\", \"properties\": {\"Eventtype\": \"flood\", "
        "\"EventType\": \"unread\"}, \"supervisorMessage\": \"Water!\"}");
  write("mod", "em5_event/mine/variants.json",
        "{\"factory\": \"script::ScenarioEventFactory\", \"variants\": [{\"Eventtype\": \"a\"}, "
        "{\"Eventtype\": \"b\"}]}");
  start();
  auto* flood = script::asScenarioEvent(freeplay().triggerPoolEvent("mine/flood"));
  ASSERT_NE(flood, nullptr);
  EXPECT_EQ(flood->getEventType(), "flood");
  EXPECT_EQ(freeplay().findFactory("mine/flood")->getPropertyAsString("EventType"), "unread");
  EXPECT_EQ(flood->getPropertyAsString("Eventtype"), "flood");
  flood->uniqueId = 1;
  auto* entry = script::asScenarioEvent(freeplay().triggerPoolEvent("mine/flood", {{"Eventtype", "tide"}}));
  ASSERT_NE(entry, nullptr);
  EXPECT_EQ(entry->getEventType(), "tide") << "the pool's entry has the last word";
  entry->uniqueId = 2;
  std::set<std::string> drawn;
  for (int i = 0; i < 20; ++i) {
    auto* event = script::asScenarioEvent(freeplay().triggerPoolEvent("mine/variants"));
    ASSERT_NE(event, nullptr);
    drawn.insert(event->getEventType());
    event->uniqueId = 3;
  }
  EXPECT_EQ(drawn, (std::set<std::string>{"a", "b"}));
}

TEST_F(ScenarioEventTest, IsKnownByItsClass) {
  const ScenarioEvent& event = play();
  EXPECT_EQ(event.getCampClassName(), "script::ScenarioEvent");
  EXPECT_EQ(event.getCampClass().tag("Name").to<std::string>(), "ScenarioEvent");
  EXPECT_EQ(event.getCampClass().tag("Description").to<std::string>(), "Scenario Event");
  EXPECT_EQ(event.getCampClass().property("Eventtype").tag("Description").to<std::string>(), "Eventtype");
  EXPECT_EQ(script::asScenarioEvent(nullptr), nullptr);
  EXPECT_EQ(script::asScenarioEvent(freeplay().triggerEventByPath(em5::FreeplayEventTriggerInfo(0), "test/open_end")),
            nullptr);
}

TEST_F(ScenarioEventTest, ReducesWhatIsNeededAndDoneByText) {
  ScenarioEvent& event = play();
  event.createObjective("Fires", "a", 3, "REQUIRED");
  event.createObjective("Fires", "b", 1, "REQUIRED");
  event.createObjective("Other", "c", 1, "REQUIRED");
  event.reduceObjectiveByText("Fires", ScenarioEvent::LastOne::IS_REMOVED);
  ASSERT_NE(find(event, "a"), nullptr);
  EXPECT_EQ(find(event, "a")->getNeededNumber(), 2);
  EXPECT_EQ(find(event, "a")->getCurrentNumber(), 1);
  EXPECT_EQ(find(event, "b"), nullptr);
  EXPECT_EQ(find(event, "c")->getNeededNumber(), 1);
  event.reduceObjectiveByText("Fires", ScenarioEvent::LastOne::STAYS);
  event.reduceObjectiveByText("Fires", ScenarioEvent::LastOne::STAYS);
  EXPECT_EQ(find(event, "a")->getNeededNumber(), 0);
  EXPECT_EQ(find(event, "a")->getCurrentNumber(), -1);
}

TEST_F(ScenarioEventTest, DropsObjectivesByText) {
  ScenarioEvent& event = play();
  event.createObjective("Fires", "a", 3, "REQUIRED");
  event.createObjective("Fires", "b", 2, "REQUIRED");
  event.dropObjectiveByText("Fires", 3, ScenarioEvent::Removal::AT_LIMIT);
  EXPECT_EQ(find(event, "a"), nullptr) << "the limit isn't above what it needs";
  EXPECT_EQ(find(event, "b")->getNeededNumber(), 1);
  event.dropObjectiveByText("Fires", 3, ScenarioEvent::Removal::ALWAYS);
  EXPECT_EQ(find(event, "b"), nullptr);
}

TEST_F(ScenarioEventTest, MakesObjectivesThatAreMissing) {
  ScenarioEvent& event = play();
  em5::Objective& made = event.getOrCreateObjective("a");
  EXPECT_EQ(made.getType(), em5::OBJECTIVE_REQUIRED);
  EXPECT_EQ(made.getNeededNumber(), 0);
  EXPECT_EQ(made.getOrderPriority(), 100);
  EXPECT_EQ(made.getEventId(), event.getId());
  EXPECT_EQ(&event.getOrCreateObjective("a"), &made);
}

TEST_F(ScenarioEventTest, APendingJumpBreaksALegInTime) {
  ScenarioEvent& event = play();
  const em5::HealthComponent& person = createPerson(100);
  event.addPendingJump(1, 100);
  run(0.9);
  EXPECT_FALSE(person.isInjured());
  run(0.2);
  EXPECT_EQ(person.getInjuryId(), em5::injury::BROKEN_LEG);
  EXPECT_EQ(em5::EntityHelper(person.getEntity()).getFreeplayEvent(), &event);
  EXPECT_EQ(event.getNumberOfPendingJumps(), 0u);
}

TEST_F(ScenarioEventTest, TheNextOfTheListWaitsForTheNextCall) {
  ScenarioEvent& event = play();
  const em5::HealthComponent& first = createPerson(100);
  const em5::HealthComponent& second = createPerson(101);
  const em5::HealthComponent& third = createPerson(102);
  event.addPendingJump(0.05f, 100);
  event.addPendingJump(0.05f, 101);
  event.addPendingJump(0.05f, 102);
  run(0.05);
  EXPECT_TRUE(first.isInjured());
  EXPECT_FALSE(second.isInjured()) << "it has moved to the place of the first";
  EXPECT_TRUE(third.isInjured());
  run(0.05);
  EXPECT_TRUE(second.isInjured());
}

TEST_F(ScenarioEventTest, OneWhoIsFetchedInTimeDoesNotJump) {
  ScenarioEvent& event = play();
  const em5::HealthComponent& fetched = createPerson(100);
  const em5::HealthComponent& other = createPerson(101);
  event.addEntityToEvent(fetched.getEntity(), 1);
  fetched.getEntity().getOrCreateComponent<script::EventTargetComponent>()->add("rescue_dlk");
  event.addPendingJump(1, 100);
  event.addPendingJump(1, 101);
  event.addPendingJump(2, 100);
  run(0.5);
  session->getQsf().getMessageSystem().emitMessage(
      qsf::MessageConfiguration("em5::Messages::EM5_ACTION_LOAD_PERSON_ON_DLK", 100));
  EXPECT_EQ(event.getNumberOfPendingJumps(), 1u);
  run(2);
  EXPECT_FALSE(fetched.isInjured());
  EXPECT_TRUE(other.isInjured());
}

TEST_F(ScenarioEventTest, AJumpOfTheInjuredAndTheGoneChangesNothing) {
  ScenarioEvent& event = play();
  em5::HealthComponent& person = createPerson(100);
  person.injurePersonById(em5::injury::SHOCK);
  event.addPendingJump(0.1f, 100);
  event.addPendingJump(0.1f, 555);
  run(0.5);
  EXPECT_EQ(person.getInjuryId(), em5::injury::SHOCK);
  EXPECT_EQ(event.getNumberOfPendingJumps(), 0u);
}

TEST_F(ScenarioEventTest, EqualJumpsAreDoneAtOnce) {
  ScenarioEvent& event = play();
  createPerson(100);
  event.addPendingJump(0.05f, 100);
  event.addPendingJump(0.05f, 100);
  run(0.05);
  // The second had more time left when the first was erased, so it isn't the same.
  EXPECT_EQ(event.getNumberOfPendingJumps(), 1u);
  run(0.05);
  EXPECT_EQ(event.getNumberOfPendingJumps(), 0u);
}

TEST_F(ScenarioEventTest, JumpsEndWithTheEvent) {
  ScenarioEvent& event = play();
  const em5::HealthComponent& person = createPerson(100);
  event.addPendingJump(0.2f, 100);
  event.allowedToFinish = true;
  run(1);
  EXPECT_FALSE(person.isInjured());
}

TEST_F(ScenarioEventTest, WhatTheModuleKeepsIsNotSaved) {
  ScenarioEvent& event = play();
  const std::uint64_t id = event.getId();
  event.uniqueId = 7;
  event.allowedToFinish = true;
  event.setPropertyByString("Eventtype", "flood");
  event.setEventName("Kept");
  event.createObjective("Text", "a", 2, "OPTIONAL");
  freeplay().getEventManager().loadEvents(freeplay().getEventManager().saveEvents());
  const auto* loaded = script::asScenarioEvent(freeplay().getEventManager().getEventById(id));
  ASSERT_NE(loaded, nullptr);
  EXPECT_EQ(loaded->uniqueId, -1);
  EXPECT_FALSE(loaded->allowedToFinish);
  EXPECT_EQ(loaded->getEventType(), "");
  EXPECT_EQ(loaded->getEventName(), "Kept");
  ASSERT_NE(find(*loaded, "a"), nullptr);
  EXPECT_EQ(find(*loaded, "a")->getNeededNumber(), 2);
}

TEST_F(ScenarioEventTest, TheStartHintIsTheSupervisors) {
  ScenarioEvent& event = play();
  const auto& calls = session->getQsf().getCallRecorder().getCalls();
  const std::size_t before = calls.size();
  event.showEventStartHint({"Water!"});
  ASSERT_EQ(calls.size(), before + 1);
  EXPECT_EQ(calls.back().operation, "em5::HintHelper::showSupervisorMessage");
  EXPECT_EQ(calls.back().arguments[0], "Water!");
}

TEST_F(ScenarioEventTest, TheCameraShowsWhatCanBeSeen) {
  ScenarioEvent& event = play();
  EXPECT_EQ(event.getFocusEntity(), nullptr);
  qsf::Entity& person = createPerson(100).getEntity();
  event.addEntityToEvent(person, 1);
  EXPECT_EQ(event.getFocusEntity(), &person);
}

TEST_F(ScenarioEventTest, NobodyIsPutIntoWhatIsNoRoadVehicle) {
  ScenarioEvent& event = play();
  qsf::Entity& house = *qsf::getMainMap().createObjectByLocalPrefabAssetId("em5/prefab/test/house", 100);
  const std::size_t before = qsf::getMainMap().getNumberOfEntities();
  EXPECT_EQ(script::placeInjuredPersonInVehicle(house, event, em5::injury::BURN_4_GRADE), nullptr);
  EXPECT_EQ(qsf::getMainMap().getNumberOfEntities(), before);
}

}
