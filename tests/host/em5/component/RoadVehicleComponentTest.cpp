#include "em5/component/RoadVehicleComponent.h"
#include "em5/component/VehicleComponent.h"
#include "host/em5/SessionFixture.h"
#include "qsf/component/LinkComponent.h"
#include "qsf/game/LightControllerComponent.h"

using em5::RoadVehicleComponent;
using Lamp = qsf::game::LightControllerComponent;

namespace {

class RoadVehicleComponentTest : public SessionTest {
protected:
  RoadVehicleComponentTest() {
    play();
    vehicle = qsf::getMainMap().createEntity(100)->getOrCreateComponent<RoadVehicleComponent>();
  }
  void addLamp(std::uint64_t id, int type) const {
    qsf::Entity* entity = qsf::getMainMap().createEntity(id);
    entity->getOrCreateComponent<qsf::LinkComponent>()->setParentId(100);
    entity->getOrCreateComponent<Lamp>()->setLightType(type);
  }
  std::vector<std::uint64_t> lampsOf(int type) const {
    std::vector<std::uint64_t> ids;
    vehicle->getVehicleLightIdsByType(type, ids);
    return ids;
  }
  RoadVehicleComponent* vehicle;
};

TEST_F(RoadVehicleComponentTest, ADestroyedVehicleSwitchesItsLightsOnlyWhenMadeTo) {
  vehicle->getEntity().getOrCreateComponent<em5::VehicleComponent>()->setDamage(1);
  vehicle->setBlueLightState(true, false);
  vehicle->setHeadLightState(true, false);
  vehicle->setBrakeLightState(true, false);
  vehicle->setBlinkerState(RoadVehicleComponent::BLINKER_BOTH, false);
  EXPECT_FALSE(vehicle->isBlueLightOn() || vehicle->isHeadLightOn() || vehicle->isBrakeLightOn());
  EXPECT_EQ(RoadVehicleComponent::BLINKER_OFF, vehicle->getBlinker());
  vehicle->setBlueLightState(true, true);
  vehicle->setHeadLightState(true, true);
  vehicle->setBrakeLightState(true, true);
  vehicle->setBlinkerState(RoadVehicleComponent::BLINKER_BOTH, true);
  EXPECT_TRUE(vehicle->isBlueLightOn() && vehicle->isHeadLightOn() && vehicle->isBrakeLightOn());
  EXPECT_EQ(RoadVehicleComponent::BLINKER_BOTH, vehicle->getBlinker());
}

TEST_F(RoadVehicleComponentTest, LampsAreThoseLinkedToItInTheOrderOfLinking) {
  EXPECT_TRUE(lampsOf(Lamp::BLUE_LIGHT).empty());
  addLamp(112, Lamp::BLUE_LIGHT);
  addLamp(111, Lamp::HEAD_LIGHT);
  addLamp(110, Lamp::BLUE_LIGHT);
  EXPECT_EQ((std::vector<std::uint64_t>{112, 110}), lampsOf(Lamp::BLUE_LIGHT));
  EXPECT_EQ(std::vector<std::uint64_t>{111}, lampsOf(Lamp::HEAD_LIGHT));
  qsf::getMainMap().getEntityById(112)->getComponent<qsf::LinkComponent>()->unlinkFromParent();
  EXPECT_EQ(std::vector<std::uint64_t>{110}, lampsOf(Lamp::BLUE_LIGHT));
}

TEST_F(RoadVehicleComponentTest, FoundLampsAreAppended) {
  addLamp(110, Lamp::BLUE_LIGHT);
  std::vector<std::uint64_t> ids{7};
  vehicle->getVehicleLightIdsByType(Lamp::BLUE_LIGHT, ids);
  EXPECT_EQ((std::vector<std::uint64_t>{7, 110}), ids);
}

}
