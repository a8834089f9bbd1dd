#include "game_plugin/scenario/messages/ScenarioMessageReciever.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct ScenarioActivateTriggerMessageArrivedCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "A message without units doesn't make it hold.",
      "What the list holds is gone at the next evaluation, whether a message has arrived or not.",
  };

  Argument uniqueId;
  Argument entityListOut;
};

static void read(ScenarioActivateTriggerMessageArrivedCondition& condition, ParameterReader& in) {
  condition.uniqueId =
      in.text(1, "GUID", "My_Unique_Id", "This is a simple filter. Only messages with this GUID are listen");
  condition.entityListOut =
      in.listOut(2, "MyUnitList", "EntityListOut", "This gives you a list of entities which triggered the effect");
}

static bool test(const ScenarioActivateTriggerMessageArrivedCondition& condition, ScenarioHandler& handler) {
  const std::string& uniqueId = handler.ResolveString(condition.uniqueId);
  std::vector<std::uint64_t> ids;
  if (const ScenarioMessageReciever* reciever = ScenarioMessageReciever::get())
    ids = reciever->getActivatorIds(&handler, uniqueId);
  if (ids.empty() && handler.getEntityListSize(condition.entityListOut) == 0) return false;
  handler.ClearEntityList(condition.entityListOut);
  for (const std::uint64_t id : ids)
    handler.AddToEntityList(condition.entityListOut, id);
  return handler.getEntityListSize(condition.entityListOut) != 0;
}

CONDITION(ScenarioActivateTriggerMessageArrived, "Trigger",
          "Let you manipulate a trigger state with a message from qsf_message system")

}
