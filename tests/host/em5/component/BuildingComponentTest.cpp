#include "em5/component/BuildingComponent.h"

#include "em5/component/FireComponent.h"
#include "em5/component/HealthComponent.h"
#include "em5/component/PersonComponent.h"
#include "em5/map/EntityHelper.h"
#include "host/em5/SessionFixture.h"
#include "qsf/component/TransformComponent.h"

namespace {

class BuildingComponentTest : public SessionTest {
protected:
  em5::BuildingComponent& house() {
    play();
    return *qsf::getMainMap()
                .createObjectByLocalPrefabAssetId(qsf::StringHash("em5/prefab/test/house"), 100)
                ->getComponent<em5::BuildingComponent>();
  }
  static qsf::Entity& person(qsf::Entity& building) {
    qsf::Entity& entity =
        *qsf::getMainMap().createObjectByLocalPrefabAssetId(qsf::StringHash("em5/prefab/test/civilian"));
    em5::EntityHelper(entity).enterContainer(building);
    return entity;
  }
};

TEST_F(BuildingComponentTest, NumbersOfPersonsAreReadInAnyOrder) {
  auto& building = house();
  building.setPropertyByString("InjuredPersons", "2");
  building.setPropertyByString("TrappedPersons", "5");
  EXPECT_EQ(building.getTrappedPersons(), 5);
  EXPECT_EQ(building.getInjuredPersons(), 2);
  building.setPropertyByString("InjuredPersons", "7");
  EXPECT_EQ(building.getTrappedPersons(), 7);
  building.setPropertyByString("InjuredPersons", "-3");
  EXPECT_EQ(building.getInjuredPersons(), 0);
  building.setPropertyByString("TrappedPersons", "-3");
  EXPECT_EQ(building.getTrappedPersons(), 0);
}

TEST_F(BuildingComponentTest, OnlyWhoIsInsideWavesAndOneAtATime) {
  auto& building = house();
  qsf::Entity& first = person(building.getEntity());
  qsf::Entity& second = person(building.getEntity());
  qsf::Entity& stranger =
      *qsf::getMainMap().createObjectByLocalPrefabAssetId(qsf::StringHash("em5/prefab/test/civilian"));
  EXPECT_FALSE(building.letPersonWaveOutOfWindow(stranger, nullptr, 1));
  EXPECT_FALSE(building.letPersonWaveOutOfWindow(first, nullptr, 0));
  EXPECT_TRUE(first.isHidden());
  EXPECT_TRUE(building.letPersonWaveOutOfWindow(first, nullptr, 1));
  EXPECT_FALSE(first.isHidden());
  EXPECT_EQ(building.getPersonAtWindow(), first.getId());
  EXPECT_FALSE(building.letPersonWaveOutOfWindow(second, nullptr, 1));
}

TEST_F(BuildingComponentTest, WallsKeepTheHeatOff) {
  auto& building = house();
  qsf::Entity& inside = person(building.getEntity());
  auto* health = inside.getComponent<em5::HealthComponent>();
  em5::EntityHelper(building.getEntity()).startFire();
  run(2);
  EXPECT_EQ(health->getHealthEnergy(), 100);
  em5::EntityHelper(inside).unlinkFromParent();
  run(2);
  EXPECT_NEAR(health->getHealthEnergy(), 90, 0.3);
}

TEST_F(BuildingComponentTest, NobodyDiesWithoutATimeLimitOrUnlessMortal) {
  auto& building = house();
  building.setupTrappedInjuredPersons(1, 1, 0, 0, true, false, qsf::Time::fromSeconds(1));
  run(2);
  EXPECT_EQ(building.getTrappedPersons(), 1);
  building.setupTrappedPersons(1, 1, true, qsf::Time::ZERO);
  run(2);
  EXPECT_EQ(building.getTrappedPersons(), 1);
  building.setupTrappedPersons(1, 1, true, qsf::Time::fromSeconds(1));
  run(2);
  EXPECT_EQ(building.getTrappedPersons(), 0);
}

TEST_F(BuildingComponentTest, SomebodyIsTrappedWhereNobodyWas) {
  auto& building = house();
  building.createTrappedPerson(nullptr);
  EXPECT_EQ(building.getTrappedPersons(), 1);
  building.createTrappedPerson(nullptr);
  EXPECT_EQ(building.getTrappedPersons(), 1);
}

TEST_F(BuildingComponentTest, ExplodesInTheMiddleOfItsBox) {
  auto& building = house();
  building.getEntity().getComponent<qsf::TransformComponent>()->setPosition({10, 1, 20});
  EXPECT_EQ(building.getExplosionCenterWorldSpacePosition(), glm::vec3(10, 5, 20));
  auto& bare = *qsf::getMainMap().createEntity(200)->getOrCreateComponent<em5::BuildingComponent>();
  EXPECT_EQ(bare.getExplosionCenterWorldSpacePosition(), glm::vec3(0, 0, 0));
}

}
