#include "em5/action/WorkWithEquipmentAction.h"

#include "em5/base/Messages.h"
#include "em5/component/BuildingComponent.h"
#include "em5/component/DivingSpotComponent.h"
#include "em5/component/DoorComponent.h"
#include "em5/component/EboxComponent.h"
#include "em5/component/TreeComponent.h"
#include "em5/component/UsableByEngineerComponent.h"
#include "em5/component/VehicleComponent.h"
#include "em5/map/EntityHelper.h"
#include "qsf/Qsf.h"
#include "qsf/message/MessageSystem.h"
#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

namespace {

void breakDown(qsf::Entity& target) {
  if (auto* tree = target.getComponent<TreeComponent>()) tree->setBroken(true);
  if (auto* door = target.getComponent<DoorComponent>()) door->openDoor();
  if (auto* building = target.getComponent<BuildingComponent>()) building->freeTrappedPerson();
}

void repair(qsf::Entity& target) {
  if (auto* ebox = target.getComponent<EboxComponent>()) ebox->setEboxIntact();
  target.destroyComponentById(UsableByEngineerComponent::COMPONENT_ID);
  qsf::Qsf::instance()->getMessageSystem().emitMessage(
      qsf::MessageConfiguration(Messages::EM5_ACTION_REPAIRED_OR_USED, target.getId()));
}

const qsf::DeclaredClass<WorkWithEquipmentAction> declared;

}

void WorkWithEquipmentAction::declareCamp() {
  qsf::ClassRegistry::declareOnce<WorkAtTargetAction>();
  camp::Class::declare<WorkWithEquipmentAction>("em5::WorkWithEquipmentAction")
      .base<WorkAtTargetAction>()
      .constructor0();
}

void WorkWithEquipmentAction::init(const qsf::Entity& target, qsf::Time workingTime, Work work) {
  WorkAtTargetAction::init(target, workingTime);
  mWork = work;
}

void WorkWithEquipmentAction::finishOn(qsf::Entity& target) {
  switch (mWork) {
  case Work::EXTINGUISH:
    return EntityHelper(target).stopFire();
  case Work::BREAK:
    return breakDown(target);
  case Work::CUT_OPEN:
    if (auto* vehicle = target.getComponent<VehicleComponent>()) vehicle->setCanBeCut(false);
    return;
  case Work::REPAIR:
    return repair(target);
  case Work::SEARCH_IN_WATER:
    if (auto* spot = target.getComponent<DivingSpotComponent>()) spot->search();
  }
}

}
