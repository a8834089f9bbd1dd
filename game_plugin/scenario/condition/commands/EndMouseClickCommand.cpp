#include "game_plugin/scenario/lifecycle/MapScriptManager.h"
#include "game_plugin/scenario/messages/ScenarioMessageReciever.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct EndMouseClickCommandCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "A click waits, however long, until a line of that command is reached. Of several lines, of whatever script, the "
      "first one that is reached takes it.",
      "Several clicks until then are one.",
      "The tick that takes a click leaves the command without a priority; the next one gives it back.",
      "Without a StartMouseClickCommand before it, the first evaluation gives no priority.",
  };

  Argument commandName;
  Argument priority;
};

static void read(EndMouseClickCommandCondition& condition, ParameterReader& in) {
  condition.commandName = in.of(ParameterRole::COMMAND, 1, "no_command", "Commandname",
                                "Again the commandname (see StartMouseClickCommand)");
  condition.priority = in.number(2, "1", "Priority",
                                 "Priority of your Command. Should be between 0 and 201. Higher Commands are prefered "
                                 "over Commands with lower priority");
}

static bool test(const EndMouseClickCommandCondition& condition, ScenarioHandler& handler) {
  MapScriptManager* manager = MapScriptManager::get();
  const float priority = handler.ResolveFloat(condition.priority);
  if (manager) manager->getScriptedCommands().confirmBid(condition.commandName, priority);
  ScenarioMessageReciever* reciever = ScenarioMessageReciever::get();
  if (!reciever || !reciever->consumeCommand(condition.commandName)) return false;
  if (manager) manager->getScriptedCommands().confirmBid(condition.commandName, 0);
  return true;
}

CONDITION(EndMouseClickCommand, "Commands",
          "Checks if the conditions between StartMouseClickCommand and EndMouseClickCommand were true and only then "
          "will allow your Mouseclick event to be executed")

}
