#include "../AllocationCounter.h"
#include "../LogCapture.h"
#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/shared/ComponentProperty.h"
#include "game_plugin/scenario/shared/PressEdge.h"

#include "em5/component/DoorComponent.h"
#include "em5/component/VehicleComponent.h"
#include "qsf/action/ActionComponent.h"
#include "qsf/component/MetadataComponent.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/map/Map.h"
#include "qsf/physics/BulletCollisionComponent.h"
#include "qsf/physics/PhysicsWorldComponent.h"

#include <gtest/gtest.h>

using namespace script;

namespace {

/// Conditions on a bare map, without core entity, manager and game.
class ConditionsTest : public testing::Test {
protected:
  ~ConditionsTest() override { ScenarioHandler::Retire(handler); }

  const DefaultCondition& make(const Tokens& tokens) {
    const DefaultCondition* record = handler->GetConditions().create(tokens);
    if (!record) throw std::invalid_argument(tokens[0]);
    return *record;
  }
  bool test(const DefaultCondition& record) {
    return record.entry->test(record, *handler, Evaluation{qsf::Time::ZERO, nullptr});
  }
  bool test(const Tokens& tokens) { return test(make(tokens)); }
  std::vector<std::uint64_t> list(const std::string& name) { return handler->ResolveEntityList(name).vector(); }

  template <class... Components> qsf::Entity& addEntity(std::uint64_t id, const glm::vec3& position = {0, 0, 0}) {
    qsf::Entity* entity = qsf::getMainMap().createEntity(id);
    entity->getOrCreateComponent<qsf::TransformComponent>()->setPosition(position);
    entity->getOrCreateComponent<qsf::MetadataComponent>();
    (entity->getOrCreateComponent<Components>(), ...);
    return *entity;
  }

  LogCapture host;
  ScenarioHandler* handler = new ScenarioHandler(std::make_shared<GlobalStores>());
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
  const auto& compare = static_cast<const ComponentPropertyCondition&>(
      make({"CompareComponentPropertyToFloatVariable", "100 101", "qsf::MetadataComponent", "Name", "==", "7", "out"}));
  EXPECT_FALSE(compare.failureSeen);
  EXPECT_TRUE(test(compare));
  EXPECT_TRUE(compare.failureSeen);
  EXPECT_EQ(list("out"), std::vector<std::uint64_t>{101});
}

TEST_F(ConditionsTest, ATestThatFailsIsNoFailedAccess) {
  addEntity<>(100).getComponent<qsf::MetadataComponent>()->setName("seven");
  const auto& match = static_cast<const ComponentPropertyCondition&>(
      make({"ComponentPropertyMatchsString", "100", "qsf::MetadataComponent", "Name", "eight", "out"}));
  EXPECT_FALSE(test(match));
  EXPECT_FALSE(match.failureSeen);
}

TEST_F(ConditionsTest, OnMousePressedRefusesATextThatEveryButtonHolds) {
  EXPECT_THROW(make({"OnMousePressed", ""}), std::invalid_argument);
  EXPECT_EQ(host.count(2, "[MS] Error: Condition OnMousePressed was not found"), 1);
}

TEST(PressEdgeTest, HoldsOnceAPress) {
  PressEdge edge;
  EXPECT_FALSE(edge.update(false));
  EXPECT_TRUE(edge.update(true));
  EXPECT_FALSE(edge.update(true));
  EXPECT_FALSE(edge.update(false));
  EXPECT_TRUE(edge.update(true));
}

/// Conditions that stay false on a world of units, as tokens.
class IdleConditionTest : public ConditionsTest, public testing::WithParamInterface<Tokens> {};

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

  const DefaultCondition& condition = make(GetParam());
  EXPECT_FALSE(test(condition));
  const std::size_t before = getNumberOfAllocations();
  bool held = false;
  for (int i = 0; i < 10; ++i)
    held = test(condition) || held;
  EXPECT_EQ(getNumberOfAllocations(), before);
  EXPECT_FALSE(held);
}

INSTANTIATE_TEST_SUITE_P(
    Entries, IdleConditionTest,
    testing::Values(Tokens{"CanBeTowed", "units", "out"}, Tokens{"IsSirenEnabled", "units", "out"},
                    Tokens{"ObjectIsBurning", "units", "out"}, Tokens{"SquadPersonInValidState", "units", "out"},
                    Tokens{"SquadVehicleInValidState", "units", "out"},
                    Tokens{"IsAnimationCurrentlyPlaying", "units", "out", "em5/animation/test/wave"},
                    Tokens{"HasParent", "units", "out"}, Tokens{"DistanceToUnit", "100", "units", "0", "<", "out"},
                    Tokens{"HasName", "units", "em5/prefab/test/tree", "out"},
                    Tokens{"HasEquipment", "units", "axe", "with", "without"},
                    Tokens{"CurrentActionPriorityMaximum", "areas", "out", "5"},
                    Tokens{"EntityListHasSize", "units", "<", "9"},
                    Tokens{"IsUnitInSensorArea", "areas", "units", "out"},
                    Tokens{"IsAnyEntityInSensorArea", "areas", "em5::PersonComponent", "out"},
                    Tokens{"DoorHasState", "units", "out", "DOOR_OPENING"}, Tokens{"IsOpenHouse", "units", "out"},
                    Tokens{"EntityHasComponent", "units", "em5::PersonComponent", "out"},
                    Tokens{"IsCurrentAction", "units", "test::Wave"}, Tokens{"IsActionInPlan", "units", "test::Wave"},
                    Tokens{"IsVehicleMoving", "units"}, Tokens{"ActionPlanIsEmpty", "areas", "out"},
                    Tokens{"CompareEntityListSizes", "units", "<", "areas"},
                    Tokens{"CompareEntityListSizeWithValue", "units", "<", "9"}),
    [](const testing::TestParamInfo<Tokens>& entry) { return entry.param[0]; });

}
