#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/events/FindScenarioEvent.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct SetScriptedScenarioNameEffect : DefaultEffect {
  Argument uniqueId;
  Argument eventName;
};

static void read(SetScriptedScenarioNameEffect& effect, ParameterReader& in) {
  effect.uniqueId = in.number(1, "-1", "UniqueId", "");
  effect.eventName = in.text(2, "Empty_EventName", "EventName", "Name which will be shown");
}

static void run(const SetScriptedScenarioNameEffect& effect, ScenarioHandler& handler) {
  if (ScenarioEvent* event = findScenarioEvent(handler, effect.uniqueId))
    event->setEventName(handler.ResolveString(effect.eventName));
}

EFFECT(SetScriptedScenarioName, "Events",
       "Sets the name of the script::ScenarioEvent instance. Can be used for freeplay events where you dont have to "
       "create the instance yourself")

}
