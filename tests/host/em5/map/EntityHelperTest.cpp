#include "em5/map/EntityHelper.h"

#include "em5/component/BuildingComponent.h"
#include "em5/component/CommandableComponent.h"
#include "em5/component/FireComponent.h"
#include "em5/component/HealthComponent.h"
#include "em5/component/HelicopterComponent.h"
#include "em5/component/PersonComponent.h"
#include "em5/component/VehicleComponent.h"
#include "em5/map/MapHelper.h"
#include "host/em5/SessionFixture.h"
#include "qsf/component/LinkComponent.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/physics/BulletCollisionComponent.h"

#include <cmath>

namespace {

class EntityHelperTest : public SessionTest {
protected:
  void SetUp() override {
    SessionTest::SetUp();
    play();
  }
  template <class... Components> em5::EntityHelper make(std::uint64_t id) {
    qsf::Entity* entity = qsf::getMainMap().createEntity(id);
    entity->getOrCreateComponent<qsf::TransformComponent>();
    (entity->getOrCreateComponent<Components>(), ...);
    return em5::EntityHelper(*entity);
  }
  em5::EntityHelper makeFirefighter(std::uint64_t id) {
    return make<em5::PersonComponent, em5::HealthComponent, em5::CommandableComponent>(id);
  }
};

TEST_F(EntityHelperTest, CollisionIsThatOfTheBox) {
  const em5::EntityHelper helper = make<qsf::BulletCollisionComponent>(100);
  const auto* box = helper.getEntity().getComponent<qsf::BulletCollisionComponent>();
  helper.setCollisionEnabled(false);
  EXPECT_FALSE(box->isActive());
  helper.setCollisionEnabled(true);
  EXPECT_TRUE(box->isActive());
  make<>(101).setCollisionEnabled(false); // without a box: nothing
}

TEST_F(EntityHelperTest, TellsTheKindsOfUnitsApart) {
  const auto check = [](const em5::EntityHelper& unit, const std::string& expected) {
    const std::string found = std::string(unit.isSquadVehicle() ? "V" : "-") + (unit.isSquadPerson() ? "P" : "-") +
                              (unit.isCivilPerson() ? "C" : "-") + (unit.isGangsterPerson() ? "G" : "-") +
                              (unit.isVehicle() ? "v" : "-");
    EXPECT_EQ(found, expected) << unit.getEntity().getId();
  };
  check(make<em5::VehicleComponent, em5::CommandableComponent>(100), "V---v");
  check(make<em5::VehicleComponent>(101), "----v");
  check(make<em5::HelicopterComponent, em5::CommandableComponent>(102), "V---v");
  check(makeFirefighter(103), "-P---");
  check(make<em5::PersonComponent>(104), "--C--");
  const em5::EntityHelper gangster = make<em5::PersonComponent>(105);
  gangster.getEntity().getComponent<em5::PersonComponent>()->setGangsterFlag(true);
  check(gangster, "---G-");
  check(make<>(106), "-----");
}

TEST_F(EntityHelperTest, ThePrefabsAreWhatTheirNamesSay) {
  struct Row {
    const char* prefab;
    const char* kinds; ///< squad vehicle, squad person, civilian, gangster, in a valid state, burnable
  };
  for (const Row& row : {Row{"fire_engine", "V---+f"}, Row{"ambulance", "V---+f"}, Row{"police_car", "V---+f"},
                         Row{"tow_truck", "V---+f"}, Row{"helicopter", "V---+f"}, Row{"civil_car", "-----f"},
                         Row{"firefighter", "-P--+-"}, Row{"paramedic", "-P--+-"}, Row{"police_officer", "-P--+-"},
                         Row{"engineer", "-P--+-"}, Row{"civilian", "--C---"}, Row{"gangster", "---G--"},
                         Row{"tree", "-----f"}, Row{"house", "-----f"}, Row{"barrel", "-----f"}, Row{"door", "------"},
                         Row{"marker", "------"}, Row{"axe", "------"}, Row{"sensor", "------"}}) {
    qsf::Entity* entity = em5::MapHelper(qsf::getMainMap())
                              .createObjectByLocalPrefabAssetId(std::string("em5/prefab/test/") + row.prefab);
    ASSERT_TRUE(entity) << row.prefab;
    const em5::EntityHelper unit(*entity);
    const std::string found = std::string(unit.isSquadVehicle() ? "V" : "-") + (unit.isSquadPerson() ? "P" : "-") +
                              (unit.isCivilPerson() ? "C" : "-") + (unit.isGangsterPerson() ? "G" : "-") +
                              (unit.isSquadUnitInValidState() ? "+" : "-") + (unit.isBurnable() ? "f" : "-");
    EXPECT_EQ(found, row.kinds) << row.prefab;
  }
  EXPECT_EQ(em5::MapHelper(qsf::getMainMap()).createObjectByLocalPrefabAssetId("em5/prefab/test/nothing"), nullptr);
}

TEST_F(EntityHelperTest, APersonIsInAValidStateWhileItIsWellAndOutside) {
  const em5::EntityHelper person = makeFirefighter(100);
  EXPECT_TRUE(person.isSquadPersonInValidState());
  EXPECT_TRUE(person.isSquadUnitInValidState());
  EXPECT_FALSE(person.isCivilPersonInValidState());
  auto* health = person.getEntity().getComponent<em5::HealthComponent>();
  health->setInjured(true);
  EXPECT_TRUE(person.isPersonInjured());
  EXPECT_FALSE(person.isSquadPersonInValidState());
  health->setInjured(false);
  EXPECT_TRUE(person.isSquadPersonInValidState());
  health->killPerson();
  EXPECT_FALSE(person.isSquadPersonInValidState());
  EXPECT_FALSE(person.isSquadUnitInValidState());
}

TEST_F(EntityHelperTest, APersonInAContainerIsHiddenAndNotInAValidState) {
  const em5::EntityHelper person = makeFirefighter(100);
  const em5::EntityHelper vehicle = make<em5::VehicleComponent>(101);
  person.enterContainer(vehicle.getEntity());
  EXPECT_TRUE(person.getEntity().isHidden());
  EXPECT_EQ(person.getParentEntity(), &vehicle.getEntity());
  EXPECT_FALSE(person.isSquadPersonInValidState());
  person.unlinkFromParent();
  EXPECT_FALSE(person.getEntity().isHidden());
  EXPECT_EQ(person.getParentEntity(), nullptr);
  EXPECT_TRUE(person.isSquadPersonInValidState());
}

TEST_F(EntityHelperTest, WhoIsLinkedToAVehicleOrBuildingIsInIt) {
  const em5::EntityHelper person = make<em5::PersonComponent, em5::HealthComponent>(100);
  make<em5::VehicleComponent>(101);
  make<em5::BuildingComponent>(102);
  make<>(103);
  auto* link = person.getEntity().getOrCreateComponent<qsf::LinkComponent>();
  for (const auto& [parent, valid] : {std::pair(101, false), std::pair(102, false), std::pair(103, true)}) {
    link->setParentId(static_cast<std::uint64_t>(parent));
    EXPECT_EQ(person.isCivilPersonInValidState(), valid) << parent;
  }
}

TEST_F(EntityHelperTest, ADestroyedVehicleIsInNoValidState) {
  const em5::EntityHelper vehicle = make<em5::VehicleComponent, em5::CommandableComponent>(100);
  EXPECT_TRUE(vehicle.isSquadVehicleInValidState());
  EXPECT_TRUE(vehicle.isSquadUnitInValidState());
  EXPECT_FALSE(vehicle.isSquadPersonInValidState());
  vehicle.getEntity().getComponent<em5::VehicleComponent>()->applyDamage(1);
  EXPECT_FALSE(vehicle.isSquadUnitInValidState());
}

TEST_F(EntityHelperTest, KnowsTheMapsBoundariesWithTheirBorders) {
  const em5::EntityHelper unit = make<>(100);
  auto* transform = unit.getEntity().getComponent<qsf::TransformComponent>();
  for (const auto& [position, inside] :
       {std::pair(glm::vec3(0, 99999, 0), true), std::pair(glm::vec3(1000, 0, -1000), true),
        std::pair(glm::vec3(1000.5f, 0, 0), false), std::pair(glm::vec3(0, 0, -1001), false)}) {
    transform->setPosition(position);
    EXPECT_EQ(unit.isInMapBoundaries(), inside) << position.x << " " << position.z;
  }
}

TEST_F(EntityHelperTest, FindsTheHeldEquipmentWhileItExists) {
  const em5::EntityHelper person = makeFirefighter(100);
  EXPECT_EQ(person.getActiveEquipmentEntity(), nullptr);
  qsf::Entity& axe = make<>(101).getEntity();
  person.getEntity().getComponent<em5::PersonComponent>()->setEquipmentId(101);
  EXPECT_EQ(person.getActiveEquipmentEntity(), &axe);
  qsf::getMainMap().destroyObjectById(101);
  EXPECT_EQ(person.getActiveEquipmentEntity(), nullptr);
  EXPECT_EQ(make<>(102).getActiveEquipmentEntity(), nullptr);
}

TEST_F(EntityHelperTest, StartsAndStopsFires) {
  const em5::EntityHelper barrel = make<em5::FireComponent>(100);
  EXPECT_TRUE(barrel.isBurnable());
  EXPECT_TRUE(barrel.startFire());
  EXPECT_TRUE(barrel.isBurning());
  EXPECT_TRUE(barrel.isBurnable());
  barrel.stopFire();
  EXPECT_FALSE(barrel.isBurning());
  const em5::EntityHelper stone = make<>(101);
  EXPECT_FALSE(stone.isBurnable());
  EXPECT_FALSE(stone.startFire());
}

}
