#include "game_plugin/scenario/shared/events/FindScenarioEvent.h"

#include "game_plugin/scenario/Log.h"

namespace script {

namespace {

template <class IsWanted> ScenarioEvent* lookFor(IsWanted&& isWanted) {
  for (ScenarioEvent* event : getCurrentScenarioEvents())
    if (isWanted(*event)) return event;
  return nullptr;
}

ScenarioEvent* logIfMissing(ScenarioEvent* event) {
  if (!event) logInfo("ScenarioEvent is a nullptr");
  return event;
}

}

ScenarioEvent* lookForScenarioEvent(ScenarioHandler& handler, const Argument& uniqueId) {
  return lookFor(
      [&](const ScenarioEvent& event) { return static_cast<float>(event.uniqueId) == handler.ResolveFloat(uniqueId); });
}

ScenarioEvent* findScenarioEvent(ScenarioHandler& handler, const Argument& uniqueId) {
  return logIfMissing(lookForScenarioEvent(handler, uniqueId));
}

ScenarioEvent* findUnclaimedScenarioEvent() {
  return logIfMissing(lookFor([](const ScenarioEvent& event) { return event.uniqueId == ScenarioEvent::UNCLAIMED; }));
}

}
