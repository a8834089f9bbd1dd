#include "game_plugin/scenario/messages/ScenarioMessageReciever.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct UnitSelectionChangedCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "The selection may be the one that it was: what counts is that the game has told of a change.",
  };
};

static void read(UnitSelectionChangedCondition&, ParameterReader&) {}

static bool test(const UnitSelectionChangedCondition&, ScenarioHandler& handler) {
  const ScenarioMessageReciever* reciever = ScenarioMessageReciever::get();
  return reciever && reciever->getSelectionChanged(&handler);
}

CONDITION(UnitSelectionChanged, "MessageListener",
          "Listen to events that CAN change the Unit. The unit can change but thats not necessary")

}
