#include "em5/action/MoveAction.h"

#include "em5/component/HealthComponent.h"
#include "em5/component/PersonComponent.h"
#include "em5/component/VehicleComponent.h"
#include "em5/logic/TargetPointProviders.h"
#include "host/em5/action/ActionTest.h"
#include "qsf/action/WaitAction.h"
#include "qsf/ai/NavigationComponent.h"
#include "qsf/ai/ReachObjectGoal.h"
#include "qsf/ai/ReachSinglePointGoal.h"
#include "qsf/component/LinkComponent.h"
#include "qsf/component/MovableComponent.h"
#include "qsf/math/Heading.h"

#include <glm/gtc/constants.hpp>

using em5::MoveAction;
using qsf::logic::TargetPoint;

namespace {

class MoveActionTest : public host_test::ActionTest {
protected:
  static MoveAction& send(qsf::Entity& entity, const TargetPoint& target,
                          unsigned int mode = em5::MOVEMENT_MODE_DEFAULT) {
    auto& move = push<MoveAction>(entity);
    move.init(std::make_unique<qsf::ai::ReachSinglePointGoal>(target), mode, nullptr, qsf::Time::ZERO);
    return move;
  }
  static void sendTo(qsf::Entity& entity, qsf::Entity& target, qsf::StringHash provider, bool follow = true) {
    push<MoveAction>(entity).init(std::make_unique<qsf::ai::ReachObjectGoal>(entity, target, provider, follow));
  }
  /// Seconds that a unit takes for 100 units.
  double secondsFor100(const std::string& prefab, unsigned int mode) {
    qsf::Entity& unit = make(100, prefab);
    send(unit, TargetPoint({100, 0, 0}), mode);
    const double seconds = framesUntilIdle(unit) * 0.05;
    map.destroyObjectById(100);
    return seconds;
  }
  static float degreesToFace(const qsf::Entity& entity, const glm::vec3& place) {
    const auto& transform = *entity.getComponent<qsf::TransformComponent>();
    return std::abs(glm::degrees(qsf::getAngleToFace(transform.getPosition(), transform.getRotation(), place)));
  }
};

TEST_F(MoveActionTest, AUnitDrivesThereAndTakesUpTheRotation) {
  qsf::Entity& engine = make(100, "fire_engine");
  const glm::quat rotation = glm::angleAxis(1.0f, glm::vec3(0, 1, 0));
  send(engine, TargetPoint({30, 0, -40}, false, 0, 0, rotation));
  runSeconds(1);
  EXPECT_TRUE(engine.getComponent<qsf::MovableComponent>()->isMoving());
  EXPECT_NE(-1, framesUntilIdle(engine));
  EXPECT_EQ(glm::vec3(30, 0, -40), positionOf(engine));
  runSeconds(1); // nothing turns it away again
  EXPECT_GT(std::abs(glm::dot(rotation, engine.getComponent<qsf::TransformComponent>()->getRotation())), 0.99999f);
}

TEST_F(MoveActionTest, AUnitWhoseNavigationRestsStaysWhereItIs) {
  qsf::Entity& unit = make(100, "civilian");
  auto* navigation = unit.getOrCreateComponent<qsf::ai::NavigationComponent>();
  navigation->setActive(false);
  send(unit, TargetPoint({10, 0, 0}));
  runSeconds(1);
  EXPECT_TRUE(isIdle(unit));
  EXPECT_EQ(unit.getComponent<qsf::TransformComponent>()->getPosition(), glm::vec3(0, 0, 0));
  navigation->setActive(true);
  send(unit, TargetPoint({10, 0, 0}));
  EXPECT_GE(framesUntilIdle(unit), 0);
  EXPECT_NEAR(unit.getComponent<qsf::TransformComponent>()->getPosition().x, 10, 0.1);
}

TEST_F(MoveActionTest, WithoutARotationAUnitKeepsTheHeadingOfItsWay) {
  qsf::Entity& person = make(100, "firefighter");
  send(person, TargetPoint({40, 0, 0}));
  EXPECT_NE(-1, framesUntilIdle(person));
  EXPECT_LT(degreesToFace(person, {100, 0, 0}), 0.1f);
}

TEST_F(MoveActionTest, WalkingBackwardsAUnitTurnsItsBackToTheWay) {
  qsf::Entity& person = make(100, "firefighter");
  send(person, TargetPoint({20, 0, 0}), em5::MOVEMENT_MODE_WALK_BACKWARDS);
  EXPECT_NE(-1, framesUntilIdle(person));
  EXPECT_LT(degreesToFace(person, {-100, 0, 0}), 0.1f);
}

TEST_F(MoveActionTest, SpeedIsThatOfTheUnitTimesTheFactorOfTheMode) {
  EXPECT_NEAR(5.0, secondsFor100("fire_engine", em5::MOVEMENT_MODE_PLAYER_VEHICLE_ON_EMERGENCY_OPERATIONS), 0.11);
  EXPECT_NEAR(5.0, secondsFor100("fire_engine", qsf::getUninitialized<unsigned int>()), 0.11);
  EXPECT_NEAR(3.3, secondsFor100("helicopter", em5::MOVEMENT_MODE_DEFAULT), 0.16);
  EXPECT_NEAR(12.5, secondsFor100("firefighter", em5::MOVEMENT_MODE_DEFAULT), 0.11);
  EXPECT_NEAR(25.0, secondsFor100("firefighter", em5::MOVEMENT_MODE_CARRY_PERSON), 0.11);
  EXPECT_NEAR(10.0, secondsFor100("firefighter", em5::MOVEMENT_MODE_RUN_PANIC), 0.11);
  EXPECT_NEAR(12.5, secondsFor100("firefighter", 7), 0.11);
}

TEST_F(MoveActionTest, TheUnitsOwnSpeedIsAsItWasBehindTheMove) {
  qsf::Entity& person = make(100, "firefighter");
  auto& movable = *person.getComponent<qsf::MovableComponent>();
  send(person, TargetPoint({4, 0, 0}), em5::MOVEMENT_MODE_CARRY_PERSON);
  runSeconds(0.2);
  EXPECT_EQ(0.5f, movable.getSpeedFactor());
  EXPECT_NE(-1, framesUntilIdle(person));
  EXPECT_EQ(1.0f, movable.getSpeedFactor());
  EXPECT_EQ(8.0f, movable.getSpeed());
}

TEST_F(MoveActionTest, ADelayPassesFirst) {
  qsf::Entity& person = make(100, "firefighter");
  push<MoveAction>(person).init(std::make_unique<qsf::ai::ReachSinglePointGoal>(TargetPoint({8, 0, 0})),
                                em5::MOVEMENT_MODE_DEFAULT, nullptr, qsf::Time::fromSeconds(1));
  runSeconds(1);
  EXPECT_EQ(glm::vec3(0, 0, 0), positionOf(person));
  EXPECT_NEAR(20, framesUntilIdle(person), 2);
  EXPECT_EQ(glm::vec3(8, 0, 0), positionOf(person));
}

TEST_F(MoveActionTest, ItTellsGoalAndMode) {
  qsf::Entity& engine = make(100, "fire_engine");
  qsf::Entity& house = make(101, "house", {50, 0, 0});
  send(engine, TargetPoint({10, 0, 2.5f}), em5::MOVEMENT_MODE_RUN);
  using Description = qsf::action::Description;
  EXPECT_EQ(
      (Description{{"target", "10 0 2.5"}, {"position", "10 0 2.5"}, {"mode", "MOVEMENT_MODE_RUN"}, {"mode", "6"}}),
      actionsOf(engine).getCurrentAction()->describe());
  actionsOf(engine).clearPlan();
  sendTo(engine, house, em5::GetEquipmentTargetPointProvider::TARGET_POINT_ID);
  EXPECT_EQ(
      (Description{{"target", "101"}, {"provider", "em5::GetEquipmentTargetPointProvider"}, {"mode", "4294967295"}}),
      actionsOf(engine).getCurrentAction()->describe());
}

TEST_F(MoveActionTest, AnInterruptedMoveStopsTheUnitAndGoesOnAfterwards) {
  qsf::Entity& engine = make(100, "fire_engine");
  send(engine, TargetPoint({100, 0, 0}));
  runSeconds(2);
  actionsOf(engine).pushAction<qsf::WaitAction>(1, qsf::action::INSERT_BEFORE_CURRENT).init(qsf::Time::fromSeconds(1));
  EXPECT_FALSE(engine.getComponent<qsf::MovableComponent>()->isMoving());
  const glm::vec3 place = positionOf(engine);
  runSeconds(1);
  EXPECT_EQ(place, positionOf(engine));
  EXPECT_NE(-1, framesUntilIdle(engine));
  EXPECT_EQ(glm::vec3(100, 0, 0), positionOf(engine));
}

TEST_F(MoveActionTest, AUnitThatSomethingElseStopsOrMovesGoesOn) {
  qsf::Entity& engine = make(100, "fire_engine");
  send(engine, TargetPoint({100, 0, 0}));
  runSeconds(1);
  engine.getComponent<qsf::MovableComponent>()->stopMoving();
  runSeconds(1);
  engine.getComponent<qsf::MovableComponent>()->moveToPosition({0, 0, 500});
  EXPECT_NE(-1, framesUntilIdle(engine));
  EXPECT_EQ(glm::vec3(100, 0, 0), positionOf(engine));
}

TEST_F(MoveActionTest, RemovingTheMoveStopsTheUnit) {
  qsf::Entity& engine = make(100, "fire_engine");
  send(engine, TargetPoint({100, 0, 0}));
  runSeconds(1);
  actionsOf(engine).clearPlan();
  const glm::vec3 place = positionOf(engine);
  runSeconds(1);
  EXPECT_EQ(place, positionOf(engine));
}

TEST_F(MoveActionTest, WhatCannotMoveEndsItsMove) {
  const auto endsAt = [&](qsf::Entity& entity) {
    send(entity, TargetPoint({100, 0, 0}));
    runSeconds(0.1);
    return isIdle(entity) && positionOf(entity).x < 50;
  };
  EXPECT_TRUE(endsAt(make(100, "marker")));
  qsf::Entity& wreck = make(101, "fire_engine");
  wreck.getComponent<em5::VehicleComponent>()->setDamage(1);
  EXPECT_TRUE(endsAt(wreck));
  qsf::Entity& injured = make(102, "civilian");
  injured.getComponent<em5::HealthComponent>()->setInjured(true);
  EXPECT_TRUE(endsAt(injured));
  qsf::Entity& inside = make(103, "firefighter");
  inside.getComponent<em5::PersonComponent>()->setContainerId(101);
  EXPECT_TRUE(endsAt(inside));
}

TEST_F(MoveActionTest, AUnitThatIsHurtOnItsWayStops) {
  qsf::Entity& person = make(100, "firefighter");
  send(person, TargetPoint({100, 0, 0}));
  runSeconds(1);
  person.getComponent<em5::HealthComponent>()->setInjured(true);
  runSeconds(0.1);
  EXPECT_TRUE(isIdle(person));
  EXPECT_FALSE(person.getComponent<qsf::MovableComponent>()->isMoving());
}

TEST_F(MoveActionTest, APlaceThatIsNowhereEndsTheMove) {
  qsf::Entity& engine = make(100, "fire_engine");
  send(engine, TargetPoint({std::numeric_limits<float>::infinity(), 0, 0}));
  send(engine, TargetPoint({0, std::numeric_limits<float>::quiet_NaN(), 0}));
  runSeconds(0.2);
  EXPECT_TRUE(isIdle(engine));
}

TEST_F(MoveActionTest, OneThatWasNeverInitialisedEnds) {
  qsf::Entity& engine = make(100, "fire_engine");
  actionsOf(engine).pushActionById("em5::MoveAction");
  runSeconds(0.1);
  EXPECT_TRUE(isIdle(engine));
}

/// Units from a point to the box of a house at the origin, seen from above.
float distanceToHouse(const glm::vec3& place) {
  return glm::length(glm::vec2(std::max(std::abs(place.x) - 5, 0.0f), std::max(std::abs(place.z) - 5, 0.0f)));
}

TEST_F(MoveActionTest, EachProviderLeadsBesideTheBoxNotIntoIt) {
  make(101, "house");
  for (const char* provider : {"em5::GetEquipmentTargetPointProvider", "em5::EnterVehicleTargetPointProvider"})
    for (const char* prefab : {"firefighter", "fire_engine"})
      for (const glm::vec3& from : {glm::vec3(60, 0, 5), glm::vec3(-30, 0, 40), glm::vec3(1, 0, -2)}) {
        qsf::Entity& unit = make(100, prefab, from);
        sendTo(unit, *map.getEntityById(101), provider);
        EXPECT_NE(-1, framesUntilIdle(unit));
        EXPECT_GT(distanceToHouse(positionOf(unit)), 0.5f) << provider << ' ' << prefab << ' ' << from.x;
        EXPECT_LT(distanceToHouse(positionOf(unit)), 4.0f) << provider << ' ' << prefab << ' ' << from.x;
        map.destroyObjectById(100);
      }
  EXPECT_TRUE(log.empty());
}

TEST_F(MoveActionTest, OneEntersAVehicleAtItsSide) {
  qsf::Entity& engine = make(101, "fire_engine");
  engine.getComponent<qsf::TransformComponent>()->setRotation(
      glm::angleAxis(glm::half_pi<float>(), glm::vec3(0, 1, 0))); // its sides point along z now
  qsf::Entity& person = make(100, "firefighter", {30, 0, 1});
  sendTo(person, engine, em5::EnterVehicleTargetPointProvider::TARGET_POINT_ID);
  EXPECT_NE(-1, framesUntilIdle(person));
  EXPECT_GT(positionOf(person).z, 2.5f);
  EXPECT_LT(std::abs(positionOf(person).x), 4.01f);
}

TEST_F(MoveActionTest, AnUnknownProviderLeadsToTheEdgeWithOneWarning) {
  qsf::Entity& house = make(101, "house");
  qsf::Entity& person = make(100, "firefighter", {30, 0, 0});
  sendTo(person, house, "em5::NoSuchProvider");
  EXPECT_NE(-1, framesUntilIdle(person));
  EXPECT_LT(distanceToHouse(positionOf(person)), 4.0f);
  EXPECT_EQ(1u, log.size());
}

TEST_F(MoveActionTest, AUnitBesideTheTargetAlreadyStays) {
  qsf::Entity& house = make(101, "house");
  qsf::Entity& person = make(100, "firefighter", {5.6f, 0, 0});
  sendTo(person, house, em5::GetEquipmentTargetPointProvider::TARGET_POINT_ID);
  runSeconds(0.1);
  EXPECT_TRUE(isIdle(person));
  EXPECT_EQ(glm::vec3(5.6f, 0, 0), positionOf(person));
}

TEST_F(MoveActionTest, AGoalThatFollowsReachesAnEntityThatMoves) {
  qsf::Entity& civilian = make(101, "civilian", {40, 0, 0});
  civilian.getComponent<qsf::MovableComponent>()->setSpeed(4);
  civilian.getComponent<qsf::MovableComponent>()->moveToPosition({40, 0, 400});
  qsf::Entity& person = make(100, "firefighter");
  sendTo(person, civilian, em5::GetEquipmentTargetPointProvider::TARGET_POINT_ID);
  EXPECT_NE(-1, framesUntilIdle(person));
  EXPECT_LT(glm::distance(positionOf(person), positionOf(civilian)), 4.5f);
}

TEST_F(MoveActionTest, AGoalThatDoesNotFollowLeadsToWhereTheEntityWas) {
  qsf::Entity& civilian = make(101, "civilian", {40, 0, 0});
  qsf::Entity& person = make(100, "firefighter");
  sendTo(person, civilian, em5::GetEquipmentTargetPointProvider::TARGET_POINT_ID, false);
  runSeconds(1);
  civilian.getComponent<qsf::TransformComponent>()->setPosition({0, 0, 300});
  EXPECT_NE(-1, framesUntilIdle(person));
  EXPECT_LT(glm::distance(positionOf(person), {40, 0, 0}), 4.5f);
}

TEST_F(MoveActionTest, WhatIsLinkedBelowAUnitIsNoGoalForIt) {
  qsf::Entity& engine = make(100, "fire_engine");
  qsf::Entity& person = make(101, "firefighter", {30, 0, 0});
  person.getComponent<qsf::LinkComponent>()->setParentId(100);
  sendTo(engine, person, em5::GetEquipmentTargetPointProvider::TARGET_POINT_ID);
  runSeconds(0.1);
  EXPECT_TRUE(isIdle(engine));
  EXPECT_EQ(glm::vec3(0, 0, 0), positionOf(engine));
}

TEST_F(MoveActionTest, AMoveToAnEntityThatGoesEnds) {
  make(101, "house", {100, 0, 0});
  qsf::Entity& person = make(100, "firefighter");
  sendTo(person, *map.getEntityById(101), em5::GetEquipmentTargetPointProvider::TARGET_POINT_ID);
  runSeconds(1);
  map.destroyObjectById(101);
  runSeconds(0.1);
  EXPECT_TRUE(isIdle(person));
}

}
