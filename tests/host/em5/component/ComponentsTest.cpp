#include "host/em5/SessionFixture.h"

#include "em5/component/BuildingComponent.h"
#include "em5/component/CommandableComponent.h"
#include "em5/component/DoorComponent.h"
#include "em5/component/FadeEffectComponent.h"
#include "em5/component/FireComponent.h"
#include "em5/component/HealthComponent.h"
#include "em5/component/HelicopterComponent.h"
#include "em5/component/MoveToDespawnComponent.h"
#include "em5/component/PersonComponent.h"
#include "em5/component/RoadVehicleComponent.h"
#include "em5/component/TreeComponent.h"
#include "em5/component/VehicleComponent.h"
#include "em5/health/Injury.h"
#include "qsf/component/MovableComponent.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/reflection/ClassRegistry.h"

#include <cmath>
#include <limits>

namespace {

class ComponentsTest : public SessionTest {
protected:
  template <class T> T& add(std::uint64_t id, const glm::vec3& position = {0, 0, 0}) {
    qsf::Entity* entity = qsf::getMainMap().getEntityById(id);
    if (!entity) {
      entity = qsf::getMainMap().createEntity(id);
      entity->getOrCreateComponent<qsf::TransformComponent>()->setPosition(position);
    }
    return *entity->getOrCreateComponent<T>();
  }
  static std::string text(qsf::Component& component, const std::string& property) {
    return component.getPropertyAsString(property);
  }
};

TEST_F(ComponentsTest, ADoorTakesItsTimeToOpenAndToClose) {
  play();
  auto& door = add<em5::DoorComponent>(100);
  EXPECT_EQ(text(door, "DoorState"), "DOOR_CLOSED");
  door.openDoor();
  EXPECT_EQ(text(door, "DoorState"), "DOOR_OPENING");
  run(1.95);
  EXPECT_EQ(text(door, "DoorState"), "DOOR_OPENING");
  run(0.05);
  EXPECT_EQ(text(door, "DoorState"), "DOOR_OPEN");
  door.openDoor();
  EXPECT_EQ(door.getDoorState(), 2);
  door.closeDoor();
  EXPECT_EQ(door.getDoorState(), 1);
  run(2);
  EXPECT_EQ(door.getDoorState(), 0);
}

TEST_F(ComponentsTest, ADoorThatTurnsBackTakesAsLongAsItWasUnderWay) {
  play();
  auto& door = add<em5::DoorComponent>(100);
  door.openDoor();
  run(0.5);
  door.closeDoor();
  run(0.45);
  EXPECT_EQ(door.getDoorState(), em5::DoorComponent::DOOR_CLOSING);
  run(0.05);
  EXPECT_EQ(door.getDoorState(), em5::DoorComponent::DOOR_CLOSED);
}

TEST_F(ComponentsTest, ADoorIsSetByReflection) {
  play();
  auto& door = add<em5::DoorComponent>(100);
  door.setPropertyByString("DoorState", "DOOR_OPEN");
  EXPECT_EQ(door.getDoorState(), em5::DoorComponent::DOOR_OPEN);
  door.setPropertyByString("OpeningTime", "0.5");
  door.setPropertyByString("DoorState", "DOOR_CLOSING");
  run(0.5);
  EXPECT_EQ(text(door, "DoorState"), "DOOR_CLOSED");
  EXPECT_THROW(door.setPropertyByString("DoorState", "AJAR"), std::exception);
}

TEST_F(ComponentsTest, ADoorRestsInAPauseAndWhileItIsInactive) {
  play();
  auto& door = add<em5::DoorComponent>(100);
  door.openDoor();
  session->setPaused(true);
  run(5);
  session->setPaused(false);
  door.setActive(false);
  run(5);
  EXPECT_EQ(door.getDoorState(), em5::DoorComponent::DOOR_OPENING);
  door.setActive(true);
  run(2);
  EXPECT_EQ(door.getDoorState(), em5::DoorComponent::DOOR_OPEN);
}

TEST_F(ComponentsTest, ADoorSetMovingBeforeTheGameMovesWhenItStarts) {
  open();
  session->setMapPreparation(
      [this](qsf::Map&) { add<em5::DoorComponent>(100).setDoorState(em5::DoorComponent::DOOR_OPENING); });
  session->startGame(EMPTY_MAP);
  run(2);
  EXPECT_EQ(add<em5::DoorComponent>(100).getDoorState(), em5::DoorComponent::DOOR_OPEN);
}

TEST_F(ComponentsTest, AnInjuredPersonLosesLifeUntilItIsHealed) {
  play();
  auto& health = add<em5::HealthComponent>(100);
  run(1);
  EXPECT_EQ(text(health, "LifeEnergy"), "100");
  health.setPropertyByString("Injured", "1");
  EXPECT_EQ(text(health, "Injured"), "1");
  EXPECT_EQ(health.getInjuryId(), em5::injury::HEAD_BODY_LACERATION);
  EXPECT_EQ(text(health, "HealthEnergy"), "0");
  run(2);
  EXPECT_NEAR(health.getLifeEnergy(), 99, 0.001);
  health.setInjured(false);
  EXPECT_EQ(text(health, "HealthEnergy"), "100");
  EXPECT_FALSE(health.getInjuryId().isInitialized());
  run(2);
  EXPECT_NEAR(health.getLifeEnergy(), 99, 0.001);
}

TEST_F(ComponentsTest, AnInjuredPersonDiesInTheEndAndStaysDead) {
  play();
  auto& health = add<em5::HealthComponent>(100);
  health.setLifeEnergy(1);
  health.setInjured(true);
  run(2.1);
  EXPECT_TRUE(health.isDead());
  EXPECT_EQ(text(health, "LifeEnergy"), "0");
  health.setInjured(false);
  EXPECT_TRUE(health.isInjured());
  EXPECT_FALSE(health.injurePersonById(em5::injury::BROKEN_LEG));
}

TEST_F(ComponentsTest, EnergiesStayInTheirRange) {
  play();
  auto& health = add<em5::HealthComponent>(100);
  health.setPropertyByString("HealthEnergy", "150");
  EXPECT_EQ(health.getHealthEnergy(), 100);
  health.setPropertyByString("MaximumHealthEnergy", "200");
  EXPECT_EQ(health.getHealthEnergy(), 150);
  health.setLifeEnergy(std::numeric_limits<float>::infinity());
  EXPECT_EQ(health.getLifeEnergy(), 100);
  health.setLifeEnergy(std::nanf(""));
  EXPECT_EQ(health.getLifeEnergy(), 100);
  health.setMaximumLifeEnergy(-5);
  EXPECT_EQ(health.getLifeEnergy(), 1);
  health.setHealthEnergy(-1);
  EXPECT_EQ(health.getHealthEnergy(), 0);
  EXPECT_FALSE(health.isInjured()) << "the caller says by what";
  health.setPropertyByString("HealthEnergy", "-1");
  EXPECT_EQ(health.getInjuryId(), em5::injury::HEAD_BODY_LACERATION);
}

TEST_F(ComponentsTest, FireHurtsThoseNearIt) {
  play();
  auto& fire = add<em5::FireComponent>(100);
  auto& nearHealth = add<em5::HealthComponent>(101, {4, 0, 0});
  auto& farHealth = add<em5::HealthComponent>(102, {6, 0, 0});
  EXPECT_FALSE(fire.isBurning());
  run(1);
  EXPECT_EQ(nearHealth.getHealthEnergy(), 100);
  EXPECT_TRUE(fire.startFire());
  run(2);
  EXPECT_NEAR(nearHealth.getHealthEnergy(), 90, 0.01);
  EXPECT_EQ(farHealth.getHealthEnergy(), 100);
  run(18.1);
  EXPECT_TRUE(nearHealth.isInjured());
  EXPECT_EQ(nearHealth.getInjuryId(), em5::injury::BURN_3_GRADE);
  fire.stopFire();
  farHealth.getEntity().getComponent<qsf::TransformComponent>()->setPosition({1, 0, 0});
  run(1);
  EXPECT_EQ(farHealth.getHealthEnergy(), 100);
}

TEST_F(ComponentsTest, WhatCannotBurnDoesNotBurn) {
  play();
  auto& fire = add<em5::FireComponent>(100);
  fire.setPropertyByString("Burning", "1");
  EXPECT_EQ(text(fire, "Burning"), "1");
  fire.setPropertyByString("Burnable", "0");
  EXPECT_EQ(text(fire, "Burning"), "0");
  fire.setPropertyByString("Burning", "1");
  EXPECT_EQ(text(fire, "Burning"), "0");
  EXPECT_FALSE(fire.startFire());
}

TEST_F(ComponentsTest, ABurningVehicleIsDestroyedInTwoMinutes) {
  play();
  auto& vehicle = add<em5::VehicleComponent>(100);
  vehicle.setSirenEnabled(true);
  add<em5::FireComponent>(100).startFire();
  run(60);
  EXPECT_NEAR(vehicle.getDamage(), 0.5, 0.001);
  EXPECT_FALSE(vehicle.isDestroyed());
  run(60.1);
  EXPECT_TRUE(vehicle.isDestroyed());
  EXPECT_FALSE(vehicle.isSirenEnabled());
}

TEST_F(ComponentsTest, AFadedOutEntityIsHiddenUntilItFadesIn) {
  play();
  auto& fade = add<em5::FadeEffectComponent>(100);
  EXPECT_EQ(text(fade, "Opacity"), "1");
  fade.init(false, qsf::Time::fromSeconds(1), false);
  run(0.5);
  EXPECT_NEAR(fade.getOpacity(), 0.5, 0.001);
  EXPECT_FALSE(fade.getEntity().isHidden());
  run(0.5);
  EXPECT_TRUE(fade.getEntity().isHidden());
  EXPECT_EQ(text(fade, "Opacity"), "0");
  EXPECT_EQ(text(fade, "FadeIn"), "0");
  EXPECT_EQ(text(fade, "Time"), "1");
  EXPECT_EQ(text(fade, "DeleteOwner"), "0");
  EXPECT_FALSE(fade.isFading());
  fade.init(true, qsf::Time::fromSeconds(0.5), false);
  EXPECT_FALSE(fade.getEntity().isHidden());
  run(0.5);
  EXPECT_EQ(text(fade, "Opacity"), "1");
}

TEST_F(ComponentsTest, AFadeMayDestroyItsOwner) {
  play();
  add<em5::FadeEffectComponent>(100).init(false, qsf::Time::fromSeconds(0.1), true);
  add<em5::FadeEffectComponent>(101).init(true, qsf::Time::fromSeconds(-5), true);
  run(0.05);
  EXPECT_TRUE(qsf::getMainMap().getEntityById(100));
  EXPECT_EQ(qsf::getMainMap().getEntityById(101), nullptr);
  run(0.05);
  EXPECT_EQ(qsf::getMainMap().getEntityById(100), nullptr);
  run(0.1);
}

TEST_F(ComponentsTest, ADespawningEntityGoesToItsPlaceAndIsDestroyedThere) {
  play();
  add<qsf::MovableComponent>(100).setSpeed(10);
  auto& despawn = add<em5::MoveToDespawnComponent>(100);
  run(1);
  EXPECT_EQ(text(despawn, "Despawning"), "0");
  despawn.setPropertyByString("TargetPosition", "20 0 0");
  run(1);
  const qsf::Entity* entity = qsf::getMainMap().getEntityById(100);
  ASSERT_TRUE(entity);
  EXPECT_NEAR(entity->getComponent<qsf::TransformComponent>()->getPosition().x, 10, 1);
  run(1.5);
  EXPECT_EQ(qsf::getMainMap().getEntityById(100), nullptr);
}

TEST_F(ComponentsTest, AnEntityStaysWhenItsDespawningIsTakenOffOrInactive) {
  play();
  for (const std::uint64_t id : {100, 101}) {
    add<qsf::MovableComponent>(id);
    add<em5::MoveToDespawnComponent>(id).setTargetPosition({5, 0, 0});
  }
  qsf::getMainMap().getEntityById(100)->destroyComponentById(em5::MoveToDespawnComponent::COMPONENT_ID);
  add<em5::MoveToDespawnComponent>(101).setActive(false);
  add<em5::MoveToDespawnComponent>(101).setTargetPosition({std::nanf(""), 0, 0});
  run(5);
  EXPECT_TRUE(qsf::getMainMap().getEntityById(100));
  EXPECT_TRUE(qsf::getMainMap().getEntityById(101));
  EXPECT_EQ(add<em5::MoveToDespawnComponent>(101).getTargetPosition(), glm::vec3(5, 0, 0));
}

TEST_F(ComponentsTest, StateIsReadAndWrittenByReflection) {
  play();
  auto& vehicle = add<em5::VehicleComponent>(100);
  for (const char* property : {"CanBeTowed", "CanBeCut", "SirenEnabled"}) {
    EXPECT_EQ(text(vehicle, property), "0") << property;
    vehicle.setPropertyByString(property, "1");
    EXPECT_EQ(text(vehicle, property), "1") << property;
  }
  vehicle.setPropertyByString("Damage", "2");
  EXPECT_EQ(text(vehicle, "Damage"), "1");
  auto& road = add<em5::RoadVehicleComponent>(100);
  road.setPropertyByString("BlueLight", "1");
  road.setPropertyByString("Blinker", "3");
  EXPECT_TRUE(road.isBlueLightOn());
  EXPECT_EQ(road.getBlinker(), em5::RoadVehicleComponent::BLINKER_BOTH);
  road.setPropertyByString("Blinker", "7");
  EXPECT_EQ(text(road, "Blinker"), "0");
  auto& person = add<em5::PersonComponent>(101);
  EXPECT_EQ(text(person, "EquipmentId"), "18446744073709551615");
  person.setPropertyByString("EquipmentId", "100");
  EXPECT_EQ(person.getEquipmentId(), 100u);
  auto& commandable = add<em5::CommandableComponent>(101);
  commandable.setPropertyByString("Commands", "1 4294967295");
  EXPECT_EQ(commandable.getCommandIds(), (std::vector<std::uint32_t>{1, 4294967295u}));
  EXPECT_EQ(text(commandable, "Commands"), "1 4294967295");
  auto& building = add<em5::BuildingComponent>(102);
  building.setPropertyByString("EntityIds", "18446744073709551615 7");
  EXPECT_EQ(building.getEntityIds(), (std::vector<std::uint64_t>{qsf::UNINITIALIZED_ID, 7}));
  auto& helicopter = add<em5::HelicopterComponent>(103);
  helicopter.setPropertyByString("Flying", "1");
  EXPECT_TRUE(helicopter.isFlying());
  auto& tree = add<em5::TreeComponent>(104);
  tree.setPropertyByString("Broken", "1");
  EXPECT_TRUE(tree.isBroken());
}

}
