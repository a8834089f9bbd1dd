#include "em5/action/ChangeMaskAction.h"
#include "em5/action/EnterVehicleAction.h"
#include "em5/action/FullBrakeAction.h"
#include "em5/action/GetEquipmentAction.h"
#include "em5/action/MoveAction.h"
#include "em5/action/SpeakToPersonAction.h"
#include "em5/base/Messages.h"
#include "em5/component/CommandableComponent.h"
#include "em5/component/HealthComponent.h"
#include "em5/component/PersonComponent.h"
#include "em5/component/RoadVehicleComponent.h"
#include "em5/component/VehicleComponent.h"
#include "em5/map/EntityHelper.h"
#include "host/em5/action/ActionTest.h"
#include "qsf/ai/ReachSinglePointGoal.h"
#include "qsf/component/LinkComponent.h"
#include "qsf/component/MovableComponent.h"
#include "qsf/game/EquipmentComponent.h"
#include "qsf/game/InventoryComponent.h"
#include "qsf/message/MessageProxy.h"

using em5::EntityHelper;
using em5::Messages;

namespace {

class PersonActionsTest : public host_test::ActionTest {
protected:
  static std::uint64_t containerOf(const qsf::Entity& person) {
    return person.getComponent<em5::PersonComponent>()->getContainerId();
  }
  static std::string held(qsf::Entity& person) {
    const qsf::Entity* equipment = EntityHelper(person).getActiveEquipmentEntity();
    return equipment ? equipment->getComponent<qsf::game::EquipmentComponent>()->getEquipmentName() : "";
  }
  static void load(qsf::Entity& vehicle, const std::vector<std::string>& items) {
    vehicle.getOrCreateComponent<qsf::game::InventoryComponent>()->setItems(items);
  }
  static constexpr const char* AXE = "em5/prefab/test/axe";
  qsf::Entity& person = make(100, "firefighter");
  qsf::Entity& engine = make(101, "fire_engine", {30, 0, 0});
};

TEST_F(PersonActionsTest, APersonWalksToTheVehicleAndGetsIn) {
  push<em5::EnterVehicleAction>(person).init(engine);
  runSeconds(1);
  EXPECT_EQ(qsf::UNINITIALIZED_ID, containerOf(person));
  EXPECT_NE(-1, framesUntilIdle(person));
  EXPECT_EQ(101u, containerOf(person));
  EXPECT_TRUE(person.isHidden());
  EXPECT_EQ(101u, person.getComponent<qsf::LinkComponent>()->getParentId());
  EXPECT_EQ(1u, emitted(Messages::EM5_ACTION_ENTER_VEHICLE));
}

TEST_F(PersonActionsTest, APersonThatEntersAtOnceIsInTheVehicleAndMovesWithIt) {
  push<em5::EnterVehicleAction>(person).init(engine, 2);
  runSeconds(0.05);
  EXPECT_EQ(101u, containerOf(person));
  engine.getComponent<qsf::TransformComponent>()->setPosition({500, 0, 0});
  EXPECT_EQ(glm::vec3(500, 0, 0), positionOf(person));
}

TEST_F(PersonActionsTest, NobodyEntersAWreckAHouseOrAVehicleThatIsGone) {
  engine.getComponent<em5::VehicleComponent>()->setDamage(1);
  push<em5::EnterVehicleAction>(person).init(engine, 2);
  push<em5::EnterVehicleAction>(person).init(make(102, "house"), 2);
  push<em5::EnterVehicleAction>(person).init(make(103, "ambulance"), 2);
  map.destroyObjectById(103);
  actionsOf(person).pushActionById("em5::EnterVehicleAction");
  runSeconds(0.3);
  EXPECT_TRUE(isIdle(person));
  EXPECT_EQ(qsf::UNINITIALIZED_ID, containerOf(person));
}

TEST_F(PersonActionsTest, WhoCannotGetThereDoesNotEnter) {
  person.getComponent<em5::HealthComponent>()->setInjured(true);
  push<em5::EnterVehicleAction>(person).init(engine);
  EXPECT_NE(-1, framesUntilIdle(person));
  EXPECT_EQ(qsf::UNINITIALIZED_ID, containerOf(person));
}

TEST_F(PersonActionsTest, EquipmentComesOutOfTheVehiclesInventory) {
  load(engine, {"em5/prefab/test/marker", AXE});
  person.getComponent<qsf::TransformComponent>()->setPosition({27, 0, 0});
  push<em5::GetEquipmentAction>(person).init(engine, "axe");
  runSeconds(0.1);
  EXPECT_EQ("axe", held(person));
  const qsf::Entity* axe = EntityHelper(person).getActiveEquipmentEntity();
  EXPECT_EQ(100u, axe->getComponent<qsf::LinkComponent>()->getParentId());
  EXPECT_EQ(positionOf(person), positionOf(*axe));
  EXPECT_EQ(qsf::StringHash(AXE), axe->getComponent<qsf::MetadataComponent>()->getBasePrefab());
  EXPECT_EQ(2u, engine.getComponent<qsf::game::InventoryComponent>()->getItems().size());
  EXPECT_EQ(1u, emitted(Messages::EM5_ACTION_GET_EQUIPMENT));
}

TEST_F(PersonActionsTest, OutOfReachThereIsNoEquipment) {
  load(engine, {AXE});
  push<em5::GetEquipmentAction>(person).init(engine, "axe");
  runSeconds(0.1);
  EXPECT_TRUE(isIdle(person));
  EXPECT_EQ("", held(person));
}

TEST_F(PersonActionsTest, AVehicleWithoutTheEquipmentGivesNone) {
  load(engine, {"em5/prefab/test/marker", "em5/prefab/test/none"});
  person.getComponent<qsf::TransformComponent>()->setPosition({27, 0, 0});
  push<em5::GetEquipmentAction>(person).init(engine, "axe");
  runSeconds(0.1);
  EXPECT_EQ("", held(person));
}

TEST_F(PersonActionsTest, WithoutAVehicleTheEquipmentComesFromNowhere) {
  push<em5::GetEquipmentAction>(person).init("hose", -1);
  EXPECT_EQ("hose", given(person, "equipment"));
  EXPECT_EQ("-1", given(person, "index"));
  runSeconds(0.1);
  EXPECT_EQ("hose", held(person));
}

TEST_F(PersonActionsTest, WhatWasHeldGoesBackUnlessItIsTheSame) {
  push<em5::GetEquipmentAction>(person).init("hose", -1);
  runSeconds(0.1);
  const std::uint64_t hose = person.getComponent<em5::PersonComponent>()->getEquipmentId();
  push<em5::GetEquipmentAction>(person).init("hose", -1);
  runSeconds(0.1);
  EXPECT_EQ(hose, person.getComponent<em5::PersonComponent>()->getEquipmentId());
  push<em5::GetEquipmentAction>(person).init("axe", -1);
  runSeconds(0.1);
  EXPECT_EQ("axe", held(person));
  EXPECT_EQ(nullptr, map.getEntityById(hose));
}

TEST_F(PersonActionsTest, AVehicleHoldsNoEquipment) {
  push<em5::GetEquipmentAction>(engine).init("hose", -1);
  runSeconds(0.1);
  EXPECT_TRUE(isIdle(engine));
  EXPECT_EQ(2u, map.getNumberOfEntities());
}

TEST_F(PersonActionsTest, TheNearestVehicleOfThePlayerWithTheEquipmentIsReachable) {
  const EntityHelper helper(person);
  EXPECT_EQ(nullptr, helper.getReachableRoadVehicleWithEquipment("axe"));
  load(engine, {AXE});
  EXPECT_EQ(&engine, helper.getReachableRoadVehicleWithEquipment("axe"));
  EXPECT_EQ(nullptr, helper.getReachableRoadVehicleWithEquipment(AXE));
  qsf::Entity& nearer = make(102, "ambulance", {10, 0, 0});
  load(nearer, {AXE});
  EXPECT_EQ(&nearer, helper.getReachableRoadVehicleWithEquipment("axe"));
  nearer.getComponent<em5::CommandableComponent>()->setPlayerId(1);
  EXPECT_EQ(&engine, helper.getReachableRoadVehicleWithEquipment("axe"));
  engine.getComponent<em5::VehicleComponent>()->setDamage(1);
  EXPECT_EQ(nullptr, helper.getReachableRoadVehicleWithEquipment("axe"));
  engine.getComponent<em5::VehicleComponent>()->setDamage(0);
  engine.getComponent<qsf::TransformComponent>()->setPosition({1001, 0, 0});
  EXPECT_EQ(nullptr, helper.getReachableRoadVehicleWithEquipment("axe"));
}

TEST_F(PersonActionsTest, HelicoptersAndCiviliansHaveNoPartInIt) {
  qsf::Entity& helicopter = make(103, "helicopter");
  load(helicopter, {AXE});
  EXPECT_EQ(nullptr, EntityHelper(person).getReachableRoadVehicleWithEquipment("axe"));
  load(engine, {AXE});
  EXPECT_EQ(nullptr, EntityHelper(make(104, "civilian")).getReachableRoadVehicleWithEquipment("axe"));
}

TEST_F(PersonActionsTest, AFullBrakeStopsTheUnitForASecondWithItsBrakeLights) {
  const auto* lights = engine.getComponent<em5::RoadVehicleComponent>();
  push<em5::MoveAction>(engine).init(
      std::make_unique<qsf::ai::ReachSinglePointGoal>(qsf::logic::TargetPoint({130, 0, 0})));
  runSeconds(1);
  actionsOf(engine).pushActionById("em5::FullBrakeAction", 1, qsf::action::INSERT_BEFORE_CURRENT);
  runSeconds(0.05);
  const glm::vec3 place = positionOf(engine);
  EXPECT_TRUE(lights->isBrakeLightOn());
  runSeconds(0.9);
  EXPECT_EQ(place, positionOf(engine));
  EXPECT_TRUE(lights->isBrakeLightOn());
  runSeconds(1);
  EXPECT_FALSE(lights->isBrakeLightOn());
  EXPECT_NE(place, positionOf(engine));
}

TEST_F(PersonActionsTest, WhatCannotMoveHasNothingToBrake) {
  qsf::Entity& marker = make(102, "marker");
  actionsOf(marker).pushActionById("em5::FullBrakeAction");
  runSeconds(0.05);
  EXPECT_TRUE(isIdle(marker));
}

TEST_F(PersonActionsTest, AMaskIsPutOnAndTakenOffAndTakesTwoSeconds) {
  const auto& state = *person.getComponent<em5::PersonComponent>();
  actionsOf(person).pushActionById("em5::ChangeMaskAction");
  runSeconds(1.9);
  EXPECT_FALSE(state.isMasked());
  runSeconds(0.1);
  EXPECT_TRUE(state.isMasked());
  EXPECT_TRUE(isIdle(person));
  push<em5::ChangeMaskAction>(person).init(true);
  runSeconds(0.05);
  EXPECT_TRUE(isIdle(person));
  actionsOf(person).pushActionById("em5::ChangeMaskAction");
  runSeconds(2);
  EXPECT_FALSE(state.isMasked());
}

TEST_F(PersonActionsTest, AMaskThatIsTakenAwayFromThePlanStaysOff) {
  const qsf::Action& change = actionsOf(person).pushActionById("em5::ChangeMaskAction");
  runSeconds(1);
  actionsOf(person).removeAction(&change);
  runSeconds(3);
  EXPECT_FALSE(person.getComponent<em5::PersonComponent>()->isMasked());
}

TEST_F(PersonActionsTest, SpeakingTellsWhoSpokeToWhom) {
  make(102, "civilian", {20, 0, 0});
  qsf::MessageProxy listener;
  std::uint64_t policeman = 0, spokenTo = 0;
  listener.registerAt(qsf::MessageConfiguration(Messages::EM5_ACTION_SPEAK_TO_PERSON, 100, 102),
                      [&](const qsf::MessageParameters& parameters) {
                        parameters.getParameter("PolicemanId", policeman);
                        parameters.getParameter("PersonId", spokenTo);
                      });
  push<em5::SpeakToPersonAction>(person).init(*map.getEntityById(102));
  EXPECT_NE(-1, framesUntilIdle(person));
  EXPECT_EQ(100u, policeman);
  EXPECT_EQ(102u, spokenTo);
}

TEST_F(PersonActionsTest, NobodySpeaksToVehiclesOrWhoIsGone) {
  push<em5::SpeakToPersonAction>(person).init(engine);
  qsf::Entity& gone = make(102, "civilian");
  push<em5::SpeakToPersonAction>(person).init(gone);
  map.destroyObjectById(102);
  EXPECT_NE(-1, framesUntilIdle(person));
  EXPECT_EQ(0u, emitted(Messages::EM5_ACTION_SPEAK_TO_PERSON));
}

TEST_F(PersonActionsTest, EveryActionOfTheGameStartsByItsName) {
  for (const char* name :
       {"em5::MoveAction", "em5::TurnToAction", "em5::PlayAnimationAction", "em5::PlayAudioAction",
        "em5::EnterVehicleAction", "em5::GetEquipmentAction", "em5::FullBrakeAction", "em5::ChangeMaskAction",
        "em5::SpeakToPersonAction", "qsf::TurnToAction", "qsf::WaitAction"}) {
    const qsf::Action& made = actionsOf(person).pushActionById(name);
    EXPECT_EQ(made.getTypeId(), qsf::StringHash(made.getTypeName())) << name;
  }
  EXPECT_NE(-1, framesUntilIdle(person));
  EXPECT_TRUE(log.empty());
}

}
