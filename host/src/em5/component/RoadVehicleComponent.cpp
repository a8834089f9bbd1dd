#include "em5/component/RoadVehicleComponent.h"

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

}
