#include "game_plugin/scenario/shared/components/ComponentProperty.h"

#include "em5/component/DoorComponent.h"
#include "em5/component/VehicleComponent.h"
#include "qsf/action/ActionComponent.h"
#include "qsf/component/MetadataComponent.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/map/Map.h"
#include "qsf/physics/BulletCollisionComponent.h"
#include "qsf/physics/PhysicsWorldComponent.h"
#include "tests/game_plugin/scenario/AllocationCounter.h"
#include "tests/game_plugin/scenario/LogCapture.h"
#include "tests/game_plugin/scenario/ScriptFixture.h"

#include <gtest/gtest.h>

using namespace script;

namespace {

/// Conditions on a bare map, without core entity, manager and game.
class ConditionsTest : public testing::Test {
protected:
  bool test(const Words& words) { return runner.test(words); }
  std::vector<std::uint64_t> list(const std::string& name) { return runner.list(name); }

  template <class... Components> qsf::Entity& addEntity(std::uint64_t id, const glm::vec3& position = {0, 0, 0}) {
    qsf::Entity* entity = qsf::getMainMap().createEntity(id);
    entity->getOrCreateComponent<qsf::TransformComponent>()->setPosition(position);
    entity->getOrCreateComponent<qsf::MetadataComponent>();
    (entity->getOrCreateComponent<Components>(), ...);
    return *entity;
  }

  LogCapture host;
  EntryRunner runner;
  ScenarioHandler* handler = runner.handler;
};

TEST_F(ConditionsTest, SensorsLeaveEveryListAloneWithoutAPhysicsWorld) {
  handler->AddToEntityList(std::string("out"), 7);
  EXPECT_FALSE(test({"IsUnitInSensorArea", "areas", "in", "out"}));
  EXPECT_FALSE(test({"IsAnyEntityInSensorArea", "areas", "em5::PersonComponent", "out"}));
  EXPECT_EQ(list("out"), std::vector<std::uint64_t>{7});
  EXPECT_EQ(handler->entityLists.size(), 1u);
}

TEST_F(ConditionsTest, IsDayTimeReportsAMissingClock) {
  EXPECT_FALSE(test({"IsDayTime"}));
  EXPECT_EQ(host.count(4, "IsDayTimeCondition::TimeOfDayComponent was not found"), 1);
}

TEST_F(ConditionsTest, SelectionConditionsFailWithoutAGame) {
  EXPECT_FALSE(test({"UnitIsSelected", "units"}));
  EXPECT_FALSE(test({"IsAnyEntitySelected", "units"}));
  EXPECT_FALSE(test({"IsAnyEntityUnderMouse", "units"}));
  EXPECT_FALSE(test({"HasSelectionMouseClickCommand", "heal", "units"}));
  EXPECT_EQ(handler->entityLists.size(), 0u);
}

TEST_F(ConditionsTest, AFailedAccessIsRememberedAndTheWalkGoesOn) {
  addEntity<>(100).getComponent<qsf::MetadataComponent>()->setName("seven");
  addEntity<>(101).getComponent<qsf::MetadataComponent>()->setName("7");
  const auto* compare = static_cast<const ComponentPropertyCondition*>(runner.makeCondition(
      {"CompareComponentPropertyToFloatVariable", "100 101", "qsf::MetadataComponent", "Name", "==", "7", "out"}));
  ASSERT_NE(compare, nullptr);
  EXPECT_FALSE(handler->stateOf(compare->failureSeen));
  EXPECT_TRUE(runner.test(*compare));
  EXPECT_TRUE(handler->stateOf(compare->failureSeen));
  EXPECT_EQ(list("out"), std::vector<std::uint64_t>{101});
  EXPECT_TRUE(host.lines.empty());
}

TEST_F(ConditionsTest, ATestThatFailsIsNoFailedAccess) {
  addEntity<>(100).getComponent<qsf::MetadataComponent>()->setName("seven");
  const auto* match = static_cast<const ComponentPropertyCondition*>(
      runner.makeCondition({"ComponentPropertyMatchsString", "100", "qsf::MetadataComponent", "Name", "eight", "out"}));
  ASSERT_NE(match, nullptr);
  EXPECT_FALSE(runner.test(*match));
  EXPECT_FALSE(handler->stateOf(match->failureSeen));
}

TEST_F(ConditionsTest, OnMousePressedRefusesATextThatEveryButtonHolds) {
  EXPECT_EQ(runner.makeCondition({"OnMousePressed", ""}), nullptr);
  EXPECT_NE(runner.makeCondition({"OnMousePressed", "Middle"}), nullptr);
}

/// Conditions that stay false on a world of units, as words.
class IdleConditionTest : public ConditionsTest, public testing::WithParamInterface<Words> {};

TEST_P(IdleConditionTest, AllocatesNothingWhileItStaysFalse) {
  qsf::getMainMap().createEntity(0)->getOrCreateComponent<qsf::PhysicsWorldComponent>();
  for (std::uint64_t id = 100; id < 200; ++id) {
    addEntity<em5::VehicleComponent, em5::DoorComponent, qsf::ActionComponent>(id, {id * 10.0f, 0, 0});
    handler->AddToEntityList(std::string("units"), id);
  }
  auto& area =
      *addEntity<qsf::BulletCollisionComponent>(300, {-500, 0, 0}).getComponent<qsf::BulletCollisionComponent>();
  area.setCollisionFilterGroup(qsf::COLLISION_SENSOR);
  area.setCollisionMask(qsf::COLLISION_PERSON);
  handler->AddToEntityList(std::string("areas"), 300);
  qsf::getMainMap().startup();

  const DefaultCondition* made = runner.makeCondition(GetParam());
  ASSERT_NE(made, nullptr);
  const DefaultCondition& condition = *made;
  EXPECT_FALSE(runner.test(condition));
  const std::size_t before = getNumberOfAllocations();
  bool held = false;
  for (int i = 0; i < 10; ++i)
    held = runner.test(condition) || held;
  EXPECT_EQ(getNumberOfAllocations(), before);
  EXPECT_FALSE(held);
}

INSTANTIATE_TEST_SUITE_P(
    Entries, IdleConditionTest,
    testing::Values(Words{"CanBeTowed", "units", "out"}, Words{"IsSirenEnabled", "units", "out"},
                    Words{"ObjectIsBurning", "units", "out"}, Words{"SquadPersonInValidState", "units", "out"},
                    Words{"SquadVehicleInValidState", "units", "out"},
                    Words{"IsAnimationCurrentlyPlaying", "units", "out", "em5/animation/test/wave"},
                    Words{"HasParent", "units", "out"}, Words{"DistanceToUnit", "100", "units", "0", "<", "out"},
                    Words{"HasName", "units", "em5/prefab/test/tree", "out"},
                    Words{"HasEquipment", "units", "axe", "with", "without"},
                    Words{"CurrentActionPriorityMaximum", "areas", "out", "5"},
                    Words{"EntityListHasSize", "units", "<", "9"}, Words{"IsUnitInSensorArea", "areas", "units", "out"},
                    Words{"IsAnyEntityInSensorArea", "areas", "em5::PersonComponent", "out"},
                    Words{"DoorHasState", "units", "out", "DOOR_OPENING"}, Words{"IsOpenHouse", "units", "out"},
                    Words{"EntityHasComponent", "units", "em5::PersonComponent", "out"},
                    Words{"IsCurrentAction", "units", "test::Wave"}, Words{"IsActionInPlan", "units", "test::Wave"},
                    Words{"IsVehicleMoving", "units"}, Words{"ActionPlanIsEmpty", "areas", "out"},
                    Words{"CompareEntityListSizes", "units", "<", "areas"},
                    Words{"CompareEntityListSizeWithValue", "units", "<", "9"}),
    [](const testing::TestParamInfo<Words>& entry) { return entry.param[0]; });

}
