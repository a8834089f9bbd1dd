#include "game_plugin/command/ScriptedCommand.h"

#include "game_plugin/component/ScenarioCommandableComponent.h"
#include "game_plugin/scenario/language/Truncation.h"
#include "game_plugin/scenario/lifecycle/MapScriptManager.h"
#include "game_plugin/scenario/messages/MessageNames.h"
#include "game_plugin/scenario/world/ClientCommands.h"
#include "game_plugin/scenario/world/LocalPlayer.h"

#include "em5/command/CommandContext.h"
#include "em5/component/CommandableComponent.h"
#include "em5/game/Game.h"
#include "qsf/Qsf.h"
#include "qsf/action/ActionComponent.h"
#include "qsf/map/Entity.h"
#include "qsf/message/MessageSystem.h"

#include <algorithm>

namespace script {

namespace {

/// A unit that does something of this priority, or higher, isn't interrupted.
constexpr unsigned int BUSY_PRIORITY = 200;

void tellScriptsHere(const std::string& commandName) {
  qsf::Qsf::instance()->getMessageSystem().emitMessage(
      qsf::MessageConfiguration(qsf::StringHash(messages::COMMAND_USED), qsf::StringHash(commandName).getHash()));
}

/// Each mouse click command of the unit, whatever the bids say: the client's scripts decide.
void tellClient(const qsf::Entity& unit, int playerId) {
  const qsf::UniqueInstance<em5::Game> game;
  const em5::Player* player =
      game ? game->getPlayerManager()->getPlayerByIndex(static_cast<unsigned int>(playerId)) : nullptr;
  const auto* scripted = unit.getComponent<ScenarioCommandableComponent>();
  if (!player || !scripted) return;
  for (const std::string& name : scripted->getMouseClickCommands())
    sendCommandToClient(*player, qsf::StringHash(name).getHash());
}

}

bool ScriptedCommand::checkCaller(qsf::Entity& caller) {
  const auto* actions = caller.getComponent<qsf::ActionComponent>();
  return actions && actions->getCurrentPriority() < BUSY_PRIORITY;
}

bool ScriptedCommand::checkContext(const qsf::game::CommandContext& context) {
  if (!isLocalPlayerClient()) {
    const auto* commandable = context.mCaller->getComponent<em5::CommandableComponent>();
    if (!commandable) return false;
    // The bids for a client's unit are known to that client alone.
    if (commandable->getPlayerId() > 0) return true;
  }
  if (context.mCaller == context.mTargetEntity) return false;
  if (static_cast<const em5::CommandContext&>(context).mPermission == em5::CommandContext::PERMISSION_REFUSED)
    return false;
  return takeHighestBid(*context.mCaller);
}

bool ScriptedCommand::takeHighestBid(const qsf::Entity& caller) {
  const auto* scripted = caller.getComponent<ScenarioCommandableComponent>();
  const MapScriptManager* manager = MapScriptManager::get();
  if (!scripted || !manager) return false;
  const std::vector<std::string>& understood = scripted->getMouseClickCommands();
  const ScriptedCommandRecord* best = nullptr;
  float bestPriority = 0;
  for (const auto& bid : manager->getScriptedCommands().rows()) {
    if (!(bid->priority > bestPriority) || std::ranges::find(understood, bid->commandName) == understood.end())
      continue;
    best = bid.get();
    bestPriority = bid->priority;
  }
  if (!best) return false;
  mChosenName = best->commandName;
  mIconSettings.mMouseIcon = best->mouseIcon;
  setPriority(truncateToInt(bestPriority));
  return true;
}

void ScriptedCommand::execute(const qsf::game::CommandContext& context) {
  if (isLocalPlayerClient()) return;
  const auto* commandable = context.mCaller->getComponent<em5::CommandableComponent>();
  if (commandable && commandable->getPlayerId() > 0)
    tellClient(*context.mCaller, commandable->getPlayerId());
  else
    tellScriptsHere(mChosenName);
}

void CommandbarButton1::declareCamp() {
  camp::Class::declare<CommandbarButton1>("script::CommandbarButton1")
      .tag("Name", "script::CommandbarButton1")
      .tag("Description", "script::CommandbarButton1")
      .base<em5::Command>()
      .constructor1<qsf::game::CommandManager*>();
}

void MouseClickDummyCommand::declareCamp() {
  camp::Class::declare<MouseClickDummyCommand>("script::MouseClickDummyCommand")
      .tag("Name", "script::MouseClickDummyCommand")
      .tag("Description", "A dummy which collects the priorities from scripted commands and is able to block them")
      .base<em5::Command>()
      .constructor1<qsf::game::CommandManager*>();
}

}
