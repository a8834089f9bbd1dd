#include "game_plugin/event/ScenarioEvent.h"

#include "game_plugin/event/ObjectiveKind.h"
#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/world/RememberedHash.h"

#include "em5/freeplay/FreeplaySystem.h"
#include "em5/freeplay/ObjectiveHelper.h"
#include "em5/gui/HintHelper.h"
#include "em5/plugin/Plugin.h"

#include <camp/classbuilder.hpp>

#include <limits>

namespace script {

namespace {

constexpr int ORDER_PRIORITY = 100;

}

void ScenarioEvent::declareCamp() {
  camp::Class::declare<ScenarioEvent>(CLASS_NAME)
      .tag("Name", "ScenarioEvent")
      .tag("Description", "Scenario Event")
      .base<em5::FreeplayEvent>()
      .constructor0()
      .property("Eventtype", &ScenarioEvent::mEventType)
      .tag("Description", "Eventtype")
      .tag("Default", "");
}

bool ScenarioEvent::onRun() {
  logInfo("Eventtype: " + mEventType);
  setRunning();
  listen();
  return true;
}

void ScenarioEvent::onShutdown() {
  mLadderMessageProxy.unregister();
  mJumpMessageProxy.unregister();
  mRepairMessageProxy.unregister();
  mDivingMessageProxy.unregister();
  mJumpJobProxy.unregister();
}

void ScenarioEvent::updateFreeplayEvent(qsf::Time /*timePassed*/) {
  if (allowedToFinish) checkObjectivesState();
}

void ScenarioEvent::showEventStartHint(const em5::EventHintParameters& hintParameters) {
  em5::HintHelper::showSupervisorMessage(em5::HintHelper::getRandomStringOfIdString(hintParameters.supervisorMessage));
}

// Saved games have never held what scripts write into an event: after a load it waits for its script again.
void ScenarioEvent::serialize(em5::EventArchive& archive) { FreeplayEvent::serialize(archive); }

em5::Objective* ScenarioEvent::findObjective(const std::string& id) const {
  return getObjectives().getObjectiveByTypeId(qsf::StringHash(id));
}

void ScenarioEvent::createObjective(const std::string& text, const std::string& id, int neededNumber,
                                    const std::string& kind) {
  const em5::ObjectiveType type = lookUp(OBJECTIVE_KINDS, kind).value_or(em5::OBJECTIVE_REQUIRED);
  em5::Objective& objective = getObjectives().getOrCreateObjective(rememberedHash(id), type, getId(), ORDER_PRIORITY);
  objective.setText(text);
  objective.setNeededNumber(neededNumber);
}

em5::Objective& ScenarioEvent::getOrCreateObjective(const std::string& id) {
  return getObjectives().getOrCreateObjective(rememberedHash(id), em5::OBJECTIVE_REQUIRED, getId(), ORDER_PRIORITY);
}

void ScenarioEvent::setObjectiveCurrentNumber(const std::string& id, int number) {
  if (em5::Objective* objective = findObjective(id)) objective->setCurrentNumber(number);
}

void ScenarioEvent::setObjectiveNeededNumber(const std::string& id, int number) {
  if (em5::Objective* objective = findObjective(id)) objective->setNeededNumber(number);
}

void ScenarioEvent::increaseObjective(const std::string& id, const qsf::Entity* entity) {
  if (em5::Objective* objective = findObjective(id)) objective->increaseCurrentNumber(entity);
}

void ScenarioEvent::increaseNeededNumber(const std::string& id) {
  if (em5::Objective* objective = findObjective(id)) objective->increaseNeededNumber(nullptr);
}

void ScenarioEvent::decreaseNeededNumber(const std::string& id) {
  if (em5::Objective* objective = findObjective(id)) objective->decreaseNeededNumber(nullptr);
}

template <class Visit> void ScenarioEvent::eachObjectiveWithText(const std::string& text, Visit&& visit) {
  std::vector<em5::Objective*> found;
  for (const auto& objective : getObjectives().getObjectives())
    if (objective->getText() == text) found.push_back(objective.get());
  for (em5::Objective* objective : found)
    visit(*objective);
}

void ScenarioEvent::reduceObjectiveByText(const std::string& text, LastOne last) {
  eachObjectiveWithText(text, [&](em5::Objective& objective) {
    if (last == LastOne::IS_REMOVED && objective.getNeededNumber() < 2) {
      em5::ObjectiveHelper(*this).removeObjectiveByTypeId(objective.getTypeId());
      return;
    }
    objective.decreaseNeededNumber(nullptr);
    const int needed = objective.getNeededNumber();
    objective.setCurrentNumber(needed == std::numeric_limits<int>::min() ? needed : needed - 1);
  });
}

void ScenarioEvent::dropObjectiveByText(const std::string& text, int limit, Removal removal) {
  eachObjectiveWithText(text, [&](em5::Objective& objective) {
    if (removal == Removal::ALWAYS || limit <= objective.getNeededNumber())
      em5::ObjectiveHelper(*this).removeObjectiveByTypeId(objective.getTypeId());
    else
      objective.decreaseNeededNumber(nullptr);
  });
}

std::vector<ScenarioEvent*> getCurrentScenarioEvents() {
  std::vector<ScenarioEvent*> events;
  const em5::Plugin* game = em5::Plugin::getInstance();
  if (!game) return events;
  for (em5::FreeplayEvent* event : game->getFreeplaySystem().getEventManager().getCurrentEvents())
    if (ScenarioEvent* own = asScenarioEvent(event)) events.push_back(own);
  return events;
}

ScenarioEvent* asScenarioEvent(em5::FreeplayEvent* event) {
  return event && event->getCampClassName() == ScenarioEvent::CLASS_NAME ? static_cast<ScenarioEvent*>(event) : nullptr;
}

}
