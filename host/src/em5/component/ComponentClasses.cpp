#include "em5/component/ComponentClasses.h"

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
#include "em5/freeplay/FreeplayEvent.h"
#include "qsf/component/HostComponents.h"
#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

void declareComponentClasses() {
  qsf::declareHostClasses(); // they are the bases
  qsf::ClassRegistry::declareOnce<FreeplayEvent>();
  qsf::ClassRegistry::declareOnce<VehicleComponent>();
  qsf::ClassRegistry::declareOnce<RoadVehicleComponent>();
  qsf::ClassRegistry::declareOnce<HelicopterComponent>();
  qsf::ClassRegistry::declareOnce<PersonComponent>();
  qsf::ClassRegistry::declareOnce<HealthComponent>();
  qsf::ClassRegistry::declareOnce<FireComponent>();
  qsf::ClassRegistry::declareOnce<DoorComponent>();
  qsf::ClassRegistry::declareOnce<BuildingComponent>();
  qsf::ClassRegistry::declareOnce<TreeComponent>();
  qsf::ClassRegistry::declareOnce<CommandableComponent>();
  qsf::ClassRegistry::declareOnce<FadeEffectComponent>();
  qsf::ClassRegistry::declareOnce<MoveToDespawnComponent>();
}

}
