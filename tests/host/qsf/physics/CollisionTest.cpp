#include "em5/map/RayMapQuery.h"
#include "host/qsf/TestWorld.h"
#include "qsf/component/CameraComponent.h"
#include "qsf/component/MovableComponent.h"
#include "qsf/map/RayMapQuery.h"
#include "qsf/physics/BulletCollisionComponent.h"
#include "qsf/physics/CollisionHelper.h"
#include "qsf/physics/PhysicsWorldComponent.h"
#include "qsf/window/WindowApplication.h"

#include <cmath>

using host_test::Ids;
using host_test::idsOf;
using qsf::BulletCollisionComponent;

namespace {

class CollisionTest : public host_test::WorldTest {
protected:
  CollisionTest() {
    mountBase();
    map.load("em5/map/test/empty");
    map.startup();
  }
  qsf::Entity& spawn(const std::string& name, std::uint64_t id, const glm::vec3& position = {0, 0, 0}) {
    qsf::Entity& entity = *map.createObjectByLocalPrefabAssetId("em5/prefab/test/" + name, id);
    entity.getComponent<qsf::TransformComponent>()->setPosition(position);
    return entity;
  }
  /// As scripts ask: with a copy of the area's object and its own kind.
  Ids touching(std::uint64_t id) {
    auto* component = map.getEntityById(id)->getComponent<BulletCollisionComponent>();
    const btCollisionObject copy = *component->getWrappedBulletCollisionObject();
    std::vector<qsf::Entity*> found;
    qsf::CollisionHelper(map).getCollisionsAt(copy, found, component->getCollisionFilterGroup(),
                                              component->getCollisionMask());
    return idsOf(found);
  }
};

TEST_F(CollisionTest, ASensorNoticesPersonsVehiclesAndObjectsInItsBox) {
  spawn("sensor", 100);
  spawn("firefighter", 103, {9, 0, 9});
  spawn("fire_engine", 102, {11.9f, 0, 0}); // two units wide to each side
  spawn("barrel", 101, {0, 4.5f, 0});
  spawn("tree", 104, {0, 0, 12});
  spawn("marker", 105);
  spawn("axe", 106);
  EXPECT_EQ((Ids{101, 102, 103}), touching(100));
}

TEST_F(CollisionTest, BoxesFollowTheirEntities) {
  spawn("sensor", 100);
  qsf::Entity& person = spawn("civilian", 101, {50, 0, 0});
  EXPECT_EQ(Ids(), touching(100));
  person.getComponent<qsf::MovableComponent>()->setSpeed(1000);
  person.getComponent<qsf::MovableComponent>()->moveToPosition({5, 0, 0});
  runSeconds(0.1);
  EXPECT_EQ((Ids{101}), touching(100));
  map.getEntityById(100)->getComponent<qsf::TransformComponent>()->setPosition({0, 20, 0});
  EXPECT_EQ(Ids(), touching(100));
}

TEST_F(CollisionTest, RotationCounts) {
  spawn("sensor", 100);
  qsf::Entity& car = spawn("civil_car", 101, {13, 0, 0});
  EXPECT_EQ(Ids(), touching(100));
  car.getComponent<qsf::TransformComponent>()->setRotation(glm::angleAxis(1.5707963f, glm::vec3(0, 1, 0)));
  EXPECT_EQ((Ids{101}), touching(100)); // now four units to that side
}

// Kept: scripts rely on an area that is a unit finding itself.
TEST_F(CollisionTest, ACopyOfAnObjectMeetsTheObjectItself) {
  spawn("firefighter", 100);
  EXPECT_EQ((Ids{100}), touching(100));
}

TEST_F(CollisionTest, AnObjectOfTheWorldDoesNotMeetItself) {
  qsf::Entity& person = spawn("firefighter", 100);
  spawn("barrel", 101);
  auto* component = person.getComponent<BulletCollisionComponent>();
  std::vector<qsf::Entity*> found;
  qsf::CollisionHelper(map).getCollisionsAt(*component->getWrappedBulletCollisionObject(), found,
                                            component->getCollisionFilterGroup(), component->getCollisionMask());
  EXPECT_EQ((Ids{101}), idsOf(found));
}

TEST_F(CollisionTest, AShapeThatIsNoBoxIsComparedToo) {
  spawn("firefighter", 100, {5, 0, 0}); // a unit wide, standing on the ground
  spawn("firefighter", 101, {4, 0, 4});
  btSphereShape ball(4.6f);
  btCollisionObject object;
  object.setCollisionShape(&ball);
  object.setWorldTransform(btTransform(btQuaternion(0, 0, 0, 1), btVector3(0, 1, 0)));
  std::vector<qsf::Entity*> found;
  qsf::CollisionHelper(map).getCollisionsAt(object, found, qsf::COLLISION_SENSOR, qsf::COLLISION_ALL);
  EXPECT_EQ((Ids{100}), idsOf(found)); // near the other one's corner, but not there
}

TEST_F(CollisionTest, WhatIsFoundComesBehindWhatTheListHolds) {
  spawn("sensor", 100);
  spawn("civilian", 102);
  spawn("civilian", 101);
  auto* component = map.getEntityById(100)->getComponent<BulletCollisionComponent>();
  std::vector<qsf::Entity*> found{map.getEntityById(102)};
  qsf::CollisionHelper(map).getCollisionsAt(*component->getWrappedBulletCollisionObject(), found,
                                            component->getCollisionFilterGroup(), component->getCollisionMask());
  EXPECT_EQ((Ids{102, 101, 102}), idsOf(found));
}

TEST_F(CollisionTest, InactiveDestroyedAndFarOutBoxesAreNotMet) {
  spawn("sensor", 100);
  qsf::Entity& person = spawn("civilian", 101);
  auto* component = person.getComponent<BulletCollisionComponent>();
  component->setActive(false);
  EXPECT_EQ(Ids(), touching(100));
  component->setActive(true);
  EXPECT_EQ((Ids{101}), touching(100));
  for (const glm::vec3& place : {glm::vec3(NAN, 0, 0), glm::vec3(INFINITY, 0, 0), glm::vec3(1e30f, 0, 0)}) {
    person.getComponent<qsf::TransformComponent>()->setPosition(place);
    EXPECT_EQ(Ids(), touching(100));
  }
  person.getComponent<qsf::TransformComponent>()->setPosition({1, 0, 0});
  EXPECT_EQ((Ids{101}), touching(100));
  map.destroyObjectById(101);
  EXPECT_EQ(Ids(), touching(100));
}

TEST_F(CollisionTest, AnInactiveBoxKnowsItsPlaceFromItsStartOn) {
  qsf::Entity& sensor = spawn("sensor", 100);
  sensor.getComponent<qsf::TransformComponent>()->setPosition({50, 0, 0});
  auto* box = sensor.getComponent<BulletCollisionComponent>();
  box->shutdown();
  box->setActive(false);
  btTransform& place = box->getWrappedBulletCollisionObject()->getWorldTransform();
  place.setIdentity();
  box->startup();
  EXPECT_EQ(place.getOrigin().x(), 50);
}

TEST_F(CollisionTest, WithoutAPhysicsWorldNothingIsFoundAndANewOneTakesUp) {
  spawn("sensor", 100);
  spawn("civilian", 101);
  map.getCoreEntity()->destroyComponentById(qsf::PhysicsWorldComponent::COMPONENT_ID);
  EXPECT_EQ(Ids(), touching(100));
  map.getEntityById(101)->getComponent<qsf::TransformComponent>()->setPosition({1, 0, 0});
  map.collectGarbage();
  map.getEntityById(101)->getComponent<qsf::TransformComponent>()->setPosition({2, 0, 0});
  map.getCoreEntity()->getOrCreateComponent<qsf::PhysicsWorldComponent>();
  EXPECT_EQ((Ids{101}), touching(100));
}

TEST_F(CollisionTest, ABoxNeedsEdges) {
  auto* component = spawn("sensor", 100).getComponent<BulletCollisionComponent>();
  for (const char* size : {"0 1 1", "1 -1 1", "1 1 nan", "1 1 inf"})
    EXPECT_THROW(component->setPropertyByString("Size", size), std::exception);
  EXPECT_EQ("20 10 20", component->getPropertyAsString("Size"));
}

TEST_F(CollisionTest, ARayMeetsTheFirstBoxOrTheGround) {
  spawn("house", 100);
  spawn("sensor", 101, {30, 0, 0});
  const qsf::RayMapQuery query(map);
  const auto house = query.getFirstHit({{0, 50, 0}, {0, -1, 0}});
  ASSERT_TRUE(house.hit);
  EXPECT_EQ(100u, house.entity->getId());
  EXPECT_NEAR(8, house.position.y, 0.1);
  const auto ground = query.getFirstHit({{30, 50, 0}, {0, -1, 0}}); // through the sensor
  ASSERT_TRUE(ground.hit);
  EXPECT_EQ(nullptr, ground.entity);
  EXPECT_EQ(glm::vec3(30, 0, 0), ground.position);
  EXPECT_FALSE(query.getFirstHit({{30, 50, 0}, {0, 1, 0}}).hit);
  EXPECT_FALSE(query.getFirstHit({{NAN, 50, 0}, {0, NAN, 0}}).hit);
}

TEST_F(CollisionTest, ARayMeetsTheFaceOfAStepInTheGround) {
  map.load("em5/map/test/step");
  const qsf::RayMapQuery query(map);
  const auto face = query.getFirstHit({{-10, 5, 0}, {1, 0, 0}});
  ASSERT_TRUE(face.hit);
  EXPECT_EQ(glm::vec3(0, 5, 0), face.position);
  EXPECT_EQ(10, query.getFirstHit({{3, 50, 0}, {0, -1, 0}}).position.y);
  EXPECT_EQ(0, query.getFirstHit({{-3, 50, 0}, {0, -1, 0}}).position.y);
}

TEST_F(CollisionTest, TheCameraSeesWhatTheCursorPointsAt) {
  spawn("fire_engine", 100, {40, 0, -20});
  auto* camera = map.getEntityById(1)->getComponent<qsf::CameraComponent>();
  qsf::RenderWindow& window = qsf::UniqueInstance<qsf::WindowApplication>()->getRenderWindow();
  EXPECT_EQ(camera, window.getCameraComponent());
  camera->lookAt({40, 0, -20});
  qsf::Entity* seen = em5::RayMapQuery(map).getEntityUnderNormalizedMousePosition({0.5f, 0.5f});
  ASSERT_NE(nullptr, seen);
  EXPECT_EQ(100u, seen->getId());
  EXPECT_EQ(nullptr, em5::RayMapQuery(map).getEntityUnderNormalizedMousePosition({0.05f, 0.05f}));
}

TEST_F(CollisionTest, ProjectingAndCastingARayAreInverse) {
  auto* camera = map.getEntityById(1)->getComponent<qsf::CameraComponent>();
  const qsf::RenderWindow& window = qsf::UniqueInstance<qsf::WindowApplication>()->getRenderWindow();
  camera->lookAt({100, 0, 50});
  glm::vec2 place;
  ASSERT_TRUE(camera->project({107, 0, 44}, window.getAspectRatio(), place));
  const qsf::RayMapQuery query(map);
  const auto hit = query.getFirstHitByRenderWindowNormalizedPosition(window, place);
  EXPECT_LT(glm::length(hit.position - glm::vec3(107, 0, 44)), 0.01f);
  const auto pixelHit = query.getFirstHitByRenderWindow(window, window.getPixel(place));
  EXPECT_LT(glm::length(pixelHit.position - glm::vec3(107, 0, 44)), 0.5f);
}

}
