#include "game_plugin/event/ScenarioEventFactory.h"

#include "game_plugin/event/ScenarioEvent.h"
#include "game_plugin/scenario/Log.h"

#include <camp/classbuilder.hpp>

#include <algorithm>

namespace script {

void ScenarioEventFactory::declareCamp() {
  camp::Class::declare<ScenarioEventFactory>("script::ScenarioEventFactory")
      .tag("Name", "ScenarioEventFactory")
      .tag("Description", "Scenario Event Factory")
      .base<em5::FreeplayEventFactory>()
      .constructor0()
      .property("EventType", &ScenarioEventFactory::mEventType)
      .tag("Description", "Eventtype")
      .tag("Default", "");
}

std::unique_ptr<em5::FreeplayEvent>
ScenarioEventFactory::tryTriggerEvent(const em5::FreeplayEventTriggerInfo& triggerInfo) {
  logInfo("TRY TRIGGER EVENT");
  const std::vector<ScenarioEvent*> current = getCurrentScenarioEvents();
  const auto isUnclaimed = [](const ScenarioEvent* event) { return event->uniqueId == ScenarioEvent::UNCLAIMED; };
  if (std::ranges::any_of(current, isUnclaimed)) {
    setTriggerFailReason("The \"ScenarioEvent\" event is allready running with a not initialized uniqued id!");
    return nullptr;
  }
  logInfo("RUNNING");
  auto event = std::make_unique<ScenarioEvent>();
  initializeEventInstance(*event);
  deserializeRandomFreeplayVariant(*event, triggerInfo);
  return event;
}

}
