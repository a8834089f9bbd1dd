#include "em5/component/RoadVehicleComponent.h"

#include "em5/component/VehicleComponent.h"
#include "qsf/component/LinkComponent.h"
#include "qsf/game/LightControllerComponent.h"
#include "qsf/map/Entity.h"
#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

static const qsf::DeclaredClass<RoadVehicleComponent> declared;

void RoadVehicleComponent::declareCamp() {
  camp::Class::declare<RoadVehicleComponent>("em5::RoadVehicleComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("BlueLight", &RoadVehicleComponent::isBlueLightOn, &RoadVehicleComponent::setBlueLight)
      .property("HeadLight", &RoadVehicleComponent::isHeadLightOn, &RoadVehicleComponent::setHeadLight)
      .property("BrakeLight", &RoadVehicleComponent::isBrakeLightOn, &RoadVehicleComponent::setBrakeLight)
      .property("Blinker", &RoadVehicleComponent::getBlinker, &RoadVehicleComponent::setBlinker);
}

void RoadVehicleComponent::setBlinker(int state) {
  mBlinker = state >= BLINKER_OFF && state <= BLINKER_BOTH ? state : BLINKER_OFF;
}

void RoadVehicleComponent::setBlueLightState(bool on, bool evenIfDestroyed) {
  if (takesOrders(evenIfDestroyed)) setBlueLight(on);
}

void RoadVehicleComponent::setHeadLightState(bool on, bool evenIfDestroyed) {
  if (takesOrders(evenIfDestroyed)) setHeadLight(on);
}

void RoadVehicleComponent::setBrakeLightState(bool on, bool evenIfDestroyed) {
  if (takesOrders(evenIfDestroyed)) setBrakeLight(on);
}

void RoadVehicleComponent::setBlinkerState(int state, bool evenIfDestroyed) {
  if (takesOrders(evenIfDestroyed)) setBlinker(state);
}

void RoadVehicleComponent::getVehicleLightIdsByType(int lightType, std::vector<std::uint64_t>& lightIds) const {
  const auto* link = getEntity().getComponent<qsf::LinkComponent>();
  if (!link) return;
  for (const qsf::LinkComponent* child : link->getChildLinks()) {
    const auto* lamp = child->getEntity().getComponent<qsf::game::LightControllerComponent>();
    if (lamp && lamp->getLightType() == lightType) lightIds.push_back(child->getEntityId());
  }
}

bool RoadVehicleComponent::takesOrders(bool evenIfDestroyed) const {
  const VehicleComponent* vehicle = getEntity().getComponent<VehicleComponent>();
  return evenIfDestroyed || !vehicle || !vehicle->isDestroyed();
}

}
