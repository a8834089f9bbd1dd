#include "qsf/component/MovableComponent.h"
#include "host/qsf/TestWorld.h"

#include <glm/gtc/constants.hpp>

#include <cmath>

using qsf::MovableComponent;

namespace {

class MovableComponentTest : public host_test::WorldTest {
protected:
  MovableComponentTest() {
    movable.setSpeed(10);
    movable.setTurnSpeed(180);
    map.startup();
  }
  qsf::Entity& entity = makeEntity(100);
  MovableComponent& movable = *entity.getOrCreateComponent<MovableComponent>();
  const glm::quat quarterTurn = glm::angleAxis(glm::half_pi<float>(), glm::vec3(0, 1, 0));
};

TEST_F(MovableComponentTest, AMoveTakesItsTimeAndEndsExactly) {
  movable.moveToPosition({10, 0, 0});
  EXPECT_TRUE(movable.isMoving());
  runSeconds(0.5);
  EXPECT_NEAR(5, positionOf(entity).x, 1e-3);
  runSeconds(0.45);
  EXPECT_TRUE(movable.isMoving());
  runSeconds(0.05);
  EXPECT_FALSE(movable.isMoving());
  EXPECT_EQ(glm::vec3(10, 0, 0), positionOf(entity));
}

TEST_F(MovableComponentTest, ATurnTakesTheShorterWayAndEndsExactly) {
  movable.moveToRotation(-quarterTurn); // the same rotation as quarterTurn
  runSeconds(0.25);
  EXPECT_NEAR(std::sin(glm::quarter_pi<float>() / 2), std::abs(movable.getRotation().y), 1e-3);
  EXPECT_TRUE(movable.isTurning());
  EXPECT_FALSE(movable.isMoving());
  runSeconds(0.25);
  EXPECT_FALSE(movable.isTurning());
  EXPECT_EQ(-quarterTurn, movable.getRotation());
}

TEST_F(MovableComponentTest, AnAngularVelocitySetsThePaceOfTurns) {
  movable.setAngularVelocity(quarterTurn, qsf::Time::fromSeconds(2));
  runSeconds(1);
  EXPECT_EQ(glm::quat(1, 0, 0, 0), movable.getRotation());
  movable.moveToRotation(quarterTurn);
  runSeconds(1.9);
  EXPECT_TRUE(movable.isTurning());
  runSeconds(0.1);
  EXPECT_FALSE(movable.isTurning());
}

TEST_F(MovableComponentTest, PropertiesStartAndStopMoves) {
  movable.setPropertyByString("TargetPosition", "10 0 0");
  EXPECT_EQ("1", movable.getPropertyAsString("Moving"));
  EXPECT_EQ("10 0 0", movable.getPropertyAsString("TargetPosition"));
  runSeconds(0.5);
  movable.setPropertyByString("Moving", "0");
  runSeconds(1);
  EXPECT_NEAR(5, positionOf(entity).x, 1e-3);
  movable.setPropertyByString("Moving", "1");
  runSeconds(0.5);
  EXPECT_EQ(glm::vec3(10, 0, 0), positionOf(entity));
}

TEST_F(MovableComponentTest, PlacesThatAreNotFiniteAreIgnored) {
  movable.moveToPosition({NAN, 0, 0});
  movable.moveToPosition({0, INFINITY, 0});
  movable.moveToRotation({NAN, 0, 0, 0});
  movable.moveToRotation({0, 0, 0, 0});
  EXPECT_FALSE(movable.isMoving());
  EXPECT_FALSE(movable.isTurning());
}

TEST_F(MovableComponentTest, WithoutSpeedNothingArrives) {
  movable.setSpeed(-5);
  movable.moveToPosition({0.0001f, 0, 0});
  runSeconds(1);
  EXPECT_TRUE(movable.isMoving());
  EXPECT_EQ(glm::vec3(0, 0, 0), positionOf(entity));
}

TEST_F(MovableComponentTest, InactiveAndPausedItRests) {
  movable.moveToPosition({10, 0, 0});
  movable.setActive(false);
  runSeconds(0.5);
  EXPECT_EQ(glm::vec3(0, 0, 0), positionOf(entity));
  movable.setActive(true);
  host.getJobManagers().setPaused(true);
  runSeconds(0.5);
  EXPECT_EQ(glm::vec3(0, 0, 0), positionOf(entity));
}

TEST_F(MovableComponentTest, AMoveBeforeTheMapsStartBeginsWithIt) {
  map.clear();
  qsf::Entity& early = makeEntity(200);
  early.getOrCreateComponent<MovableComponent>()->moveToPosition({1, 0, 0});
  runSeconds(1);
  EXPECT_EQ(glm::vec3(0, 0, 0), positionOf(early));
  map.startup();
  runSeconds(1);
  EXPECT_EQ(glm::vec3(1, 0, 0), positionOf(early));
}

TEST_F(MovableComponentTest, DestroyedWhileMovingItIsNoTrouble) {
  movable.moveToPosition({10, 0, 0});
  runSeconds(0.1);
  map.destroyObjectById(100);
  runSeconds(0.1);
  EXPECT_EQ(0u, host.getJobManagers().getNumberOfJobs("em5::Jobs::SIMULATION_LOGIC"));
}

}
