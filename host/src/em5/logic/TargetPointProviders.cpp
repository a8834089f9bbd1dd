#include "em5/logic/TargetPointProviders.h"

#include "em5/map/EntityHelper.h"
#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

static const qsf::DeclaredClass<GetEquipmentTargetPointProvider> getEquipmentTargetPointProviderClass;

void GetEquipmentTargetPointProvider::declareCamp() {
  qsf::ClassRegistry::declareOnce<TargetPointProvider>();
  camp::Class::declare<GetEquipmentTargetPointProvider>("em5::GetEquipmentTargetPointProvider")
      .base<TargetPointProvider>()
      .constructor0();
}

static const qsf::DeclaredClass<EnterVehicleTargetPointProvider> enterVehicleTargetPointProviderClass;

void EnterVehicleTargetPointProvider::declareCamp() {
  qsf::ClassRegistry::declareOnce<TargetPointProvider>();
  camp::Class::declare<EnterVehicleTargetPointProvider>("em5::EnterVehicleTargetPointProvider")
      .base<TargetPointProvider>()
      .constructor0();
}

qsf::logic::TargetPoint EnterVehicleTargetPointProvider::computeTargetPoint(qsf::Entity& mover,
                                                                            qsf::Entity& target) const {
  const Edge edge = EntityHelper(target).isVehicle() ? Edge::LEFT_OR_RIGHT : Edge::NEAREST;
  return qsf::logic::TargetPoint(getPlaceBeside(mover, target, edge));
}

static const qsf::DeclaredClass<LadderTargetPointProvider> ladderTargetPointProviderClass;

void LadderTargetPointProvider::declareCamp() {
  qsf::ClassRegistry::declareOnce<TargetPointProvider>();
  camp::Class::declare<LadderTargetPointProvider>("em5::LadderTargetPointProvider")
      .base<TargetPointProvider>()
      .constructor0();
}

qsf::logic::TargetPoint LadderTargetPointProvider::computeTargetPoint(qsf::Entity& mover, qsf::Entity& target) const {
  return qsf::logic::TargetPoint(getPlaceBeside(mover, target, Edge::NEAREST), true);
}

}
