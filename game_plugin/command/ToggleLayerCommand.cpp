#include "game_plugin/command/ToggleLayerCommand.h"

#include "game_plugin/component/OpenHouseComponent.h"

#include "qsf/map/Entity.h"

namespace script {

namespace {

constexpr int PRIORITY = 2;

OpenHouseComponent* findHouse(const qsf::game::CommandContext& context) {
  return context.mCaller ? context.mCaller->getComponent<OpenHouseComponent>() : nullptr;
}

}

ToggleLayerCommand::ToggleLayerCommand(qsf::game::CommandManager* manager) : Command(manager, COMMAND_ID) {
  setPriority(PRIORITY);
  mIconSettings.mShowButton = true;
  mIconSettings.mButtonText = "ToggleLayerCommand";
  mIconSettings.mTooltipId = "ID_ToggleLayerCommand";
}

void ToggleLayerCommand::declareCamp() {
  camp::Class::declare<ToggleLayerCommand>("script::ToggleLayerCommand")
      .tag("Name", "script::ToggleLayerCommand")
      .tag("Description", "A command which can be used together with OpenHouses")
      .base<em5::Command>()
      .constructor1<qsf::game::CommandManager*>();
}

bool ToggleLayerCommand::checkContext(const qsf::game::CommandContext& context) {
  return findHouse(context) != nullptr;
}

void ToggleLayerCommand::execute(const qsf::game::CommandContext& context) {
  if (OpenHouseComponent* house = findHouse(context)) house->stepToNextFloor();
}

}
