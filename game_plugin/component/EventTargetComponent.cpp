#include "game_plugin/component/EventTargetComponent.h"

#include <algorithm>

namespace script {

void EventTargetComponent::declareCamp() {
  camp::Class::declare<EventTargetComponent>("script::EventTargetComponent")
      .tag("Name", "script::EventTargetComponent")
      .tag("Description", "script::EventTargetComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>();
}

void EventTargetComponent::add(const std::string& objectiveId) {
  if (!has(objectiveId)) mObjectiveIds.push_back(objectiveId);
}

bool EventTargetComponent::has(const std::string& objectiveId) const {
  return std::ranges::find(mObjectiveIds, objectiveId) != mObjectiveIds.end();
}

void EventTargetComponent::remove(const std::string& objectiveId) { std::erase(mObjectiveIds, objectiveId); }

}
