#include "game_plugin/scenario/messages/ScenarioMessageReciever.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct UseEquipmentActionMessageSendCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "The lists stay as they are until a message arrives; they aren't emptied while there is none.",
      "SpeakToPerson1 is heard when somebody has spoken to a person.",
  };

  Argument message;
  Argument callers;
  Argument targets;
};

static void read(UseEquipmentActionMessageSendCondition& condition, ParameterReader& in) {
  condition.message = in.raw(
      1, "Message", "Message",
      "The Message we want to recieve. Keep in mind the UseEquipmentAction adds Numbers to show the state of the "
      "action. An example is \"axe1\" . Where axe would be the \"Base\"-Message from UseEquipmentAction and the "
      "\"1\" would indicate that the first Animation of this action was finished");
  condition.callers =
      in.listOut(2, "EntityList(out)", "EntityList (out)", "Write a list of all Caller entities (see next entry)");
  condition.targets =
      in.listOut(3, "EntityList(out)", "EntityList (out)",
                 "Writes a list of all TARGETentites which are effected by your action (e.g. you could kill the "
                 "targeted tree if the message \"axe1\" arrived)");
}

static void addAll(ScenarioHandler& handler, const Argument& list, const std::vector<std::uint64_t>& ids) {
  for (const std::uint64_t id : ids)
    handler.AddToEntityList(list, id);
}

static bool test(const UseEquipmentActionMessageSendCondition& condition, ScenarioHandler& handler) {
  const ScenarioMessageReciever* reciever = ScenarioMessageReciever::get();
  if (!reciever) return false;
  const auto [callers, targets] = reciever->getEquipmentRecords(condition.message, &handler);
  if (callers.empty()) return false;
  handler.ClearEntityList(condition.callers);
  handler.ClearEntityList(condition.targets); // both first: they may be one list
  addAll(handler, condition.callers, callers);
  addAll(handler, condition.targets, targets);
  return true;
}

CONDITION(UseEquipmentActionMessageSend, "MessageListener",
          "True if we recieved the message (emitted from script::UseEquipmentAction)")

}
