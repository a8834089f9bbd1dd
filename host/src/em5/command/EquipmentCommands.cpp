#include "em5/command/EquipmentCommands.h"

#include "em5/component/BuildingComponent.h"
#include "em5/component/DivingSpotComponent.h"
#include "em5/component/DoorComponent.h"
#include "em5/component/TreeComponent.h"
#include "em5/component/UsableByEngineerComponent.h"
#include "em5/component/VehicleComponent.h"
#include "em5/map/EntityHelper.h"
#include "qsf/action/ActionComponent.h"
#include "qsf/game/EquipmentComponent.h"
#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

using Work = WorkWithEquipmentAction::Work;

namespace {

struct Pairing {
  std::string_view equipmentName;
  qsf::StringHash commandId;
};
constexpr Pairing PAIRINGS[] = {{"hose", ExtinguishWithHoseCommand::COMMAND_ID},
                                {"extinguisher", ExtinguishWithExtinguisherCommand::COMMAND_ID},
                                {"axe", UseAxeCommand::COMMAND_ID},
                                {"cutter", CutVehicleCommand::COMMAND_ID},
                                {"toolbox", RepairWithToolboxCommand::COMMAND_ID},
                                {"diving_gear", DiveCommand::COMMAND_ID}};

bool isTargetBurning(const qsf::game::CommandContext& context) {
  return context.mTargetEntity && EntityHelper(*context.mTargetEntity).isBurning();
}

const qsf::DeclaredClass<ExtinguishWithHoseCommand> declaredHose;
const qsf::DeclaredClass<ExtinguishWithExtinguisherCommand> declaredExtinguisher;
const qsf::DeclaredClass<UseAxeCommand> declaredAxe;
const qsf::DeclaredClass<CutVehicleCommand> declaredCutter;
const qsf::DeclaredClass<RepairWithToolboxCommand> declaredToolbox;
const qsf::DeclaredClass<DiveCommand> declaredDivingGear;

template <class T> void declare(const char* name) {
  qsf::ClassRegistry::declareOnce<EquipmentCommand>();
  camp::Class::declare<T>(name).template base<EquipmentCommand>().template constructor1<qsf::game::CommandManager*>();
}

}

void EquipmentCommand::declareCamp() {
  qsf::ClassRegistry::declareOnce<Command>();
  camp::Class::declare<EquipmentCommand>("em5::EquipmentCommand").base<Command>();
}

qsf::StringHash EquipmentCommand::findByEquipmentName(std::string_view equipmentName) {
  for (const Pairing& pairing : PAIRINGS)
    if (pairing.equipmentName == equipmentName) return pairing.commandId;
  return {};
}

EquipmentCommand::EquipmentCommand(qsf::game::CommandManager* manager, qsf::StringHash id, int priority, float seconds,
                                   Work work)
    : Command(manager, id), mSeconds(seconds), mWork(work) {
  setPriority(priority);
}

bool EquipmentCommand::checkCaller(qsf::Entity& caller) {
  const EntityHelper helper(caller);
  if (!helper.isSquadPersonInValidState()) return false;
  const qsf::Entity* held = helper.getActiveEquipmentEntity();
  const auto* equipment = held ? held->getComponent<qsf::game::EquipmentComponent>() : nullptr;
  return equipment && findByEquipmentName(equipment->getEquipmentName()) == getId();
}

void EquipmentCommand::execute(const qsf::game::CommandContext& context) {
  context.mCaller->getOrCreateComponent<qsf::ActionComponent>()
      ->pushAction<WorkWithEquipmentAction>(qsf::ActionComponent::DEFAULT_PRIORITY, qsf::action::REPLACE_WHOLE_PLAN)
      .init(*context.mTargetEntity, qsf::Time::fromSeconds(static_cast<double>(mSeconds)), mWork);
}

ExtinguishWithHoseCommand::ExtinguishWithHoseCommand(qsf::game::CommandManager* manager)
    : EquipmentCommand(manager, COMMAND_ID, 100, 4, Work::EXTINGUISH) {}

void ExtinguishWithHoseCommand::declareCamp() { declare<ExtinguishWithHoseCommand>("em5::ExtinguishWithHoseCommand"); }

bool ExtinguishWithHoseCommand::checkContext(const qsf::game::CommandContext& context) {
  return isTargetBurning(context);
}

ExtinguishWithExtinguisherCommand::ExtinguishWithExtinguisherCommand(qsf::game::CommandManager* manager)
    : EquipmentCommand(manager, COMMAND_ID, 90, 8, Work::EXTINGUISH) {}

void ExtinguishWithExtinguisherCommand::declareCamp() {
  declare<ExtinguishWithExtinguisherCommand>("em5::ExtinguishWithExtinguisherCommand");
}

bool ExtinguishWithExtinguisherCommand::checkContext(const qsf::game::CommandContext& context) {
  return isTargetBurning(context);
}

UseAxeCommand::UseAxeCommand(qsf::game::CommandManager* manager)
    : EquipmentCommand(manager, COMMAND_ID, 80, 3, Work::BREAK) {}

void UseAxeCommand::declareCamp() { declare<UseAxeCommand>("em5::UseAxeCommand"); }

bool UseAxeCommand::checkContext(const qsf::game::CommandContext& context) {
  if (!context.mTargetEntity) return false;
  const auto* tree = context.mTargetEntity->getComponent<TreeComponent>();
  const auto* door = context.mTargetEntity->getComponent<DoorComponent>();
  const auto* building = context.mTargetEntity->getComponent<BuildingComponent>();
  return (tree && !tree->isBroken()) || (door && door->getDoorState() == DoorComponent::DOOR_CLOSED) ||
         (building && building->getTrappedPersons() > 0);
}

CutVehicleCommand::CutVehicleCommand(qsf::game::CommandManager* manager)
    : EquipmentCommand(manager, COMMAND_ID, 75, 5, Work::CUT_OPEN) {}

void CutVehicleCommand::declareCamp() { declare<CutVehicleCommand>("em5::CutVehicleCommand"); }

bool CutVehicleCommand::checkContext(const qsf::game::CommandContext& context) {
  const auto* vehicle = context.mTargetEntity ? context.mTargetEntity->getComponent<VehicleComponent>() : nullptr;
  return vehicle && vehicle->getCanBeCut();
}

RepairWithToolboxCommand::RepairWithToolboxCommand(qsf::game::CommandManager* manager)
    : EquipmentCommand(manager, COMMAND_ID, 70, 5, Work::REPAIR) {}

void RepairWithToolboxCommand::declareCamp() { declare<RepairWithToolboxCommand>("em5::RepairWithToolboxCommand"); }

bool RepairWithToolboxCommand::checkContext(const qsf::game::CommandContext& context) {
  return context.mTargetEntity && context.mTargetEntity->getComponent<UsableByEngineerComponent>() &&
         !isTargetBurning(context);
}

DiveCommand::DiveCommand(qsf::game::CommandManager* manager)
    : EquipmentCommand(manager, COMMAND_ID, 60, 6, Work::SEARCH_IN_WATER) {}

void DiveCommand::declareCamp() { declare<DiveCommand>("em5::DiveCommand"); }

bool DiveCommand::checkContext(const qsf::game::CommandContext& context) {
  const auto* spot = context.mTargetEntity ? context.mTargetEntity->getComponent<DivingSpotComponent>() : nullptr;
  return spot && spot->isIntact();
}

}
