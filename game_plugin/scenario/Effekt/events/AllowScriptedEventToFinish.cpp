#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/events/FindScenarioEvent.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct AllowScriptedEventToFinishEffect : DefaultEffect {
  Argument uniqueId;
  bool allow = true;
};

static void read(AllowScriptedEventToFinishEffect& effect, ParameterReader& in) {
  effect.uniqueId = in.number(1, "-1", "UniqueId", "");
  effect.allow = in.flag(2, true, "Allow", "true -> event can be finished<br>false->event cant be finished");
}

static void run(const AllowScriptedEventToFinishEffect& effect, ScenarioHandler& handler) {
  if (ScenarioEvent* event = findScenarioEvent(handler, effect.uniqueId)) event->allowedToFinish = effect.allow;
}

EFFECT(AllowScriptedEventToFinish, "Events",
       "If you want the player to finish a ScriptedEvent you need to call this method. It is required, because "
       "otherwise the ScriptedEvent would finishing itself after creation")

}
