#include "em5/command/EquipmentCommands.h"

#include "em5/action/WorkWithEquipmentAction.h"
#include "em5/component/DoorComponent.h"
#include "em5/component/TreeComponent.h"
#include "em5/map/EntityHelper.h"
#include "qsf/action/ActionComponent.h"
#include "qsf/game/EquipmentComponent.h"
#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

namespace {

struct Pairing {
  std::string_view equipmentName;
  qsf::StringHash commandId;
};
constexpr Pairing PAIRINGS[] = {{"hose", ExtinguishWithHoseCommand::COMMAND_ID},
                                {"extinguisher", ExtinguishWithExtinguisherCommand::COMMAND_ID},
                                {"axe", UseAxeCommand::COMMAND_ID}};

bool isTargetBurning(const qsf::game::CommandContext& context) {
  return context.mTargetEntity && EntityHelper(*context.mTargetEntity).isBurning();
}

const qsf::DeclaredClass<ExtinguishWithHoseCommand> declaredHose;
const qsf::DeclaredClass<ExtinguishWithExtinguisherCommand> declaredExtinguisher;
const qsf::DeclaredClass<UseAxeCommand> declaredAxe;

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

EquipmentCommand::EquipmentCommand(qsf::game::CommandManager* manager, qsf::StringHash id, int priority, float seconds)
    : Command(manager, id), mSeconds(seconds) {
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
      .init(*context.mTargetEntity, qsf::Time::fromSeconds(static_cast<double>(mSeconds)));
}

ExtinguishWithHoseCommand::ExtinguishWithHoseCommand(qsf::game::CommandManager* manager)
    : EquipmentCommand(manager, COMMAND_ID, 100, 4) {}

void ExtinguishWithHoseCommand::declareCamp() {
  declare<ExtinguishWithHoseCommand>("em5::ExtinguishWithHoseCommand");
}

bool ExtinguishWithHoseCommand::checkContext(const qsf::game::CommandContext& context) {
  return isTargetBurning(context);
}

ExtinguishWithExtinguisherCommand::ExtinguishWithExtinguisherCommand(qsf::game::CommandManager* manager)
    : EquipmentCommand(manager, COMMAND_ID, 90, 8) {}

void ExtinguishWithExtinguisherCommand::declareCamp() {
  declare<ExtinguishWithExtinguisherCommand>("em5::ExtinguishWithExtinguisherCommand");
}

bool ExtinguishWithExtinguisherCommand::checkContext(const qsf::game::CommandContext& context) {
  return isTargetBurning(context);
}

UseAxeCommand::UseAxeCommand(qsf::game::CommandManager* manager) : EquipmentCommand(manager, COMMAND_ID, 80, 3) {}

void UseAxeCommand::declareCamp() { declare<UseAxeCommand>("em5::UseAxeCommand"); }

bool UseAxeCommand::checkContext(const qsf::game::CommandContext& context) {
  if (!context.mTargetEntity) return false;
  const auto* tree = context.mTargetEntity->getComponent<TreeComponent>();
  const auto* door = context.mTargetEntity->getComponent<DoorComponent>();
  return (tree && !tree->isBroken()) || (door && door->getDoorState() == DoorComponent::DOOR_CLOSED);
}

}
