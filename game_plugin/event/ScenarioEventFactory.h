#pragma once
#include "em5/freeplay/FreeplayEventFactory.h"

#include <string>

namespace script {

/// Makes ScenarioEvents, of which one at a time may be without a unique id. Property "EventType", which nobody reads.
class ScenarioEventFactory : public em5::FreeplayEventFactory {
  CAMP_RTTI()
public:
  ScenarioEventFactory() = default;
  static void declareCamp();

  /// Refuses while a ScenarioEvent waits for its id.
  std::unique_ptr<em5::FreeplayEvent> tryTriggerEvent(const em5::FreeplayEventTriggerInfo& triggerInfo) override;

private:
  std::string mEventType;
};

}
CAMP_TYPE_NONCOPYABLE(script::ScenarioEventFactory)
